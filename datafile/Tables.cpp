#include "datafile/Tables.h"

namespace datafile {

QList<StoredTable> tablesOf(const data::Database &file)
{
    QList<StoredTable> tables;
    data::Statement columns =
        file.prepare("SELECT t.name, c.name, c.type, t.wr FROM pragma_table_list AS t, pragma_table_info(t.name) AS c "
                     "WHERE t.schema = 'main' AND t.type = 'table' AND t.name NOT LIKE 'sqlite~_%' ESCAPE '~' "
                     "ORDER BY t.name, c.cid");
    while (columns.step()) {
        const QString name = QString::fromUtf8(columns.text(0));
        if (tables.isEmpty() || tables.last().name != name)
            tables.append({name, columns.integer(3) == 0, {}});
        tables.last().columns.append(
            {QString::fromUtf8(columns.text(1)), data::columnTypeOfDeclaration(columns.text(2))});
    }
    return tables;
}

QString quoted(const QString &name)
{
    QString escaped = name;
    return u'"' + escaped.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace datafile
