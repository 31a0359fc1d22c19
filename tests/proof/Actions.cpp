#include "proof/Actions.h"

#include "datafile/Copies.h"
#include "datafile/MemberImport.h"
#include "dossier/DisplayMembers.h"
#include "dossier/FrmAddEditMember.h"
#include "dynamicforms/OpenDesigner.h"
#include "dynamicforms/OpenRecord.h"
#include "events/FrmAddEvent.h"
#include "events/frmMeeting.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/FrmEventExplorer.h"
#include "explorers/OpenExplorer.h"
#include "library/OpenLibrary.h"
#include "support/Drop.h"

using namespace Qt::Literals::StringLiterals;

namespace proof {

namespace {

DisplayMembers &dossier()
{
    return *desktop::showNew<DisplayMembers>([](DisplayMembers &window) {
        window.MemberId = 901;
        window.setMemberIdentification(runtime::Value(window.MemberId));
    });
}

// A box that could not be shown is not there.
void type(const OpenRecord &record, const QString &field, const QString &text)
{
    for (auto *box : record->Frame1->findChildren<QLineEdit *>()) {
        if (box->toolTip() == field)
            box->setText(text);
    }
}

Action deletion(const char *name, const char *list, const char *item)
{
    return {name, [list, item](const DataFolder &) {
                DisplayMembers &window = dossier();
                auto &lines = *child<desktop::ListView>(window, list);
                lines.setCurrentItem(&lines.ListItems(1));
                child<QAction>(window, item)->trigger();
            }};
}

template <class Window> void deleteGroup(const std::function<void(OpenExplorer<Window> &)> &remove)
{
    OpenExplorer<Window> explorer;
    desktop::setErrorReport({}); // the program's own, which ends it
    explorer.clickGroup(u"Z"_s);
    explorer.list().selectAll();
    remove(explorer);
}

void design(const std::function<void(DatabaseGenerator &)> &finish)
{
    OpenDesigner designer;
    designer.addTab(u"Proof"_s, u"Of faults"_s);
    designer.clickTab(designer.window.TabStrip1->Count());
    designer.addField(u"First"_s);
    designer.addField(u"Second"_s);
    finish(designer.window);
}

} // namespace

void prepare(const DataFolder &folder)
{
    folder.execute("INSERT INTO MemberInformation (MemberId, MemberTypeId, FirstName, LastName, Active) VALUES"
                   " (901, 1, 'Ann', 'Zander', -1), (902, 1, 'Bea', 'Zoller', -1);"
                   "INSERT INTO EmployerInformation (MemberId, Name) VALUES (901, 'Works');"
                   "INSERT INTO MemberInterest (MemberId, Interest) VALUES (901, 'Chess'), (901, 'Go');"
                   "INSERT INTO Contributions (MemberId, ContributionAmount) VALUES (901, 12.5), (901, 7);"
                   "INSERT INTO EventInformation (EventName, Active) VALUES ('Zoo', -1), ('Zither night', -1);"
                   "INSERT INTO EventMemberInfo (MemberId, EventName) VALUES (901, 'Zoo'), (901, 'Fair');"
                   "INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
                   " (901, 'a.txt', 1, x'6100'), (901, 'x.txt', 1, x'6200');"
                   "INSERT INTO MeetingInfo (MemberId, MeetingDate) VALUES (901, '2026-01-02 00:00:00'),"
                   " (901, '2026-01-03 00:00:00');");
    for (const QString &name : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s})
        folder.write(name, QByteArray(9000, 'x')); // several pages
    folder.write(u"people.csv"_s, "FirstName,LastName,EmployerName\r\nCy,Zorn,Works\r\nDi,Zweig,\r\n");
}

