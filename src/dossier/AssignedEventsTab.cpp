#include "dossier/AssignedEventsTab.h"

#include "dossier/RowDeletion.h"
#include "parts/ListedColumns.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <array>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using desktop::ListBox;
using desktop::TextBox;

namespace {

// "Acutal" is spelled so on the screen and kept, as every text that users know.
constexpr std::array eventColumns{
    ListedColumn{.header = u"Event Id", .column = u"EventMemberInfoId"},
    ListedColumn{.header = u"Event Name", .column = u"EventName", .width = 2100},
    ListedColumn{.header = u"Acutal Time Started", .column = u"EventActualStartTime", .width = 2100},
    ListedColumn{.header = u"Actual Time Finished", .column = u"EventActualEndTime", .width = 2100},
    ListedColumn{.header = u"Actual Date", .column = u"EventActualDate"},
    ListedColumn{.header = u"Event Comment", .column = u"EventComments"},
};

} // namespace

AssignedEventsTab::AssignedEventsTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame7", u"Member's Events"_s), lstEvent(new desktop::ListView(this, u"lstEvent")),
      m_dossier(dossier), m_area(*this, *lstEvent)
{
    setUpList();
    setUpEntry();
    setUpMenu();
    using desktop::on;
    on(butAssignEvent, &QPushButton::clicked, this, &AssignedEventsTab::butAssignEvent_Click);
    on(CmdEventSave, &QPushButton::clicked, this, &AssignedEventsTab::CmdEventSave_Click);
    on(cmdEventCancel, &QPushButton::clicked, this, &AssignedEventsTab::cmdEventCancel_Click);
}

void AssignedEventsTab::setUpList()
{
    lstEvent->setAccessibleName(u"Assigned events"_s);
    setUpHeaders(*lstEvent, eventColumns);
}

void AssignedEventsTab::setUpEntry()
{
    butAssignEvent = m_area.addBeginningButton(u"butAssignEvent", u"Assign an Event"_s);
    std::tie(lblEventSelect, lstEventSelect) =
        m_area.addRow<ListBox>(u"lblEventSelect", u"Event"_s, u"lstEventSelect", EntryArea::Lines::Several);
    lstEventSelectId = new ListBox(this, u"lstEventSelectId");
    lstEventSelectId->setAccessibleName(u"Event Id"_s);
    m_area.addUnderLastBox(*lstEventSelectId);
    std::tie(lblEventActualTimeStarted, txtEventActualTimeStarted) =
        m_area.addRow<TextBox>(u"lblEventActualTimeStarted", u"Actual Time Started"_s, u"txtEventActualTimeStarted");
    std::tie(lblEventActualTimeFinished, txtEventActualTimeFinished) =
        m_area.addRow<TextBox>(u"lblEventActualTimeFinished", u"Actual Time FInished"_s, u"txtEventActualTimeFinished");
    std::tie(LblEventActualDate, txtEventActualDate) =
        m_area.addRow<TextBox>(u"LblEventActualDate", u"Actual Date"_s, u"txtEventActualDate");
    std::tie(lblEventComments, txtEventComments) =
        m_area.addRow<TextBox>(u"lblEventComments", u"Comments"_s, u"txtEventComments");
    CmdEventSave = m_area.addEndingButton(u"CmdEventSave", u"Save"_s);
    cmdEventCancel = m_area.addEndingButton(u"cmdEventCancel", u"Cancel"_s);
    butCloseEvent = m_area.addCloseButton(u"butCloseEvent", u"Close"_s);
    m_area.beginBrowsing();
    lblEventActualTimeFinished->show(); // users know it so; the end of the first entry hides it too
}

void AssignedEventsTab::setUpMenu()
{
    mnuEventsOptions = new desktop::PopupMenu(this, u"mnuEventsOptions", u"Event Options"_s);
    QAction *edit = mnuEventsOptions->addItem(u"mnuEditEvent", u"Edit"_s);
    mnuEventsOptions->addLine(u"mnu1");
    QAction *remove = mnuEventsOptions->addItem(u"mnuDeleteEvent", u"Delete"_s);
    desktop::on(edit, &QAction::triggered, this, &AssignedEventsTab::mnuEditEvent_Click);
    desktop::on(remove, &QAction::triggered, this, &AssignedEventsTab::mnuDeleteEvent_Click);
    mnuEventsOptions->popUpOver(*lstEvent);
}

