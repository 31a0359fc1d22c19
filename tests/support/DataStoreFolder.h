// An application folder of the test's own, with a data file in it.
#pragma once

#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "platform/data/Database.h"
#include "platform/runtime/Application.h"

#include <QDir>
#include <QTemporaryDir>

class DataStoreFolder
{
public:
    enum class Content { Sample, Empty, None };
    explicit DataStoreFolder(Content content = Content::Sample)
    {
        runtime::App::setPath(m_folder.path());
        QDir(m_folder.path()).mkpath(QStringLiteral("temp/Search"));
        if (content == Content::Sample)
            datafile::createSampleFile(file());
        else if (content == Content::Empty)
            datafile::createDataFile(file());
    }
    ~DataStoreFolder() { runtime::App::setPath({}); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString file() const { return path(QStringLiteral("Tolmark.mdb")); }

    // Runs SQLite's own SQL on the data file.
    void execute(const char *sql) const
    {
        data::Database database;
        database.open(file());
        database.execute(sql);
    }
    // The first row of a query, its columns joined by "|" as the shell shows them.
    QString row(const QByteArray &sql) const
    {
        data::Database database;
        database.open(file());
        data::Statement statement = database.prepare(sql);
        QStringList values;
        if (statement.step()) {
            for (int column = 0; column < statement.columnCount(); ++column)
                values << QString::fromUtf8(statement.text(column));
        }
        return values.join(QLatin1Char('|'));
    }

private:
    QTemporaryDir m_folder;
};
