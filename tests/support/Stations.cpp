#include "support/Stations.h"

#include "dossier/DisplayMembers.h"
#include "dossier/FrmAddEditMember.h"
#include "dossier/frmAddInterest.h"
#include "dynamicforms/DatabaseGenerator.h"
#include "dynamicforms/DisplayInformation.h"
#include "dynamicforms/frmOpenRecord.h"
#include "events/FrmEventCalendar.h"
#include "events/frmMeeting.h"
#include "events/frmSelectClient.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/FrmEventExplorer.h"
#include "library/frmDocumentExp.h"
#include "search/frmFindInfo.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"
#include "shell/users/frmNewUser.h"
#include "shell/users/frmOptions.h"
#include "shell/users/frmTip.h"
#include "support/Dialogs.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using desktop::showNew;

template <class Window> QWidget *opened()
{
    return showNew<Window>();
}

QWidget *dossierAt(int page)
{
    auto *dossier = showNew<DisplayMembers>([](DisplayMembers &window) {
        window.MemberId = 1;
        window.setCaption(u"Tolmark Member Information : Abigail Rose Adams"_s);
    });
    dossier->SSTab1->setCurrentIndex(page);
    return dossier;
}

QWidget *enteringAt(int page, const char *button)
{
    QWidget *dossier = dossierAt(page);
    child<QPushButton>(*dossier, button)->click();
    return dossier;
}

QWidget *newMemberAt(int page)
{
    auto *window = showNew<FrmAddEditMember>();
    window->SSTab1->setCurrentIndex(page);
    return window;
}

QWidget *recordAt(int tab, const QString &mode = {})
{
    auto *record = showNew<DisplayInformation>([&mode](DisplayInformation &window) {
        window.RecordId = 2;
        window.EditMode = mode;
        window.WindowTitle = u"Ashworth B. Helen"_s;
    });
    record->TabStrip1->setSelectedItem(tab < 0 ? record->TabStrip1->Count() + 1 + tab : tab);
    return record;
}

QWidget *explorerWithRows(QWidget *explorer)
{
    auto *tree = child<desktop::TreeView>(*explorer, "TreClassView");
    tree->setCurrentItem(&tree->Nodes(1));
    QTest::keyClick(tree, Qt::Key_Down);
    return explorer;
}

constexpr Station all[] = {
    {"login", []() -> QWidget * { return &frmLogin::shared(); }},
    {"member explorer", opened<FrmDataBaseExplorer>},
    {"member explorer with rows", [] { return explorerWithRows(showNew<FrmDataBaseExplorer>()); }},
    {"event explorer", opened<FrmEventExplorer>},
    {"event explorer with rows", [] { return explorerWithRows(showNew<FrmEventExplorer>()); }},
    {"new member", [] { return newMemberAt(0); }},
    {"new member, employer", [] { return newMemberAt(1); }},
    {"new member, interests", [] { return newMemberAt(2); }},
    {"dossier, member", [] { return dossierAt(0); }},
    {"dossier, employer", [] { return dossierAt(1); }},
    {"dossier, events", [] { return dossierAt(2); }},
    {"dossier, assigning an event", [] { return enteringAt(2, "butAssignEvent"); }},
    {"dossier, contributions", [] { return dossierAt(3); }},
    {"dossier, adding a contribution", [] { return enteringAt(3, "butAddContributions"); }},
    {"dossier, attachments", [] { return dossierAt(4); }},
    {"dossier, interests", [] { return dossierAt(5); }},
    {"dossier, adding an interest", [] { return enteringAt(5, "butAddInterest"); }},
    {"dossier, notes", [] { return dossierAt(6); }},
    {"interest", opened<frmAddInterest>},
    {"event", opened<FrmAddEvent>},
    {"calendar", opened<FrmEventCalendar>},
    {"new note", []() -> QWidget * { return showNew<frmMeeting>([](frmMeeting &note) { note.AddView = true; }); }},
    {"stored note", opened<frmMeeting>},
    {"person picker", opened<frmSelectClient>},
    {"library, manager",
     []() -> QWidget * { return showNew<frmDocumentExp>([](frmDocumentExp &w) { w.adminFunction = true; }); }},
    {"library, browser", opened<frmDocumentExp>},
    {"find", opened<frmFindInfo>},
    {"new user", opened<frmNewUser>},
    {"user", []() -> QWidget * { return showNew<frmNewUser>([](frmNewUser &w) { w.SecurityId = u"1"_s; }); }},
    {"options", opened<frmOptions>},
    {"tip", opened<frmTip>},
    {"designer", opened<DatabaseGenerator>},
    {"record", [] { return recordAt(1); }},
    {"record, attachments", [] { return recordAt(-3); }},
    {"record, events", [] { return recordAt(-1); }},
    {"new record", [] { return recordAt(1, u"New"_s); }},
    {"open record", opened<frmOpenRecord>},
};

} // namespace

std::span<const Station> stations()
{
    return all;
}

void closeStations()
{
    delete desktop::MdiForm::frame();
    QList<QPointer<QWidget>> windows;
    for (QWidget *window : QApplication::topLevelWidgets())
        windows << window;
    for (const QPointer<QWidget> &window : windows) {
        if (qobject_cast<desktop::Form *>(window))
            delete window;
    }
}