void AssignedEventsTab::loadEventChoices()
{
    CLsDataBaseConnection store;
    data::Recordset events = store.CreateRecordset(u"SELECT * FROM EventInformation"_s);
    lstEventSelect->clear();
    lstEventSelectId->clear();
    for (; !events.Eof(); events.MoveNext()) {
        lstEventSelect->addItem(runtime::toText(events[u"EventName"].Value()));
        lstEventSelectId->addItem(runtime::toText(events[u"EventIdentification"].Value()));
    }
    events.Close();
    store.DbClose();
}

void AssignedEventsTab::loadAssignedEvents()
{
    CLsDataBaseConnection store;
    data::Recordset events =
        store.CreateRecordset(u"SELECT * FROM EventMemberInfo WHERE(MemberId="_s + m_dossier.member() + u")"_s);
    lstEvent->setEnabled(true);
    fillList(*lstEvent, events, u"EventMemberInfoId", eventColumns, Keyed::LinesWithFirstCell);
    events.Close();
    store.DbClose();
}

void AssignedEventsTab::butAssignEvent_Click()
{
    m_area.enter();
}

// The start goes into the date's box and the date into the start's, so that saving without exchanging them exchanges
// them in the row. It is kept so because users know it and put the two right by hand.
void AssignedEventsTab::mnuEditEvent_Click()
{
    const desktop::ListItem &item = *lstEvent->SelectedItem();
    const auto text = [&item](QStringView column) { return textOf(item, eventColumns, column); };
    lstEventSelect->setText(text(u"EventName"));
    txtEventActualDate->setText(text(u"EventActualStartTime"));
    txtEventActualTimeFinished->setText(text(u"EventActualEndTime"));
    txtEventActualTimeStarted->setText(text(u"EventActualDate"));
    txtEventComments->setText(text(u"EventComments"));
    m_area.enter();
    CmdEventSave->Tag = item.Tag;
}

QString AssignedEventsTab::updateStatement(const QString &key) const
{
    return u"UPDATE EventMemberInfo SET EventName = '"_s + lstEventSelect->Text() + u"', EventActualStartTime = '"_s +
           txtEventActualTimeStarted->text() + u"', EventActualEndTime = '"_s + txtEventActualTimeFinished->text() +
           u"',"_s + u" EventActualDate = '"_s + txtEventActualDate->text() + u"', EventComments = '"_s +
           txtEventComments->text() + u"' WHERE (EventMemberInfoId ="_s + key + u");"_s;
}

QString AssignedEventsTab::insertStatement() const
{
    return u"INSERT INTO EventMemberInfo (MemberId, EventName, "_s + u" EventActualStartTime, EventActualEndTime, "_s +
           u" EventActualDate, EventComments) values ("_s + m_dossier.member() + u",'"_s + lstEventSelect->Text() +
           u"','"_s + txtEventActualTimeStarted->text() + u"','"_s + txtEventActualTimeFinished->text() + u"','"_s +
           txtEventActualDate->text() + u"','"_s + txtEventComments->text() + u"')"_s;
}

void AssignedEventsTab::CmdEventSave_Click()
{
    if (lstEventSelect->Text().isEmpty()) {
        desktop::MsgBox(u"Invalid event name"_s, desktop::vbCritical, u"Tolmark"_s);
        return;
    }
    const QString key = std::exchange(CmdEventSave->Tag, {});
    m_dossier.run(key.isEmpty() ? insertStatement() : updateStatement(key));
    browse();
    loadAssignedEvents();
}

void AssignedEventsTab::cmdEventCancel_Click()
{
    browse();
    CmdEventSave->Tag.clear();
}

void AssignedEventsTab::browse()
{
    for (TextBox *box : {txtEventActualTimeStarted, txtEventActualTimeFinished, txtEventActualDate, txtEventComments})
        box->clear();
    m_area.browse();
}

void AssignedEventsTab::mnuDeleteEvent_Click()
{
    deleteSelectedRow(m_dossier, *lstEvent,
                      {u"Warning you are about to delete the selected event",
                       u"DELETE EventMemberInfoId FROM EventMemberInfo WHERE (EventMemberInfoId =", u"Event deleted",
                       RowDeletion::Order::MessageThenRefresh},
                      [this] { loadAssignedEvents(); });
}
