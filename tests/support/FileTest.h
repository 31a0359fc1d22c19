// What tests of the data objects stand on: a data file of their own, fresh for each, and an open connection to it.
#pragma once

#include "support/DataStoreFolder.h"

#include <optional>

class FileTest : public QObject
{
protected:
    // For init(): the file, and what is changed in it by SQLite's own SQL.
    void open(DataFolder::Content content, const QByteArray &changes = {})
    {
        m_folder.emplace(content);
        m_folder->execute(changes);
        m_folder->open(m_connection);
    }
    // For cleanup().
    void close()
    {
        m_connection = data::Connection();
        m_folder.reset();
    }
    data::Recordset opened(const QString &statement)
    {
        data::Recordset rows;
        rows.Open(statement, m_connection);
        return rows;
    }

    std::optional<DataStoreFolder> m_folder;
    data::Connection m_connection;
};
