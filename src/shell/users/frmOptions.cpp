#include "shell/users/frmOptions.h"

#include "parts/FieldGrid.h"
#include "platform/data/Recordset.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Twips.h"
#include "shell/store/DataStore.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QSpacerItem>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

namespace {

constexpr double pageLeft = 210; // twips
constexpr double outOfView = -20000;
constexpr int pageCount = 4; // of which the last three have no tab

} // namespace

frmOptions::frmOptions()
    : Form(Place::InFrame, u"frmOptions"), tbsOptions(new desktop::TabStrip(this, u"tbsOptions")),
      picOptions(u"picOptions"_s)
{
    setDesignCaption(u"Tolmark Options"_s);
    tbsOptions->setAccessibleName(u"Options"_s);
    tbsOptions->add(u"PasswordGroup"_s, u"Password"_s, u"Set Options for Group 1"_s);
    setUpPages();
    setUpPassword();
    setUpLayout();
    tbsOptions_Click();
    txtOldPassword->setFocus();
    // A shortcut gets the key before the focused control does, and before the frame, which would activate its next
    // child.
    auto *nextTab = new QShortcut(Qt::CTRL | Qt::Key_Tab, this);
    nextTab->setContext(Qt::WidgetWithChildrenShortcut);
    desktop::on(nextTab, &QShortcut::activated, this,
                [](frmOptions *window) { window->Form_KeyDown(desktop::vbKeyTab, desktop::vbCtrlMask); });
    desktop::on(tbsOptions, &desktop::TabStrip::Click, this, &frmOptions::tbsOptions_Click);
    desktop::on(cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    desktop::on(cmdCancel, &QPushButton::clicked, this, &frmOptions::cmdCancel_Click);
    desktop::on(cmdApply, &QPushButton::clicked, this, &frmOptions::cmdApply_Click);
}

void frmOptions::setUpPages()
{
    for (int page = 0; page < pageCount; ++page) {
        desktop::PictureBox *box = picOptions.add(page, this);
        box->setLeft(outOfView);
        box->setEnabled(false);
        const QString number = QString::number(page + 1);
        auto *frame =
            new desktop::Frame(box, u"fraSample"_s + number, page == 0 ? u"Change Password"_s : u"Sample "_s + number);
        auto *layout = new QVBoxLayout(box);
        layout->setContentsMargins({});
        layout->addWidget(frame);
        if (page == 0)
            fraSample1 = frame;
    }
}

void frmOptions::setUpPassword()
{
    FieldGrid grid(fraSample1);
    const auto add = [&grid](QAnyStringView name, const QString &label, QAnyStringView labelName) {
        desktop::TextBox *box = grid.addText(name, label);
        box->setMasked();
        grid.lastLabel()->setObjectName(labelName.toString());
        return box;
    };
    txtOldPassword = add(u"txtOldPassword", u"Old Password"_s, u"Label1");
    txtNewPassword = add(u"txtNewPassword", u"New Password"_s, u"Label2");
    txtNewPasswordRetyped = add(u"txtNewPasswordRetyped", u"New Password Retyped"_s, u"Label3");
}

void frmOptions::setUpLayout()
{
    constexpr int charactersOfAPassword = 24;
    txtOldPassword->setMinimumWidth(charactersOfAPassword * txtOldPassword->fontMetrics().averageCharWidth());
    cmdOK = new CommandButton(this, u"cmdOK", u"OK"_s);
    cmdCancel = new CommandButton(this, u"cmdCancel", u"Cancel"_s);
    cmdApply = new CommandButton(this, u"cmdApply", u"Apply"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (CommandButton *button : {cmdOK, cmdCancel, cmdApply})
        buttons->addWidget(button);
    const QSize page = picOptions(0)->sizeHint();
    m_pagePlace = new QSpacerItem(page.width(), page.height(), QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *whole = new QVBoxLayout(this);
    const int margin = desktop::pixels(pageLeft);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->addWidget(tbsOptions);
    whole->addItem(m_pagePlace);
    whole->addSpacing(margin);
    whole->addLayout(buttons);
}

void frmOptions::Form_Load()
{
    centreOnScreen();
}

// The pages take the place that the layout keeps free for them; a tab sets their left edges.
void frmOptions::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    layout()->activate();
    const QRect place = m_pagePlace->geometry();
    for (int page = 0; page < picOptions.Count(); ++page)
        picOptions(page)->Move(picOptions(page)->Left(), desktop::twips(place.y()), desktop::twips(place.width()),
                               desktop::twips(place.height()));
}

void frmOptions::tbsOptions_Click()
{
    for (int page = 0; page < tbsOptions->Count(); ++page) {
        const bool selected = page == tbsOptions->SelectedItem() - 1;
        picOptions(page)->setLeft(selected ? pageLeft : outOfView);
        picOptions(page)->setEnabled(selected);
    }
}

void frmOptions::Form_KeyDown(int keyCode, int shift)
{
    if (keyCode == desktop::vbKeyTab && shift == desktop::vbCtrlMask)
        tbsOptions->setSelectedItem(tbsOptions->SelectedItem() % tbsOptions->Count() + 1);
}

bool frmOptions::isAccepted() const
{
    QString objection;
    if (txtOldPassword->text().isEmpty())
        objection = u"You must supply your old password"_s;
    else if (txtNewPassword->text() == txtOldPassword->text())
        objection = u"The new password cannot match the old password"_s;
    else if (txtNewPassword->text() != txtNewPasswordRetyped->text())
        objection = u"Passwords do not match"_s;
    else
        return true;
    desktop::MsgBox(objection);
    return false;
}

// The boxes keep what was accepted, so that a second "Apply" sets the same password again.
void frmOptions::changePassword()
{
    if (isAccepted()) {
        storePassword();
        desktop::MsgBox(u"Your password has been changed"_s);
        return;
    }
    for (desktop::TextBox *box : {txtNewPassword, txtNewPasswordRetyped, txtOldPassword})
        box->clear();
}

void frmOptions::storePassword()
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset user = openRows(connection, u"SELECT * FROM Security where SecurityId ="_s + m_secId);
    user[u"UserPassword"].setValue(txtNewPassword->text());
    user.Update();
    user.Close();
    connection.Close();
}

void frmOptions::cmdOK_Click()
{
    changePassword();
    Unload();
}

void frmOptions::cmdCancel_Click()
{
    Unload();
}

void frmOptions::cmdApply_Click()
{
    changePassword();
}
