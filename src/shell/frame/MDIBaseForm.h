// The one frame of the program: it holds the session's user, opens windows from its menus and toolbar, scales its
// controls and empties the temp folder when it closes. Its life is the life of the process.
#pragma once

#include "platform/desktop/CommonDialog.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/MdiForm.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/Toolbar.h"
#include "platform/runtime/Value.h"
#include "shell/session/Session.h"

#include <QAction>
#include <QMenu>

class MDIBaseForm : public desktop::MdiForm
{
    Q_OBJECT
public:
    MDIBaseForm();

    // The one window of this kind, made at its first use.
    static MDIBaseForm &frame();

    // The session's user. The setters take any value and keep it as text. A Null raises error 94, except in the middle
    // name, where it is usual and becomes one blank.
    const QString &UFirstName() const { return m_session.UFirstName; }
    const QString &UMiddleName() const { return m_session.UMiddleName; }
    const QString &ULastName() const { return m_session.ULastName; }
    const QString &UserId() const { return m_session.UserId; }
    qint16 UserLevel() const { return m_session.UserLevel; }
    const QString &ActiveRecordId() const { return m_session.ActiveRecordId; }
    void setUFirstName(const runtime::Value &name);
    void setUMiddleName(const runtime::Value &name) { m_session.setMiddleName(name); }
    void setULastName(const runtime::Value &name);
    void setUserId(const runtime::Value &id);
    void setUserLevel(qint16 level) { m_session.UserLevel = level; }

    desktop::Toolbar *Toolbar1;
    desktop::StatusBar *StatusBar1;
    desktop::ImageList *ImageList1;
    desktop::CommonDialog *CommonDialog1;

    void mnuNewUser_Click();
    void MnuNewClient_Click();
    void MnuExplorer_Click();
    void mnuNewEvent_Click();
    void mnuEventExplorer_Click();
    void mnuDifferentUser_Click();
    void mnuDoc_Click();
    void mnuDatabaseEditor_Click();
    void mnuExit_Click();
    void MnuOptions_Click();
    void mnuAddNewUser_Click();
    void mnuNewRecord_Click();
    void mnuOpenRecord_Click();
    void mnuWhoAmI_Click();
    void Toolbar1_ButtonClick(QAction *button);

    // With room for the largest child window.
    QSize sizeHint() const override;

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;

private:
    void setUpToolbar();
    void setUpStatusBar();
    void setUpMenus();
    void setUpFileMenu();
    void setUpToolsMenu();
    void setUpHelpMenu();
    void setUpHelpKey();
    // Takes the size of sizeHint(), but no more than the screen has, in the middle of the screen.
    void openOnScreen();

    using Handler = void (MDIBaseForm::*)();
    QMenu *addMenu(const char *name, const QString &caption, bool visible);
    void addItem(QMenu *menu, const char *name, const QString &caption, Handler handler, bool visible = true);
    static void addSeparator(QMenu *menu, const char *name);

    Session &m_session;
    qint32 LastWidth = 0; // twips, at the previous scaling
    qint32 LastHeight = 0;
};
