// What the tests of the data file look at: rows as text, bytes, and a folder of one test's own.
#pragma once

#include "platform/data/engine/Database.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

namespace datafiletest {

// The rows' columns joined by "|", Null as "NULL".
inline QStringList rowsOf(const data::Database &file, const QByteArray &sql)
{
    QStringList rows;
    data::Statement query = file.prepare(sql);
    while (query.step()) {
        QStringList cells;
        for (int column = 0; column < query.columnCount(); ++column)
            cells << (query.storage(column) == data::Statement::Storage::Null ? QStringLiteral("NULL")
                                                                              : QString::fromUtf8(query.text(column)));
        rows << cells.join(u'|');
    }
    return rows;
}

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
class Folder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    // Everything in it, hidden files and links that lead nowhere too.
    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace datafiletest
