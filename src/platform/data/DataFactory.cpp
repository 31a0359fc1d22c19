#include "platform/data/DataFactory.h"

#include "platform/data/engine/Database.h"
#include "platform/runtime/ProviderError.h"

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

QString declarationOf(const FieldDefinition &column)
{
    switch (column.type) {
    case adInteger:
        return u"INTEGER"_s;
    case adChar:
        return u"TEXT(%1)"_s.arg(column.size);
    case adDate:
    case adVarWChar:
        break;
    }
    throw provider::objectError(provider::WrongArguments, "RDSServer.DataFactory");
}

} // namespace

Recordset DataFactory::CreateRecordset(const std::vector<FieldDefinition> &columns) const
{
    QStringList declarations;
    for (const FieldDefinition &column : columns)
        declarations << u'[' + column.name + u"] "_s + declarationOf(column) +
                            (column.nullable ? QString() : u" NOT NULL"_s);
    auto rows = std::make_shared<Database>();
    rows->createInMemory();
    try {
        rows->execute("CREATE TABLE Contents (" + declarations.join(u", "_s).toUtf8() + ')');
    } catch (const StoreError &error) { // no columns, or two of one name
        if (error.number() == runtime::OutOfMemory)
            throw;
        throw provider::objectError(provider::WrongArguments, "RDSServer.DataFactory");
    }
    return Recordset(std::move(rows), u"select * from Contents"_s);
}

} // namespace data