const QList<Action> &actions()
{
    static const QList<Action> all{
        {"save a member",
         [](auto &) {
             const FrmAddEditMember &window = *desktop::showNew<FrmAddEditMember>();
             for (const char *box : {"txtMemberFirstName", "txtMemberLastName", "txtEmployerName"})
                 child<QLineEdit>(window, box)->setText(u"Zimmer"_s);
             for (const QString &interest : {u"Chess"_s, u"Go"_s}) {
                 window.Frame3->cmdAddInterest->click();
                 window.Frame3->txtInterest->setText(interest);
                 window.Frame3->cmdAddInterest->click();
             }
             window.Command1->click();
         }},
        {"update a member",
         [](auto &) {
             const DisplayMembers &window = dossier();
             for (const char *box : {"txtLastName", "txtAddressOne", "txtEmployerName"})
                 child<QLineEdit>(window, box)->setText(u"Zenger"_s);
             for (const char *button : {"butEditMember", "butEditEmployer"})
                 child<QPushButton>(window, button)->click();
         }},
        {"add an interest",
         [](auto &) {
             const InterestsTab &tab = *dossier().Frame3;
             tab.butAddInterest->click();
             tab.txtInterest->setText(u"Sailing"_s);
             tab.cmdAddInterest->click();
         }},
        {"add a contribution",
         [](auto &) {
             const ContributionsTab &tab = *dossier().Frame5;
             tab.butAddContributions->click();
             tab.txtContribution->setText(u"25"_s);
             tab.cmdSaveContribution->click();
         }},
        {"assign an event",
         [](auto &) {
             const AssignedEventsTab &tab = *dossier().Frame7;
             tab.butAssignEvent->click();
             tab.lstEventSelect->setText(u"Zoo"_s);
             tab.CmdEventSave->click();
         }},
        {"drop three files",
         [](const DataFolder &folder) {
             QMimeData files;
             files.setUrls({QUrl::fromLocalFile(folder.path(u"a.txt"_s)), QUrl::fromLocalFile(folder.path(u"b.txt"_s)),
                            QUrl::fromLocalFile(folder.path(u"c.txt"_s))});
             dropOn(*dossier().Frame4->lstAttachement->viewport(), files);
         }},
        {"save an event",
         [](auto &) {
             const FrmAddEvent &window = *desktop::showNew<FrmAddEvent>();
             window.txtEventName->setText(u"Zero day"_s);
             window.txtEventDescription->setText(u"Nothing"_s);
             window.cmdSave->click();
         }},
        {"save a note",
         [](auto &) {
             const frmMeeting &window = *desktop::showNew<frmMeeting>([](frmMeeting &note) {
                 note.AddView = true;
                 note.MemberId = u"901"_s;
             });
             window.txtEventPurpose->setText(u"Dues"_s);
             window.cmdSave->click();
         }},
        {"add and rename in the library",
         [](auto &) {
             OpenLibrary library;
             for (const char *item : {"mnuAddCat", "mnuAddlib"})
                 library.choose(item);
             library.select(2);
             library.rename(u"Renamed"_s);
             library.choose("mnuAddCatagory");
             library.choose("mnuSave");
         }},
        {"remove a node of the library",
         [](auto &) {
             OpenLibrary library;
             library.select(library.tree().Nodes.Count());
             library.choose("mnuRemoveCat");
             library.choose("mnuSave");
         }},
        {"upload a document",
         [](const DataFolder &folder) {
             OpenLibrary library;
             library.press(2);
             const FileAnswers files({folder.path(u"a.txt"_s)});
             library.choose("mnuUpLoadDocument");
         }},
        {"save a layout", [](auto &) { design([](auto &window) { window.cmdSave->click(); }); }},
        {"generate a table", [](auto &) { design([](auto &window) { window.cmdGenerateDatebase->click(); }); }},
        {"save a record",
         [](auto &) {
             const OpenRecord record;
             OpenRecord::press(record->cmdEdit);
             type(record, u"Title"_s, u"Dr."_s);
             record.turnTo(u"Volunteer Profile"_s);
             type(record, u"Skills"_s, u"Chess"_s);
             OpenRecord::press(record->cmdDelete); // which says "Save" now
         }},
        {"delete a record", [](auto &) { OpenRecord::press(OpenRecord()->cmdDelete); }},
        deletion("delete an attachment", "lstAttachement", "MnuDeleteAttachment"),
        deletion("delete a contribution", "lstContributions", "mnuDeleteContribution"),
        deletion("delete an assignment", "lstEvent", "mnuDeleteEvent"),
        deletion("delete an interest", "lstInterest", "MnuDeleteInterest"),
        deletion("delete a note", "lstPhoneNotes", "mnuDeleteNote"),
        {"delete members",
         [](auto &) {
             deleteGroup<FrmDataBaseExplorer>(
                 [](auto &explorer) { QTest::keyClick(&explorer.list(), Qt::Key_Delete); });
         }},
        {"delete events",
         [](auto &) { deleteGroup<FrmEventExplorer>([](auto &explorer) { explorer.clickDelete(); }); }},
        {"back up",
         [](const DataFolder &folder) {
             QFile::remove(folder.path(u"copy.mdb"_s));
             datafile::Progress progress({});
             datafile::backUp(folder.file(), folder.path(u"copy.mdb"_s), progress);
         }},
        {"import members",
         [](const DataFolder &folder) {
             datafile::Progress progress({});
             datafile::importMembers(folder.file(), folder.path(u"people.csv"_s), {}, progress);
         }},
    };
    return all;
}

} // namespace proof
