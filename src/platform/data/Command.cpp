#include "platform/data/Command.h"

#include "platform/data/ProviderError.h"

namespace data {

Recordset Command::Execute(int)
{
    if (!ActiveConnection)
        throw objectError(NoConnection, "ADODB.Command");
    Recordset result;
    result.Open(CommandText, *ActiveConnection, adOpenStatic, adLockReadOnly);
    return result;
}

} // namespace data
