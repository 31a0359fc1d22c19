#include "platform/data/Catalog.h"

#include "platform/data/engine/Database.h"
#include "platform/data/engine/Definition.h"
#include "platform/runtime/ProviderError.h"

namespace data {

namespace {

std::shared_ptr<Database> opened(const std::weak_ptr<Database> &catalog)
{
    auto file = catalog.lock();
    if (!file)
        throw provider::objectError(provider::NoConnection, "ADOX.Tables");
    return file;
}

// The connection of the catalog that was last connected by this string, while it is open; else a new one.
std::shared_ptr<Connection> sharedConnection(const QString &connectionString)
{
    static QString lastString;
    static std::weak_ptr<Connection> last;
    if (auto open = last.lock(); open && connectionString == lastString)
        return open;
    auto connection = std::make_shared<Connection>();
    connection->Open(connectionString);
    lastString = connectionString;
    last = connection;
    return connection;
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
    TableDefinition &added = *table.m_definition;
    storeTable(*file, added);
    for (const auto &column : added.columns)
        column->isStored = true;
    added.isStored = true;
    added.catalog = file;
}

void Catalog::setActiveConnection(const QString &connectionString)
{
    m_connection = sharedConnection(connectionString);
}

const std::shared_ptr<Database> &Catalog::database(const char *source) const
{
    if (!m_connection)
        throw provider::objectError(provider::NoConnection, source);
    return m_connection->m_database;
}

Tables Catalog::Tables() const
{
    return data::Tables(database("ADOX.Tables"));
}

} // namespace data
