#include "shell/frame/MDIBaseForm.h"

#include "dossier/FrmAddEditMember.h"
#include "dynamicforms/DatabaseGenerator.h"
#include "dynamicforms/frmOpenRecord.h"
#include "events/FrmAddEvent.h"
#include "events/frmMeeting.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/FrmEventExplorer.h"
#include "library/frmDocumentExp.h"
#include "platform/desktop/HelpKey.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/ErrorHandling.h"
#include "platform/runtime/Files.h"
#include "search/frmFindInfo.h"
#include "shell/frame/Manual.h"
#include "shell/frame/ScaleControls.h"
#include "shell/frame/frmLogin.h"
#include "shell/users/frmNewUser.h"
#include "shell/users/frmOptions.h"

#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QStyle>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

using runtime::RuntimeError;

namespace {

// Twips: as wide as the record window and as high as the form editor, which are the largest children.
constexpr double largestChildWidth = 14430;
constexpr double largestChildHeight = 14025;

// A division as the run-time does it, in 32-bit floats.
float ratio(double current, qint32 last)
{
    if (last == 0)
        throw RuntimeError(runtime::DivisionByZero);
    return float(current) / float(last);
}

} // namespace

MDIBaseForm::MDIBaseForm()
    : MdiForm(u"MDIBaseForm"), Toolbar1(new desktop::Toolbar(this, u"Toolbar1")),
      StatusBar1(new desktop::StatusBar(this, u"StatusBar1")), ImageList1(new desktop::ImageList(this, u"ImageList1")),
      CommonDialog1(new desktop::CommonDialog(this, u"CommonDialog1")), m_session(Session::current())
{
    setCaption(u"Tolmark"_s);
    setBackground(u":/icons/logo.svg"_s);
    setUpToolbar();
    setUpStatusBar();
    setUpMenus();
    setUpHelpKey();
    openOnScreen();
}

// The border and title bar that the desktop will add are not known yet: those of a child window stand in for them.
void MDIBaseForm::openOnScreen()
{
    const int border = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect available = screen()->availableGeometry().adjusted(border, title, -border, -border);
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                    MDIBaseForm::sizeHint().boundedTo(available.size()), available));
}

QSize MDIBaseForm::sizeHint() const
{
    const int bars = menuBar()->sizeHint().height() + Toolbar1->sizeHint().height() + StatusBar1->sizeHint().height();
    return {desktop::pixels(largestChildWidth), desktop::pixels(largestChildHeight) + bars};
}

MDIBaseForm &MDIBaseForm::frame()
{
    // Nobody deletes it, since the process ends when it closes.
    static QPointer<MDIBaseForm> window;
    if (!window)
        window = new MDIBaseForm;
    return *window;
}

void MDIBaseForm::setUFirstName(const runtime::Value &name)
{
    m_session.UFirstName = runtime::toText(name);
}

void MDIBaseForm::setULastName(const runtime::Value &name)
{
    m_session.ULastName = runtime::toText(name);
}

void MDIBaseForm::setUserId(const runtime::Value &id)
{
    m_session.UserId = runtime::toText(id);
}

void MDIBaseForm::setUpToolbar()
{
    ImageList1->add(u"Phone"_s, u":/icons/phone.svg"_s);
    ImageList1->add(u"Find"_s, u":/icons/find.svg"_s);
    Toolbar1->setWindowTitle(u"Toolbar"_s);
    Toolbar1->setIconSize(QSize(24, 24) * desktop::letterScale());
    Toolbar1->addButton(u"Phone"_s, {}, u"Telephone Conference"_s, ImageList1->icon(u"Phone"_s))
        ->setShortcut(Qt::CTRL | Qt::Key_T);
    Toolbar1->addButton(u"Find"_s, {}, u"Find"_s, ImageList1->icon(u"Find"_s))->setShortcut(Qt::CTRL | Qt::Key_F);
    addToolBar(Toolbar1);
    desktop::on(Toolbar1, &desktop::Toolbar::ButtonClick, this, &MDIBaseForm::Toolbar1_ButtonClick);
}

void MDIBaseForm::setUpStatusBar()
{
    StatusBar1->addPanel(desktop::Panel::Style::Text);
    setStatusBar(StatusBar1);
}

