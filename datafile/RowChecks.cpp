#include "datafile/RowChecks.h"

#include "datafile/Groups.h"
#include "datafile/Tables.h"
#include "platform/data/engine/ColumnType.h"
#include "platform/runtime/Date.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

constexpr int mostOfAKind = 20; // further faults of one kind are counted, not told one by one

// The faults of one kind, the first ones told and the others counted.
class Kind
{
public:
    Kind(QStringList &faults, QString what) : m_faults(faults), m_what(std::move(what)) {}
    Kind(const Kind &) = delete;
    Kind &operator=(const Kind &) = delete;
    ~Kind()
    {
        if (m_count > mostOfAKind)
            m_faults << u"%1: %2 more"_s.arg(m_what).arg(m_count - mostOfAKind);
    }
    void tell(const QString &fault)
    {
        if (++m_count <= mostOfAKind)
            m_faults << fault;
    }

private:
    QStringList &m_faults;
    QString m_what;
    int m_count = 0;
};

QString shortForm(const QString &text)
{
    const QString line = text.left(60).simplified();
    return line.size() < text.size() ? line + u"..."_s : line;
}

template <class Number> bool isWhole(const data::Statement &row)
{
    return row.storage(0) == data::Statement::Storage::Integer &&
           row.integer(0) >= std::numeric_limits<Number>::min() && row.integer(0) <= std::numeric_limits<Number>::max();
}

// What a value has to look like to be read as one of the column's type; empty when the value does.
QString requiredForm(const data::Statement &row, data::ColumnType type)
{
    using Storage = data::Statement::Storage;
    const Storage storage = row.storage(0);
    switch (type) {
    case data::ColumnType::Date: {
        const QString text = QString::fromUtf8(row.text(0));
        return text.size() == 19 && runtime::Date::fromIsoText(text) ? QString() : u"a date as yyyy-mm-dd hh:mm:ss"_s;
    }
    case data::ColumnType::Currency:
        return data::storedAmount(row.text(0)) ? QString() : u"an amount as 1234.5"_s;
    case data::ColumnType::Boolean:
        return isWhole<qint16>(row) ? QString() : u"-1 or 0"_s;
    case data::ColumnType::Integer:
        return isWhole<qint16>(row) ? QString() : u"a whole number from -32768 to 32767"_s;
    case data::ColumnType::Long:
        return isWhole<qint32>(row) ? QString() : u"a whole number of 32 bits"_s;
    case data::ColumnType::Double:
        return storage == Storage::Real || storage == Storage::Integer ? QString() : u"a number"_s;
    case data::ColumnType::Binary:
        return storage == Storage::Blob ? QString() : u"bytes"_s;
    case data::ColumnType::Text:
    case data::ColumnType::Memo:
        return storage != Storage::Blob ? QString() : u"a text"_s;
    case data::ColumnType::Unknown:
        break;
    }
    return {};
}

void checkValues(const data::Database &file, QStringList &faults)
{
    for (const StoredTable &table : tablesOf(file)) {
        if (!table.hasRowIds)
            continue; // made by another tool, and no window reads it
        for (const StoredColumn &column : table.columns) {
            Kind kind(faults, u"column [%1].[%2]"_s.arg(table.name, column.name));
            // Only what can be wrong is looked at: a value of the class in which SQLite keeps good ones is read no
            // further for texts and bytes, which may be large.
            const char *mayBeWrong = data::isText(column.type)                 ? "'blob'"
                                     : column.type == data::ColumnType::Binary ? "'text', 'integer', 'real'"
                                                                               : "'blob', 'text', 'integer', 'real'";
            data::Statement rows =
                file.prepare(u"SELECT %1, rowid FROM %2 WHERE typeof(%1) IN (%3)"_s
                                 .arg(quoted(column.name), quoted(table.name), QString::fromLatin1(mayBeWrong))
                                 .toUtf8());
            while (rows.step()) {
                const QString form = requiredForm(rows, column.type);
                if (!form.isEmpty())
                    kind.tell(
                        u"row %1 of [%2]: \"%3\" in column [%4] is not of the column's kind; it has to be %5, or NULL"_s
                            .arg(QString::number(rows.integer(1)), table.name,
                                 shortForm(QString::fromUtf8(rows.text(0))), column.name, form));
            }
        }
    }
}

