#include "shell/frame/frmSplash.h"

#include "platform/runtime/Application.h"

#include <QEvent>
#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::Label;

namespace {

constexpr QSize logoSize(432, 180); // the picture's own proportion

void enlarge(Label &label, double factor, bool bold)
{
    label.setFontSize(label.FontSize() * factor);
    QFont font = label.font();
    font.setBold(bold);
    label.setFont(font);
}

} // namespace

frmSplash::frmSplash()
    : Form(Place::Alone, u"frmSplash"), Frame1(new desktop::Frame(this, u"Frame1", {})),
      imgLogo(new Label(Frame1, u"imgLogo")), lblProductName(new Label(Frame1, u"lblProductName", u"Product"_s)),
      lblVersion(new Label(Frame1, u"lblVersion", u"Version"_s)),
      lblPlatform(new Label(Frame1, u"lblPlatform", u"Windows 2000, XP"_s)),
      lblWarning(new Label(Frame1, u"lblWarning", u"Warning: This application contains Member Information"_s))
{
    setWindowFlags(Qt::SplashScreen);
    setUpContent();
    Frame1->installEventFilter(this);
}

void frmSplash::setUpContent()
{
    imgLogo->setPixmap(QIcon(u":/icons/logo.svg"_s).pixmap(logoSize, devicePixelRatio()));
    imgLogo->setAlignment(Qt::AlignCenter);
    imgLogo->setAccessibleName(u"Tolmark"_s);
    enlarge(*lblProductName, 2.2, true);
    enlarge(*lblVersion, 1.2, false);
    enlarge(*lblPlatform, 1.2, false);

    auto *inside = new QVBoxLayout(Frame1);
    inside->setContentsMargins(28, 20, 28, 20);
    inside->setSpacing(8);
    inside->addWidget(imgLogo);
    for (Label *label : {lblProductName, lblVersion, lblPlatform}) {
        label->setAlignment(Qt::AlignRight);
        inside->addWidget(label);
    }
    inside->addSpacing(12);
    inside->addWidget(lblWarning);
    auto *outside = new QVBoxLayout(this);
    outside->addWidget(Frame1);
    centreOnScreen();
}

void frmSplash::Form_Load()
{
    using namespace runtime;
    lblVersion->setText(u"Version %1.%2.%3"_s.arg(App::Major).arg(App::Minor).arg(App::Revision));
    lblProductName->setText(App::Title());
}

// A window manager gives no keys to a splash that does not ask for them.
void frmSplash::showEvent(QShowEvent *event)
{
    Form::showEvent(event);
    activateWindow();
}

void frmSplash::keyPressEvent(QKeyEvent *)
{
    Unload();
}

bool frmSplash::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        Unload();
    return Form::eventFilter(watched, event);
}
