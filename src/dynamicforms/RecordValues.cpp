#include "dynamicforms/RecordValues.h"

#include "platform/runtime/RuntimeError.h"
#include "shell/store/DataStore.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

using data::Recordset;
using runtime::Value;

namespace {

constexpr QStringView people = u"Personal Information";

QString personOf(QStringView table, qint16 recordId)
{
    return u"select * from ["_s + table.toString() + u"] where PersonalInformationId="_s + QString::number(recordId);
}

// Calls visit with the number, counted from 1, and the caption of each tab that has a table.
template <class Visit> void forEachTable(const QStringList &captions, Visit visit)
{
    for (int tab = 1; tab <= captions.size(); ++tab) {
        if (const QString &caption = captions[tab - 1]; caption != u"Resources")
            visit(tab, caption);
    }
}

void readRow(FieldRows &rows, const QString &caption, Recordset &record)
{
    for (int k = 0; k < rows.upperBound(); ++k) {
        if (rows[k].RowTabNam != caption)
            continue;
        if (Value value = record[rows[k].RowFieldName].Value(); !value.isNull())
            rows[k].RowValue = runtime::toText(std::move(value));
    }
}

void writeRows(const FieldRows &rows, QStringView caption, Recordset &record)
{
    for (int k = 0; k < rows.upperBound(); ++k) {
        if (rows[k].RowTabNam == caption)
            record[rows[k].RowFieldName].setValue(rows[k].RowValue);
    }
}

void writeBoxes(const QList<BoxValue> &boxes, Recordset &record)
{
    for (const BoxValue &box : boxes)
        record[box.name].setValue(box.text);
}

void writePage(const RecordPages &pages, int tab, Recordset &record)
{
    if (tab == pages.selected)
        writeBoxes(pages.boxes, record);
    else
        writeRows(pages.rows, pages.captions[tab - 1], record);
    record.UpdateBatch();
    record.Close();
}

// The key of the new person.
Value addToPeople(data::Connection &connection, const RecordPages &pages)
{
    Recordset person = openRows(connection, u"select * from [Personal Information]"_s);
    person.AddNew();
    if (pages.selectedCaption() != people)
        writeRows(pages.rows, people, person);
    else
        writeBoxes(pages.boxes, person);
    person.UpdateBatch();
    person.MoveLast();
    Value key = person[u"PersonalInformationId"].Value();
    person.Close();
    return key;
}

} // namespace

const QString &RecordPages::selectedCaption() const
{
    if (selected == 0)
        throw runtime::RuntimeError(runtime::ObjectNotSet);
    return captions[selected - 1];
}

void readPerson(FieldRows &rows, const QStringList &captions, qint16 recordId)
{
    data::Connection connection;
    openDataStore(connection);
    forEachTable(captions, [&](int, const QString &caption) {
        Recordset record = openRows(connection, personOf(caption, recordId));
        readRow(rows, caption, record);
        record.Close();
    });
}

void savePerson(const RecordPages &pages, qint16 recordId)
{
    data::Connection connection;
    openDataStore(connection);
    forEachTable(pages.captions, [&](int tab, const QString &caption) {
        Recordset record = openRows(connection, personOf(caption, recordId));
        writePage(pages, tab, record);
    });
    connection.Close();
}

void addPerson(const RecordPages &pages)
{
    data::Connection connection;
    openDataStore(connection);
    const Value key = addToPeople(connection, pages);
    forEachTable(pages.captions, [&](int tab, const QString &caption) {
        Recordset record = openRows(connection, u"select * from ["_s + caption + u']');
        record.AddNew();
        record[u"PersonalInformationId"].setValue(key);
        writePage(pages, tab, record);
    });
    connection.Close();
}

void markDeleted(qint16 recordId)
{
    data::Connection connection;
    openDataStore(connection);
    Recordset person = openRows(connection, personOf(people, recordId));
    person[u"Active"].setValue(Value(qint16(0)));
    person.UpdateBatch();
    person.Close();
    connection.Close();
}
