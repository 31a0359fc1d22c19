// Runs statements of the dialect over an open connection.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

namespace data {

class Command
{
public:
    Connection *ActiveConnection = nullptr;
    QString CommandText;

    // The rows of a SELECT; a closed recordset for a statement that changes rows. Error 3709 without an open
    // connection.
    Recordset Execute(int options = adOptionUnspecified);
    // Without effect: it would end what runs asynchronously, and nothing does.
    void Cancel() {}
};

} // namespace data
