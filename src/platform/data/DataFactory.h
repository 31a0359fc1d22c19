// Makes recordsets that belong to no connection: their rows live in memory, as long as the recordset.
//
// They begin empty, and rows are added as to any other recordset. Error 3001 without
// columns, for a repeated name and for any type but adInteger and adChar.
#pragma once

#include "platform/data/Recordset.h"

#include <vector>

namespace data {

struct FieldDefinition
{
    QString name;
    DataTypeEnum type;
    qint16 size; // of a text, in characters; declared but not enforced, as for every column of this store
    bool nullable;
};

class DataFactory
{
public:
    Recordset CreateRecordset(const std::vector<FieldDefinition> &columns) const;
};

} // namespace data
