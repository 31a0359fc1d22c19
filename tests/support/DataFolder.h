// A folder of the test's own with a data file in it, and what tests of the data store ask again and again.
//
// The file is a copy of one that is made once in each program, so that a fresh one for every test costs little.
#pragma once

#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"
#include "platform/runtime/Conversion.h"
#include "support/Outcome.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

// The rows of a query in SQLite's own SQL, the columns of each joined by "|", Null as "NULL".
inline QStringList rowsOf(const data::Database &database, const QByteArray &sql)
{
    QStringList rows;
    for (data::Statement query = database.prepare(sql); query.step();) {
        QStringList cells;
        for (int column = 0; column < query.columnCount(); ++column)
            cells << (query.storage(column) == data::Statement::Storage::Null ? QStringLiteral("NULL")
                                                                              : QString::fromUtf8(query.text(column)));
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

class DataFolder
{
public:
    enum class Content { Sample, Empty, None };
    explicit DataFolder(Content content = Content::Sample)
    {
        if (content != Content::None && !QFile::copy(original(content), file()))
            qFatal("the data file cannot be made");
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }
    // Everything in it, hidden files and links that lead nowhere too.
    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                        QDir::Name);
    }
    QString file() const { return path(QStringLiteral("Tolmark.mdb")); }
    QString connectionString() const { return connectionStringFor(file()); }
    static QString connectionStringFor(const QString &file)
    {
        return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=%1;").arg(file);
    }
    void open(data::Connection &connection) const { connection.Open(connectionString()); }

    // Another file in the folder; its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
        return file.fileName();
    }

    // Runs SQLite's own SQL on the file, as another tool would.
    void execute(const QByteArray &sql) const
    {
        data::Database database;
        database.open(file());
        database.execute(sql);
    }
    QStringList rows(const QByteArray &sql) const
    {
        data::Database database;
        database.open(file());
        return rowsOf(database, sql);
    }
    QString row(const QByteArray &sql) const { return rows(sql).value(0); }

private:
    static QString original(Content content)
    {
        static const QTemporaryDir folder;
        const bool sample = content == Content::Sample;
        const QString path = folder.filePath(sample ? QStringLiteral("sample.mdb") : QStringLiteral("empty.mdb"));
        if (!QFile::exists(path))
            sample ? datafile::createSampleFile(path) : datafile::createDataFile(path);
        return path;
    }

    QTemporaryDir m_folder;
};

// The texts of one field in all rows of a recordset, from the current one on.
inline QStringList textsOf(data::Recordset &rows, QStringView field)
{
    QStringList texts;
    for (; !rows.Eof(); rows.MoveNext())
        texts << runtime::joinedText(rows.Fields(field).Value());
    return texts;
}

inline QStringList textsOf(data::Connection &connection, const QString &statement, QStringView field)
{
    data::Recordset rows;
    rows.Open(statement, connection);
    return textsOf(rows, field);
}
