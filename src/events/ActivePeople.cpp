#include "events/ActivePeople.h"

#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

QList<runtime::Value> listActivePeople(desktop::ListBox &list)
{
    CLsDataBaseConnection connection;
    data::Recordset people = connection.CreateRecordset(u"select * from [Personal Information] Where Active = 1"_s);
    list.clear();
    QList<runtime::Value> ids;
    const auto name = [&people](QStringView column) { return runtime::joinedText(people[column].Value()); };
    for (; !people.Eof(); people.MoveNext()) {
        ids << people[u"PersonalInformationId"].Value();
        list.addItem(name(u"Last Name") + u' ' + name(u"Middle Name") + u' ' + name(u"First Name"));
    }
    people.Close();
    connection.DbClose();
    return ids;
}
