// What tests of windows stand on: a data file of their own, fresh for each, and the errors that no handler held back.
#pragma once

#include "platform/runtime/Clock.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

#include <optional>

class StoreTest : public QObject
{
protected:
    // For init(): the file, and what is changed in it by SQLite's own SQL.
    void open(DataFolder::Content content, const QByteArray &changes = {})
    {
        m_folder.emplace(content);
        m_folder->execute(changes);
        m_errors.emplace();
    }
    // The clock stands at this moment until the test ends.
    static void setTime(const QString &moment)
    {
        runtime::setClock([moment] { return QDateTime::fromString(moment, Qt::ISODate); });
    }
    // For cleanup(): an error that no test has looked at fails it.
    void close()
    {
        m_errors.reset();
        m_folder.reset();
        runtime::setClock({});
    }

    std::optional<DataStoreFolder> m_folder;
    std::optional<CaughtErrors> m_errors;
};
