#include "platform/data/Catalog.h"

#include "platform/data/Definition.h"
#include "platform/data/ProviderError.h"

namespace data {

namespace {

std::shared_ptr<Database> opened(const std::weak_ptr<Database> &catalog)
{
    auto file = catalog.lock();
    if (!file)
        throw objectError(NoConnection, "ADOX.Tables");
    return file;
}

} // namespace

std::vector<Table>::const_iterator Tables::begin()
{
    m_enumerated.clear();
    for (auto &table : storedTables(opened(m_file)))
        m_enumerated.push_back(Table(std::move(table)));
    return m_enumerated.cbegin();
}

void Tables::Append(const Table &table) const
{
    const auto file = opened(m_file);
    Table::Definition &added = *table.m_definition;
    storeTable(*file, added);
    for (const auto &column : added.columns)
        column->isStored = true;
    added.isStored = true;
    added.catalog = file;
}

void Catalog::setActiveConnection(const QString &connectionString)
{
    Connection connection;
    connection.Open(connectionString);
    m_connection = std::move(connection);
}

Tables Catalog::Tables() const
{
    return data::Tables(opened(database()));
}

} // namespace data
