// What the tests of the data file look at: a value as text, bytes, and a folder of one test's own.
#pragma once

#include "support/DataFolder.h"

#include <QDir>

namespace datafiletest {

inline QString valueOf(const data::Database &file, const QByteArray &sql)
{
    return rowsOf(file, sql).join(u'\n');
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A folder that goes with the test.
class Folder : public DataFolder
{
public:
    Folder() : DataFolder(Content::None) {}
    // Everything in it, hidden files and links that lead nowhere too.
    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                        QDir::Name);
    }
};

} // namespace datafiletest
