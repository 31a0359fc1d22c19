#include "datafile/Check.h"

#include "datafile/Progress.h"
#include "datafile/RowChecks.h"
#include "datafile/Schema.h"
#include "datafile/Upgrade.h"
#include "platform/data/engine/ColumnType.h"

#include <QMap>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

struct Column
{
    QByteArray name;
    QByteArray declaration;
    QByteArray defaultValue; // as SQL; empty for none
    bool isKey = false;
};

struct Table
{
    QByteArray name;
    bool givesNumbersOnce = false; // AUTOINCREMENT
    QMap<QByteArray, Column> columns;
};

// Keyed by the names in lower case, because SQLite compares names without regard to case.
struct Layout
{
    QMap<QByteArray, Table> tables;
    QMap<QByteArray, QByteArray> indexes;
};

// Where one of these is empty, the explorers, the note window, the login or the record window fail or show nothing.
constexpr std::array seededTables{"NodeInformation", "MemberType", "CategoryInfo", "Security", "TabInfo", "FieldInfo"};

Layout layoutOf(const data::Database &file)
{
    Layout layout;
    data::Statement columns =
        file.prepare("SELECT t.name, t.sql LIKE '%AUTOINCREMENT%', c.name, c.type, c.dflt_value, c.pk "
                     "FROM sqlite_master AS t, pragma_table_info(t.name) AS c WHERE t.type = 'table'");
    while (columns.step()) {
        const QByteArray tableName = columns.text(0).toByteArray();
        Table &table = layout.tables[tableName.toLower()];
        table.name = tableName;
        table.givesNumbersOnce = columns.integer(1) != 0;
        const QByteArray columnName = columns.text(2).toByteArray();
        table.columns[columnName.toLower()] = {columnName, columns.text(3).toByteArray(), columns.text(4).toByteArray(),
                                               columns.integer(5) != 0};
    }
    data::Statement indexes = file.prepare("SELECT name FROM sqlite_master WHERE type = 'index'");
    while (indexes.step()) {
        const QByteArray name = indexes.text(0).toByteArray();
        layout.indexes[name.toLower()] = name;
    }
    return layout;
}

// The layout of a new file, without the tables that SQLite adds for itself.
Layout expectedLayout()
{
    data::Database scratch;
    scratch.createInMemory();
    createTables(scratch);
    Layout layout = layoutOf(scratch);
    layout.tables.removeIf([](const auto &entry) { return entry.key().startsWith("sqlite_"); });
    return layout;
}

// A default that is a constant has to be equal. One that is the current date may be any expression, since a file can
// compute it in several ways.
bool serves(const QByteArray &actualDefault, const QByteArray &expectedDefault)
{
    bool isConstant = false;
    expectedDefault.toInt(&isConstant);
    return isConstant ? actualDefault == expectedDefault : !actualDefault.isEmpty();
}

void compareColumn(const Table &table, const Column &expected, const Column &actual, QStringList &faults)
{
    const QString place = u"[%1].[%2]"_s.arg(QString::fromUtf8(table.name), QString::fromUtf8(expected.name));
    if (data::columnTypeOfDeclaration(actual.declaration) != data::columnTypeOfDeclaration(expected.declaration))
        faults << u"column %1 is declared \"%2\" where \"%3\" is needed"_s.arg(
            place, QString::fromUtf8(actual.declaration), QString::fromUtf8(expected.declaration));
    if (!expected.defaultValue.isEmpty() && !serves(actual.defaultValue, expected.defaultValue))
        faults << u"column %1 lacks its default %2"_s.arg(place, QString::fromUtf8(expected.defaultValue));
    if (expected.isKey && !(actual.isKey && table.givesNumbersOnce))
        faults << u"column %1 is no key that gives out each number once"_s.arg(place);
}

void compareLayouts(const Layout &expected, const Layout &actual, QStringList &faults)
{
    for (auto table = expected.tables.cbegin(); table != expected.tables.cend(); ++table) {
        const auto found = actual.tables.constFind(table.key());
        if (found == actual.tables.cend()) {
            faults << u"table [%1] is missing"_s.arg(QString::fromUtf8(table->name));
            continue;
        }
        for (auto column = table->columns.cbegin(); column != table->columns.cend(); ++column) {
            const auto match = found->columns.constFind(column.key());
            if (match == found->columns.cend())
                faults << u"column [%1].[%2] is missing"_s.arg(QString::fromUtf8(table->name),
                                                               QString::fromUtf8(column->name));
            else
                compareColumn(*found, *column, *match, faults);
        }
    }
    for (auto index = expected.indexes.cbegin(); index != expected.indexes.cend(); ++index)
        if (!actual.indexes.contains(index.key()))
            faults << u"index [%1] is missing: lists will fill slowly"_s.arg(QString::fromUtf8(index.value()));
}

void checkSeedRows(const data::Database &file, const Layout &actual, QStringList &faults)
{
    for (const char *name : seededTables) {
        if (!actual.tables.contains(QByteArray(name).toLower()))
            continue; // compareLayouts has told that it is missing
        data::Statement row = file.prepare(QByteArray("SELECT 1 FROM ") + name + " LIMIT 1");
        if (!row.step())
            faults << u"table [%1] has no rows"_s.arg(QString::fromUtf8(name));
    }
}

void checkSoundness(const data::Database &file, QStringList &faults)
{
    data::Statement answer = file.prepare("PRAGMA integrity_check");
    while (answer.step()) {
        const QString line = QString::fromUtf8(answer.text(0));
        if (line != u"ok"_s)
            faults << u"integrity: "_s + line;
    }
}

QStringList layoutFaultsOfOpen(data::Database &file)
{
    stopOnSignals(file);
    QStringList faults;
    const Layout actual = layoutOf(file);
    compareLayouts(expectedLayout(), actual, faults);
    checkSeedRows(file, actual, faults);
    checkSoundness(file, faults);
    return faults;
}

} // namespace

QStringList faultsOfLayout(const QString &path)
{
    data::Database file;
    file.open(path);
    return layoutFaultsOfOpen(file);
}

QStringList faultsOf(const QString &path)
{
    data::Database file;
    file.open(path);
    QStringList faults = layoutFaultsOfOpen(file);
    const QString version = findingOfVersion(file, path);
    if (faults.isEmpty()) // otherwise a statement may name a table or column that is missing
        faults = faultsOfRows(file);
    if (!version.isEmpty())
        faults.prepend(version); // the upgrade may mend the others
    return faults;
}

} // namespace datafile
