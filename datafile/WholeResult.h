// A file or folder that appears under its name complete or not at all.
//
// It is made under a temporary name in the folder where it will stand, so that the last step is a rename, and taken
// away again when it is not finished. What stands at the path already (a file, a folder, a link) is never replaced.
// A result that has its name outlasts a loss of power.
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace datafile {

class WholeResult
{
public:
    // Raises 58 for a path that is taken, 76 for a folder that is not there, 75 for one that cannot be written.
    explicit WholeResult(const QString &path);

    // Where to make the result; nothing stands there yet. A neighbour is for further files that nobody keeps.
    QString unfinished() const { return m_workshop.filePath(QStringLiteral("result")); }
    QString neighbour() const { return m_workshop.filePath(QStringLiteral("scratch")); }
    // Gives the result its name. Raises 58 where something has taken the path since, 75 where it cannot be written.
    void finish();

private:
    QString m_path;
    QTemporaryDir m_workshop;
};

// Raises 58 where anything stands at the path, a link that leads nowhere too.
void refuseTakenPath(const QString &path);

// Waits until the file, or the folder with all that is in it, and its name are on the disk. Raises 57 when they cannot
// be.
void putOnDisk(const QString &path);

// Gives a file or a folder another name on the same file system. Raises 58 for a name that is taken, 75 for other
// failures.
void renameWithoutReplacing(const QString &from, const QString &to);

} // namespace datafile