void MDIBaseForm::setUpHelpKey()
{
    constexpr int messageTime = 10'000; // milliseconds
    desktop::on(new desktop::HelpKey(this), &desktop::HelpKey::pressed, this,
                [](MDIBaseForm *frame, const QStringList &windows) {
                    if (!openManual(windows))
                        frame->StatusBar1->showMessage(u"The manual is not installed"_s, messageTime);
                });
}

void MDIBaseForm::Form_Load()
{
    desktop::showNew<FrmDataBaseExplorer>();
}

void MDIBaseForm::Form_Resize()
{
    if (!m_session.ResizeReady) {
        m_session.ResizeReady = true;
        return;
    }
    // A division that fails leaves its ratio at 0. The two bars, the only controls of the frame, refuse every scaling.
    float WidthRatio = 0;
    float HeightRatio = 0;
    runtime::everyStep(
        [&] { m_session.ResizePending = false; }, [&] { WidthRatio = ratio(Width(), LastWidth); },
        [&] { HeightRatio = ratio(Height(), LastHeight); }, [&] { ScaleControls(WidthRatio, HeightRatio, *this); },
        [&] { LastWidth = qint32(std::lround(Width())); }, [&] { LastHeight = qint32(std::lround(Height())); });
}

void MDIBaseForm::Form_Unload()
{
    const QString folder = runtime::App::folder(u"\\temp") + u'/';
    QString name = runtime::Dir(folder + u"*.*"_s);
    while (!name.isEmpty()) {
        runtime::Kill(folder + name);
        name = runtime::Dir();
    }
}

void MDIBaseForm::mnuNewUser_Click()
{
    desktop::reportOutOfMemoryOnly([] { desktop::showNew<frmNewUser>(); });
}

void MDIBaseForm::MnuNewClient_Click()
{
    desktop::reportOutOfMemoryOnly([] { desktop::showNew<FrmAddEditMember>(); });
}

void MDIBaseForm::MnuExplorer_Click()
{
    desktop::reportOutOfMemoryOnly([this] {
        desktop::showNew<FrmDataBaseExplorer>([this](FrmDataBaseExplorer &window) { window.UserLevel = UserLevel(); });
    });
}

void MDIBaseForm::mnuNewEvent_Click()
{
    desktop::reportOutOfMemoryOnly([] { FrmAddEvent::shared().Show(); });
}

void MDIBaseForm::mnuEventExplorer_Click()
{
    desktop::reportOutOfMemoryOnly([] { desktop::showNew<FrmEventExplorer>(); });
}

void MDIBaseForm::mnuDifferentUser_Click()
{
    desktop::reportOutOfMemoryOnly([] {
        frmLogin::shared().ReLogin = true;
        frmLogin::shared().Show();
    });
}

void MDIBaseForm::mnuDoc_Click()
{
    desktop::reportOutOfMemoryOnly(
        [] { desktop::showNew<frmDocumentExp>([](frmDocumentExp &library) { library.adminFunction = true; }); });
}

void MDIBaseForm::mnuDatabaseEditor_Click()
{
    desktop::reportOutOfMemoryOnly([] { desktop::showNew<DatabaseGenerator>(); });
}

void MDIBaseForm::mnuExit_Click()
{
    close();
}

void MDIBaseForm::MnuOptions_Click()
{
    desktop::reportOutOfMemoryOnly(
        [this] { desktop::showNew<frmOptions>([this](frmOptions &window) { window.setSecId(UserId()); }); });
}

void MDIBaseForm::mnuAddNewUser_Click()
{
    desktop::reportOutOfMemoryOnly([] { desktop::showNew<frmNewUser>(); });
}

void MDIBaseForm::mnuNewRecord_Click()
{
    FrmEventExplorer::NewMemberInformation();
}

void MDIBaseForm::mnuOpenRecord_Click()
{
    desktop::showNew<frmOpenRecord>();
}

void MDIBaseForm::mnuWhoAmI_Click()
{
    desktop::MsgBox(UserId());
}

void MDIBaseForm::Toolbar1_ButtonClick(QAction *button)
{
    if (button->objectName() == u"Phone")
        desktop::showNew<frmMeeting>([](frmMeeting &note) { note.AddView = true; });
    else if (button->objectName() == u"Find")
        desktop::showNew<frmFindInfo>([](frmFindInfo &find) { find.MemberId = QString(); });
}
