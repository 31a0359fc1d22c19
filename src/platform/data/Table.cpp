#include "platform/data/Table.h"

#include "platform/data/Catalog.h"
#include "platform/data/engine/Definition.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <array>
#include <utility>

namespace data {

namespace {

// Refuses a change of what is stored: it keeps its name, type and properties.
template <class Definition> Definition &changeable(const std::shared_ptr<Definition> &definition)
{
    if (definition->isStored)
        throw refusedProperty();
    return *definition;
}

std::shared_ptr<Database> fileOf(const TableDefinition &table)
{
    auto file = table.catalog.lock();
    if (!file)
        throw provider::objectError(provider::NoConnection, "ADOX.Table");
    return file;
}

std::vector<std::shared_ptr<ColumnDefinition>> columnsOf(const TableDefinition &table)
{
    return table.isStored ? storedColumns(fileOf(table), table.name) : table.columns;
}

std::shared_ptr<ColumnDefinition> columnNamed(const TableDefinition &table, const QString &name)
{
    const auto found = [&name](const auto &columns) {
        const auto at =
            std::ranges::find_if(columns, [&](const auto &column) { return isSameName(column->name, name); });
        return at == columns.end() ? nullptr : *at;
    };
    return table.isStored ? found(storedColumns(fileOf(table), table.name)) : found(table.columns);
}

} // namespace

Column::Column() : m_definition(std::make_shared<ColumnDefinition>()) {}
Column::Column(std::shared_ptr<ColumnDefinition> definition) : m_definition(std::move(definition)) {}

QString Column::Name() const
{
    return m_definition->name;
}

void Column::setName(const QString &name)
{
    changeable(m_definition).name = name;
}

int Column::Type() const
{
    return m_definition->type;
}

void Column::setType(int type)
{
    changeable(m_definition).type = type;
}

void Column::setParentCatalog(const Catalog &catalog)
{
    m_definition->catalog = catalog.database("ADOX.Catalog");
}

Properties Column::Properties() const
{
    return data::Properties(m_definition);
}

Properties::Properties(std::shared_ptr<ColumnDefinition> column) : m_column(std::move(column)) {}

Property Properties::Item(QStringView name) const
{
    using Kind = Property::Kind;
    constexpr std::array names{std::pair(u"AutoIncrement", Kind::AutoIncrement), std::pair(u"Default", Kind::Default),
                               std::pair(u"Nullable", Kind::Nullable), std::pair(u"Required", Kind::Required)};
    const auto table = m_column->table.lock();
    const bool hasCatalog = !m_column->catalog.expired() || (table && !table->catalog.expired());
    for (const auto &[known, kind] : names) {
        if (hasCatalog && name.compare(QStringView(known), Qt::CaseInsensitive) == 0)
            return {m_column, kind};
    }
    throw provider::objectError(provider::NoSuchItem, "ADOX.Properties");
}

Property::Property(std::shared_ptr<ColumnDefinition> column, Kind kind) : m_column(std::move(column)), m_kind(kind) {}

runtime::Value Property::Value() const
{
    switch (m_kind) {
    case Kind::Default:
        break;
    case Kind::AutoIncrement:
        return runtime::Value(m_column->isAutoIncrement);
    case Kind::Nullable:
        return runtime::Value(!m_column->isRequired);
    case Kind::Required:
        return runtime::Value(m_column->isRequired);
    }
    return m_column->defaultExpression ? runtime::Value(*m_column->defaultExpression) : runtime::Value();
}

void Property::setValue(const runtime::Value &value)
{
    ColumnDefinition &column = changeable(m_column);
    if (m_kind == Kind::Default ? !value.is<QString>() : !value.is<bool>())
        throw provider::objectError(provider::WrongArguments, "ADOX.Property");
    switch (m_kind) {
    case Kind::Default:
        column.defaultExpression = value.get<QString>();
        break;
    case Kind::AutoIncrement:
        column.isAutoIncrement = value.get<bool>();
        break;
    case Kind::Nullable:
        column.isRequired = !value.get<bool>();
        break;
    case Kind::Required:
        column.isRequired = value.get<bool>();
        break;
    }
}

Table::Table() : m_definition(std::make_shared<TableDefinition>()) {}
Table::Table(std::shared_ptr<TableDefinition> definition) : m_definition(std::move(definition)) {}

QString Table::Name() const
{
    return m_definition->name;
}

void Table::setName(const QString &name)
{
    changeable(m_definition).name = name;
}

QString Table::Type() const
{
    return m_definition->type;
}

void Table::setParentCatalog(const Catalog &catalog)
{
    changeable(m_definition).catalog = catalog.database("ADOX.Catalog");
}

Columns Table::Columns() const
{
    return data::Columns(m_definition);
}

Columns::Columns(std::shared_ptr<TableDefinition> table) : m_table(std::move(table)) {}

std::vector<Column>::const_iterator Columns::begin()
{
    m_enumerated.clear();
    for (auto &column : columnsOf(*m_table))
        m_enumerated.push_back(Column(std::move(column)));
    return m_enumerated.cbegin();
}

Column Columns::Item(QStringView name) const
{
    auto column = columnNamed(*m_table, name.toString());
    if (!column)
        throw provider::objectError(provider::NoSuchItem, "ADOX.Columns");
    return Column(std::move(column));
}

void Columns::Append(const QString &name, int type, int definedSize) const
{
    Column column;
    column.setName(name);
    Append(column, type, definedSize);
}

void Columns::Append(const Column &column, int type, int) const
{
    const auto &added = column.m_definition;
    const bool isRepeated = columnNamed(*m_table, added->name) != nullptr;
    if (added->isStored || !added->table.expired() || (isRepeated && !m_table->isStored))
        throw provider::objectError(provider::AlreadyInCollection, "ADOX.Columns");
    if (isRepeated)
        throw provider::error(
            provider::DuplicateColumn,
            QStringLiteral("Field '%1' already exists in table '%2'.").arg(added->name, m_table->name));
    added->type = type;
    if (m_table->isStored) {
        storeColumn(*fileOf(*m_table), *m_table, *added);
        added->isStored = true;
    } else {
        m_table->columns.push_back(added);
    }
    added->table = m_table;
}

} // namespace data
