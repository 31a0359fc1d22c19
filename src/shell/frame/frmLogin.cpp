#include "shell/frame/frmLogin.h"

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmSplash.h"
#include "shell/store/DataStore.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

using runtime::toText;

namespace {

constexpr double splashSeconds = 3.0;
constexpr unsigned long turnMilliseconds = 5; // a short rest on each turn spares the processor

} // namespace

frmLogin::frmLogin()
    : Form(Place::Alone, u"frmLogin"), lblLabels(u"lblLabels"_s),
      txtUserName(new desktop::TextBox(this, u"txtUserName")), txtPassword(new desktop::TextBox(this, u"txtPassword")),
      cmdOK(new desktop::CommandButton(this, u"cmdOK", u"OK"_s)),
      cmdCancel(new desktop::CommandButton(this, u"cmdCancel", u"Cancel"_s))
{
    setShared();
    setDesignCaption(u"Tolmark Login"_s);
    setUpContent();
    desktop::on(cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    desktop::on(cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
}

frmLogin &frmLogin::shared()
{
    // Nobody deletes it: it lives until the process ends.
    static QPointer<frmLogin> window;
    if (!window)
        window = new frmLogin;
    return *window;
}

void frmLogin::setUpContent()
{
    desktop::Label *userName = lblLabels.add(0, this);
    userName->setText(u"&User Name:"_s);
    userName->setBuddy(txtUserName);
    desktop::Label *password = lblLabels.add(1, this);
    password->setText(u"&Password:"_s);
    password->setBuddy(txtPassword);
    txtPassword->setMasked();

    auto *grid = new QGridLayout;
    grid->addWidget(userName, 0, 0);
    grid->addWidget(txtUserName, 0, 1);
    grid->addWidget(password, 1, 0);
    grid->addWidget(txtPassword, 1, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto *whole = new QVBoxLayout(this);
    whole->addLayout(grid);
    whole->addLayout(buttons);
    desktop::setTabOrder({txtUserName, txtPassword, cmdOK, cmdCancel});
}

void frmLogin::Form_Load()
{
    Hide();
    if (!ReLogin)
        showSplashAndMainWindow();
    MDIBaseForm::frame().setCaption(u"Tolmark : Lite"_s);
    Unload();
}

void frmLogin::showSplashAndMainWindow()
{
    const auto splash = std::make_unique<frmSplash>();
    splash->Show();
    splash->repaint();
    const double until = runtime::Timer() + splashSeconds;
    while (runtime::Timer() < until) {
        QApplication::processEvents();
        QThread::msleep(turnMilliseconds);
    }
    MDIBaseForm::frame().Show();
    splash->Unload();
}

void frmLogin::cmdOK_Click()
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset user = openRows(connection, u"SELECT * FROM Security where UserName = '"_s + txtUserName->text() +
                                                    u"' and UserPassword = '"_s + txtPassword->text() + u"'"_s);
    if (user.Eof()) {
        connection.Close();
        desktop::MsgBox(u"Incorrect user name and/or password"_s);
        return;
    }
    MDIBaseForm &frame = MDIBaseForm::frame();
    frame.setUFirstName(user[u"UserFirstName"].Value());
    frame.setUMiddleName(user[u"UserMiddleName"].Value());
    frame.setULastName(user[u"UserLastName"].Value());
    frame.setUserId(user[u"SecurityId"].Value());
    frame.setUserLevel(runtime::toInteger(user[u"UserLevel"].Value()));
    if (!ReLogin)
        showSplashAndMainWindow();
    const auto name = [&user](QStringView column) { return runtime::joinedText(user[column].Value()); };
    frame.setCaption(u"Tolmark : "_s + name(u"UserFirstName") + u" "_s + name(u"UserMiddleName") + u" "_s +
                     name(u"UserLastName"));
    connection.Close();
    Unload();
}

void frmLogin::cmdCancel_Click()
{
    Unload();
}

void frmLogin::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        cmdOK->click();
    else if (event->key() == Qt::Key_Escape)
        cmdCancel->click();
    else
        Form::keyPressEvent(event);
}