// A file is opened under its name and with its content.
void checkFiles(const data::Database &file, const QString &table, const QString &column, const QString &content,
                QStringList &faults)
{
    Kind kind(faults, u"names of files in [%1]"_s.arg(table));
    Kind empty(faults, u"files without content in [%1]"_s.arg(table));
    data::Statement rows = file.prepare(
        u"SELECT rowid, %1, %2 IS NULL FROM %3"_s.arg(quoted(column), quoted(content), quoted(table)).toUtf8());
    while (rows.step()) {
        const QString name = QString::fromUtf8(rows.text(1));
        if (!isPlainFileName(name))
            kind.tell(u"row %1 of [%2]: the file cannot be opened under its name \"%3\"; change [%4] to a name without "
                      u"\"/\" that is neither empty nor longer than 255 bytes"_s.arg(QString::number(rows.integer(0)),
                                                                                     table, shortForm(name), column));
        if (rows.integer(2) != 0)
            empty.tell(u"row %1 of [%2]: the file \"%3\" has no content; DELETE FROM %2 WHERE rowid = %1"_s.arg(
                QString::number(rows.integer(0)), table, shortForm(name)));
    }
}

void checkGroups(data::Database &file, QStringList &faults)
{
    for (const Initial &initial : initialsWithoutGroup(file)) {
        const QString whom = initial.names == 1
                                 ? u"\"%1\" is"_s.arg(shortForm(initial.example))
                                 : u"\"%1\" and %2 more are"_s.arg(shortForm(initial.example)).arg(initial.names - 1);
        faults << (initial.group.isEmpty()
                       ? whom + u" in no group of the explorers; change the name to begin with a letter or a digit"_s
                       : whom + u" in no group of the explorers; INSERT INTO NodeInformation (NodeName, NodeActive) "
                                u"VALUES ('%1', 1)"_s.arg(initial.group));
    }
}

// The record window finds the row of a person by the person's number and saves into it, so each person needs one.
void checkPersonsOfPage(const data::Database &file, const QString &page, QStringList &faults)
{
    const QString lacking =
        u"FROM \"Personal Information\" WHERE Active = 1 AND PersonalInformationId NOT IN "
        u"(SELECT PersonalInformationId FROM %1 WHERE PersonalInformationId IS NOT NULL)"_s.arg(quoted(page));
    data::Statement count = file.prepare((u"SELECT count(*), min(PersonalInformationId) "_s + lacking).toUtf8());
    if (count.step() && count.integer(0) > 0)
        faults
            << u"page \"%1\": no row in its table for %2 of the persons (the first is number %3), who cannot be saved; "
               u"INSERT INTO %4 (PersonalInformationId) SELECT PersonalInformationId %5"_s.arg(
                   page, QString::number(count.integer(0)), QString::number(count.integer(1)), quoted(page), lacking);
}

void checkPages(const data::Database &file, QStringList &faults)
{
    data::Statement pages = file.prepare("SELECT TabId, TabNam FROM TabInfo");
    while (pages.step()) {
        const QString page = QString::fromUtf8(pages.text(1));
        if (page.isEmpty()) {
            faults << u"page %1 of [TabInfo] has no name; give it the name of its table or delete the row"_s.arg(
                pages.integer(0));
        } else if (!file.hasTable(page.toUtf8())) {
            faults << u"page \"%1\" has no table; generate it in the designer (\"Generate Database\")"_s.arg(page);
        } else if (!file.declaredType(page.toUtf8(), "PersonalInformationId")) {
            faults << u"page \"%1\": its table lacks the column [PersonalInformationId]; ALTER TABLE %2 ADD COLUMN "
                      u"PersonalInformationId INTEGER"_s.arg(page, quoted(page));
        } else {
            checkPersonsOfPage(file, page, faults);
        }
    }
    data::Statement fields =
        file.prepare("SELECT TabNam, FieldName FROM FieldInfo JOIN TabInfo USING (TabId) ORDER BY TabNam, FieldName");
    while (fields.step()) {
        const QByteArray page = fields.text(0).toByteArray();
        const QByteArray field = fields.text(1).toByteArray();
        if (file.hasTable(page) && !file.declaredType(page, field))
            faults << u"page \"%1\": its table has no column for the field \"%2\"; generate it in the designer "
                      u"(\"Generate Database\")"_s.arg(QString::fromUtf8(page), QString::fromUtf8(field));
    }
}

} // namespace

bool isPlainFileName(const QString &name)
{
    return !name.isEmpty() && name != u"."_s && name != u".."_s && !name.contains(u'/') && !name.contains(QChar(0)) &&
           name.toUtf8().size() <= 255;
}

QStringList faultsOfRows(data::Database &file)
{
    QStringList faults;
    checkValues(file, faults);
    checkFiles(file, u"Attachments"_s, u"AttachmentsName"_s, u"Attachments"_s, faults);
    checkFiles(file, u"Resources"_s, u"DocumentName"_s, u"Document"_s, faults);
    checkGroups(file, faults);
    checkPages(file, faults);
    return faults;
}

} // namespace datafile
