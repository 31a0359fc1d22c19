#include "platform/data/Command.h"

#include "platform/runtime/ProviderError.h"

namespace data {

Recordset Command::Execute(int)
{
    if (!ActiveConnection)
        throw provider::objectError(provider::NoConnection, "ADODB.Command");
    Recordset result;
    result.Open(CommandText, *ActiveConnection, adOpenStatic, adLockReadOnly);
    return result;
}

} // namespace data
