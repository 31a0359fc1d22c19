// A connection and a command with which a handler runs its delete, update and insert statements one after another.
//
// A handler that fails between open and close leaves the connection open; the next open() of the object or its end
// releases it.
#pragma once

#include "platform/data/Command.h"
#include "platform/data/Connection.h"

class CommandSequence
{
public:
    CommandSequence() = default;
    CommandSequence(const CommandSequence &) = delete; // the command points at the connection beside it
    CommandSequence &operator=(const CommandSequence &) = delete;

    void open();
    data::Recordset execute(const QString &statement);
    // Cancels the command, closes the connection and cancels the connection, in this order.
    void close();

    data::Command command;

private:
    data::Connection m_connection;
};
