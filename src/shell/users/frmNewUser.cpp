#include "shell/users/frmNewUser.h"

#include "parts/FieldGrid.h"
#include "parts/RowTexts.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Random.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using desktop::TextBox;
using runtime::randomPlace;

namespace {

constexpr double windowWidth = 8730; // twips
constexpr double windowHeight = 6135;

constexpr int highestNumber = 9000;

// A number of up to four digits, with up to four letters of the name strewn in behind its first digit.
QString randomPassword(const QString &lastName)
{
    QString password = QString::number(randomPlace(highestNumber));
    if (lastName.isEmpty())
        return password;
    const int letters = randomPlace(int(password.size()));
    for (int letter = 0; letter < letters; ++letter) {
        const int from = randomPlace(int(lastName.size()));
        const int behind = randomPlace(int(password.size()));
        password.insert(behind, lastName[from - 1]);
    }
    return password;
}

} // namespace

frmNewUser::frmNewUser()
    : Form(Place::InFrame, u"frmNewUser"), Frame1(new desktop::Frame(this, u"Frame1", u"Personal Information"_s))
{
    setDesignCaption(u"Tolmark Add New User"_s);
    setUpContent();
    keepSize(windowWidth, windowHeight);
    desktop::on(CmdUserName, &QPushButton::clicked, this, &frmNewUser::CmdUserName_Click);
    desktop::on(CmdPassword, &QPushButton::clicked, this, &frmNewUser::CmdPassword_Click);
    desktop::on(cmdOk, &QPushButton::clicked, this, &frmNewUser::cmdOk_Click);
    desktop::on(cmdClear, &QPushButton::clicked, this, &frmNewUser::cmdClear_Click);
    desktop::on(cmdCancel, &QPushButton::clicked, this, &frmNewUser::cmdCancel_Click);
}

void frmNewUser::setUpContent()
{
    setUpBoxes();
    cmdOk = new CommandButton(this, u"cmdOk", u"Save"_s);
    cmdClear = new CommandButton(this, u"cmdClear", u"Clear"_s);
    cmdCancel = new CommandButton(this, u"cmdCancel", u"Cancel"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (CommandButton *button : {cmdOk, cmdClear, cmdCancel})
        buttons->addWidget(button);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(Frame1);
    whole->addLayout(buttons);
    txtFirstName->setFocus();
}

void frmNewUser::setUpBoxes()
{
    FieldGrid grid(Frame1);
    const auto add = [&grid](QAnyStringView name, const QString &label, QAnyStringView labelName,
                             const QString &column = {}) {
        TextBox *box = grid.addText(name, label);
        box->Tag = column;
        grid.lastLabel()->setObjectName(labelName.toString());
        return box;
    };
    txtFirstName = add(u"txtFirstName", u"First Name"_s, u"Label1", u"UserFirstName"_s);
    txtMiddleName = add(u"txtMiddleName", u"Middle Name"_s, u"Label2", u"UserMiddleName"_s);
    txtLastName = add(u"txtLastName", u"Last Name"_s, u"Label3", u"UserLastName"_s);
    txtEMailAddress = add(u"txtEMailAddress", u"E-Mail Address"_s, u"Label4", u"UserEMailAddress"_s);
    txtUserName = add(u"txtUserName", u"User Name"_s, u"Label7", u"UserName"_s);
    CmdUserName = new CommandButton(Frame1, u"CmdUserName", u"Generate User Name"_s);
    grid.addBehind(CmdUserName);
    txtPassword = add(u"txtPassword", u"Password"_s, u"Label5", u"UserPassword"_s);
    CmdPassword = new CommandButton(Frame1, u"CmdPassword", u"Generate Password"_s);
    grid.addBehind(CmdPassword);
    txtPasswordRetypes = add(u"txtPasswordRetypes", u"Password Retyped"_s, u"lblPasswordRedtyped");
    lblPasswordRedtyped = grid.lastLabel();
    lblGeneratedPassword = new desktop::Label(Frame1, u"lblGeneratedPassword");
    lblGeneratedPassword->setAlignment(Qt::AlignCenter);
    QSizePolicy keepingItsPlace = lblGeneratedPassword->sizePolicy();
    keepingItsPlace.setRetainSizeWhenHidden(true);
    lblGeneratedPassword->setSizePolicy(keepingItsPlace);
    showGenerated({});
    grid.addBehind(lblGeneratedPassword);
    const int widest = qMax(CmdUserName->sizeHint().width(), CmdPassword->sizeHint().width());
    for (QWidget *behind : std::initializer_list<QWidget *>{CmdUserName, CmdPassword, lblGeneratedPassword})
        behind->setMinimumWidth(widest);
    for (TextBox *box : {txtPassword, txtPasswordRetypes})
        box->setMasked();
}

void frmNewUser::Form_Load()
{
    if (SecurityId.isEmpty())
        return;
    Mode = u"Edit"_s;
    cmdClear->hide();
    cmdOk->setText(u"Update"_s);
    showStoredUser();
}

void frmNewUser::showStoredUser()
{
    CLsDataBaseConnection connection;
    data::Recordset user = connection.CreateRecordset(u"SELECT * FROM SECURITY WHERE SecurityId = "_s + SecurityId);
    const auto name = [&user](QStringView column) { return runtime::joinedText(user[column].Value()); };
    setCaption(u"User Information for "_s + name(u"UserFirstName") + u" "_s + name(u"UserMiddleName") + u" "_s +
               name(u"UserLastName"));
    for (TextBox *box : {txtFirstName, txtMiddleName, txtLastName, txtUserName, txtPassword, txtEMailAddress})
        putText(*box, user[box->Tag]);
    putText(*txtPasswordRetypes, user[u"UserPassword"]);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{CmdUserName, CmdPassword, lblPasswordRedtyped, txtPasswordRetypes})
        widget->hide();
    txtUserName->setEnabled(false);
    txtPassword->setEnabled(false);
    user.Close();
    connection.DbClose();
}

