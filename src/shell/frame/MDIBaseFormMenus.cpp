// The menus of the main window, in the order of the bar.
#include "platform/desktop/Mnemonics.h"
#include "platform/desktop/PopupMenu.h"
#include "shell/frame/DesignTime.h"
#include "shell/frame/MDIBaseForm.h"

#include <QMenuBar>

using namespace Qt::Literals::StringLiterals;

QMenu *MDIBaseForm::addMenu(const char *name, const QString &caption, bool visible)
{
    auto *menu = new desktop::PopupMenu(this, QString::fromLatin1(name) + u".menu"_s, caption);
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    menu->menuAction()->setVisible(visible);
    menuBar()->addMenu(menu);
    return menu;
}

void MDIBaseForm::addItem(QMenu *menu, const char *name, const QString &caption, Handler handler, bool visible)
{
    QAction *item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    item->setVisible(visible);
    desktop::on(item, &QAction::triggered, this, handler);
}

void MDIBaseForm::addSeparator(QMenu *menu, const char *name)
{
    menu->addSeparator()->setObjectName(QString::fromLatin1(name));
}

void MDIBaseForm::setUpMenus()
{
    setUpFileMenu();
    setUpToolsMenu();
    setWindowsMenu(addMenu("mnuWindows", u"Windows"_s, true));
    setUpHelpMenu();
    desktop::dealMnemonics(*menuBar());
}

void MDIBaseForm::setUpFileMenu()
{
    QMenu *file = addMenu("mnuFile", u"File"_s, true);
    addItem(file, "mnuNewUser", u"New User"_s, &MDIBaseForm::mnuNewUser_Click, DesignTime::mnuNewUserVisible);
    addItem(file, "MnuNewClient", u"New Member"_s, &MDIBaseForm::MnuNewClient_Click);
    addItem(file, "MnuExplorer", u"Member Explorer"_s, &MDIBaseForm::MnuExplorer_Click);
    addSeparator(file, "mnuSep4");
    addItem(file, "mnuNewEvent", u"New Event"_s, &MDIBaseForm::mnuNewEvent_Click);
    addItem(file, "mnuEventExplorer", u"Event Explorer"_s, &MDIBaseForm::mnuEventExplorer_Click);
    addSeparator(file, "mnuSep");
    addItem(file, "mnuDifferentUser", u"Login as Different User"_s, &MDIBaseForm::mnuDifferentUser_Click,
            DesignTime::mnuDifferentUserVisible);
    addItem(file, "mnuExit", u"Exit"_s, &MDIBaseForm::mnuExit_Click);
}

void MDIBaseForm::setUpToolsMenu()
{
    QMenu *tools = addMenu("mnuAdministrator", u"Tools"_s, DesignTime::mnuAdministratorVisible);
    addItem(tools, "mnuDoc", u"Document Library"_s, &MDIBaseForm::mnuDoc_Click, DesignTime::mnuDocVisible);
    addSeparator(tools, "sepMenu");
    addItem(tools, "mnuDatabaseEditor", u"Database/Form Editor"_s, &MDIBaseForm::mnuDatabaseEditor_Click);
    addSeparator(tools, "mnusep1");
    addItem(tools, "MnuOptions", u"Options"_s, &MDIBaseForm::MnuOptions_Click);
    auto *administrative = new desktop::PopupMenu(tools, u"mnuAdmin.menu", u"Administrative"_s);
    administrative->menuAction()->setObjectName(u"mnuAdmin"_s);
    tools->addMenu(administrative);
    addItem(administrative, "mnuAddNewUser", u"Add New User"_s, &MDIBaseForm::mnuAddNewUser_Click);
    addItem(tools, "mnuNewRecord", u"New Record"_s, &MDIBaseForm::mnuNewRecord_Click, DesignTime::mnuNewRecordVisible);
    addItem(tools, "mnuOpenRecord", u"Open Record"_s, &MDIBaseForm::mnuOpenRecord_Click,
            DesignTime::mnuOpenRecordVisible);
}

void MDIBaseForm::setUpHelpMenu()
{
    QMenu *help = addMenu("mnuHelp", u"Help"_s, DesignTime::mnuHelpVisible);
    addItem(help, "mnuWhoAmI", u"Who Am I"_s, &MDIBaseForm::mnuWhoAmI_Click);
}
