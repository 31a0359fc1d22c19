#include "datafile/Upgrade.h"

#include "datafile/Copies.h"
#include "datafile/Groups.h"
#include "datafile/Schema.h"
#include "datafile/Tables.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

[[noreturn]] void refuse(const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, text);
}

bool holds(const data::Database &file, const QString &query)
{
    data::Statement row = file.prepare(query.toUtf8());
    return row.step();
}

QString literal(QString text)
{
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

// ALTER TABLE adds no key and no default that is computed.
void addColumn(data::Database &file, const QString &table, const QString &column, const data::Statement &declared)
{
    const QString type = QString::fromUtf8(declared.text(2));
    const QString defaultValue = QString::fromUtf8(declared.text(3));
    if (declared.integer(4) != 0 || defaultValue.contains(u'('))
        refuse(u"column [%1].[%2] is missing and cannot be added to a table that stands"_s.arg(table, column));
    QString sql = u"ALTER TABLE %1 ADD COLUMN %2 %3"_s.arg(quoted(table), quoted(column), type);
    if (type.endsWith(u"TEXT"_s))
        sql += u" COLLATE NOCASE"_s; // as every text of schema.sql
    if (!defaultValue.isEmpty())
        sql += u" DEFAULT "_s + defaultValue;
    file.execute(sql.toUtf8());
}

// Step 1: columns and indexes of the schema that are missing, whatever the reason.
void addWhatIsMissing(data::Database &file)
{
    data::Database model;
    model.createInMemory();
    createTables(model);
    data::Statement declared =
        model.prepare("SELECT t.name, c.name, c.type, c.dflt_value, c.pk FROM sqlite_master AS t, "
                      "pragma_table_info(t.name) AS c WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite%'");
    while (declared.step()) {
        const QString table = QString::fromUtf8(declared.text(0));
        const QString column = QString::fromUtf8(declared.text(1));
        if (!holds(file, u"SELECT 1 FROM pragma_table_info(%1)"_s.arg(literal(table))))
            refuse(u"table [%1] is missing: this is no data file that can be upgraded"_s.arg(table));
        if (!holds(file, u"SELECT 1 FROM pragma_table_info(%1) WHERE name = %2 COLLATE NOCASE"_s.arg(literal(table),
                                                                                                     literal(column))))
            addColumn(file, table, column, declared);
    }
    data::Statement indexes =
        model.prepare("SELECT name, sql FROM sqlite_master WHERE type = 'index' AND sql NOT NULL");
    while (indexes.step())
        if (!holds(file, u"SELECT 1 FROM sqlite_master WHERE type = 'index' AND name = %1 COLLATE NOCASE"_s.arg(
                             literal(QString::fromUtf8(indexes.text(0))))))
            file.execute(indexes.text(1).toByteArray());
}

// Step 2: the list of documents is read from the index alone, and every name is in a group of the explorers.
void coverDocumentsAndNames(data::Database &file)
{
    file.execute("DROP INDEX IF EXISTS Resources_ObjectIndex; CREATE INDEX Resources_ObjectIndex "
                 "ON Resources (ObjectIndex, DocumentId, DocumentName, DocumentDate, DocuemntVersion)");
    addMissingGroups(file);
}

struct Step
{
    int version; // that the file has behind it
    void (*run)(data::Database &file);
};

// In order. The first one serves every older file, since a file of version 1 may lack a column too.
constexpr std::array steps{Step{1, addWhatIsMissing}, Step{2, coverDocumentsAndNames}};

// Ends the transaction in which the file was copied.
void runSteps(data::Database &file, Progress &progress)
{
    const int before = versionOf(file);
    for (const Step &step : steps)
        if (step.version == 1 || step.version > before)
            step.run(file);
    file.execute("PRAGMA user_version = " + QByteArray::number(presentVersion()));
    progress.at(1, 1); // the last moment at which Ctrl-C leaves everything as it was
    file.execute("COMMIT");
}

} // namespace

int versionOf(const data::Database &file)
{
    data::Statement version = file.prepare("PRAGMA user_version");
    version.step();
    return int(version.integer(0));
}

int presentVersion()
{
    return steps.back().version;
}

QString findingOfVersion(const data::Database &file, const QString &path)
{
    const int version = versionOf(file);
    if (version == presentVersion())
        return {};
    const QString numbers = u"version %1, the present one is %2: "_s.arg(version).arg(presentVersion());
    return numbers + (version > presentVersion() ? u"a newer Tolmark made the file and has the tool for it"_s
                                                 : u"tolmark-datafile upgrade %1 brings it there"_s.arg(path));
}

QString upgrade(const QString &path, Progress &progress)
{
    data::Database file;
    file.open(path);
    stopOnSignals(file);
    const int version = versionOf(file);
    if (version == presentVersion())
        return {};
    if (version > presentVersion())
        refuse(findingOfVersion(file, path));
    refuseFileInUse(path);
    QString old = datedName(QFileInfo(path).canonicalFilePath());
    file.execute("BEGIN IMMEDIATE"); // nobody changes the file after it was copied
    backUp(path, old, progress);
    try {
        runSteps(file, progress);
    } catch (...) {
        file.close(); // rolls the steps back
        QFile::remove(old);
        throw;
    }
    return old;
}

} // namespace datafile