void frmNewUser::CmdUserName_Click()
{
    txtUserName->setText(txtFirstName->text().left(1) + txtMiddleName->text().left(1) + txtLastName->text());
}

void frmNewUser::CmdPassword_Click()
{
    runtime::Randomize();
    const QString password = randomPassword(txtLastName->text());
    txtPassword->setText(password);
    txtPasswordRetypes->setText(password);
    showGenerated(password);
}

// An empty label is hidden, so that a screen reader does not stop at it.
void frmNewUser::showGenerated(const QString &password)
{
    lblGeneratedPassword->setText(password);
    lblGeneratedPassword->setVisible(!password.isEmpty());
}

bool frmNewUser::isComplete() const
{
    QString missing;
    if (txtPassword->text().isEmpty())
        missing = u"Invalid Password"_s;
    else if (txtPasswordRetypes->text().isEmpty())
        missing = u"Invalid password confirmation"_s;
    else if (txtUserName->text().isEmpty())
        missing = u"User Name can not be null"_s;
    else if (txtPassword->text() != txtPasswordRetypes->text())
        missing = u"The passwords do not match"_s;
    else
        return true;
    desktop::MsgBox(missing);
    return false;
}

void frmNewUser::cmdOk_Click()
{
    if (Mode == u"Edit")
        changeUser();
    else if (isComplete())
        addUser();
}

void frmNewUser::addUser()
{
    CLsDataBaseConnection connection;
    data::Recordset users = connection.CreateRecordset(u"select * from [Security]"_s);
    users.AddNew();
    for (const TextBox *box : {txtFirstName, txtMiddleName, txtLastName, txtUserName, txtPassword, txtEMailAddress})
        users[box->Tag].setValue(box->text());
    users.UpdateBatch();
    users.Close();
    connection.DbClose();
}

void frmNewUser::changeUser()
{
    CLsDataBaseConnection connection;
    data::Recordset user = connection.CreateRecordset(u"select * from [Security] WHERE SecurityId = "_s + SecurityId);
    for (const TextBox *box : {txtFirstName, txtMiddleName, txtLastName, txtEMailAddress})
        user[box->Tag].setValue(box->text());
    user.UpdateBatch();
    user.Close();
    connection.DbClose();
}

void frmNewUser::cmdClear_Click()
{
    for (TextBox *box : {txtFirstName, txtLastName, txtMiddleName, txtPassword, txtPasswordRetypes, txtUserName})
        box->clear();
    showGenerated({});
}

void frmNewUser::cmdCancel_Click()
{
    Unload();
}
