// Makes recordsets that belong to no connection: their rows live in memory, as long as the recordset.
//
// They begin empty and take rows as any other. Error 3001 for definitions that make no table.
#pragma once

#include "platform/data/Recordset.h"

#include <vector>

namespace data {

struct FieldDefinition
{
    QString name;
    DataTypeEnum type;
    qint16 size; // of a text, in characters; declared, and like every column's in this store not enforced
    bool nullable;
};

class DataFactory
{
public:
    Recordset CreateRecordset(const std::vector<FieldDefinition> &columns) const;
};

} // namespace data
