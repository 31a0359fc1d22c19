#include "dossier/FrmAddEditMember.h"

#include "dossier/StatesList.h"
#include "parts/FieldGrid.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CommandSequence.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

// Tab follows the order in which the controls are made.
FrmAddEditMember::FrmAddEditMember()
    : Form(Place::InFrame, u"FrmAddEditMember"), SSTab1(new desktop::TabbedDialog(this, u"SSTab1"))
{
    setDesignCaption(u"Tolmark Add/Edit Member Infromation"_s);
    SSTab1->addPage(setUpMember(), u"Member Information"_s);
    SSTab1->addPage(setUpEmployer(), u"Employer Information"_s);
    Frame3 = new InterestEntry(SSTab1);
    SSTab1->addPage(Frame3, u"Interest"_s);
    setUpButtons();
    desktop::on(Command1, &QPushButton::clicked, this, &FrmAddEditMember::Command1_Click);
    desktop::on(Command2, &QPushButton::clicked, this, &FrmAddEditMember::Command2_Click);
}

QWidget *FrmAddEditMember::setUpMember()
{
    auto *frame = new desktop::Frame(SSTab1, u"Frame1", u"Member Infromation"_s);
    FieldGrid grid(frame);
    txtMemberFirstName = grid.addText(u"txtMemberFirstName", u"First Name"_s);
    txtMemberMiddleName = grid.addText(u"txtMemberMiddleName", u"Middle Name"_s);
    txtMemberLastName = grid.addText(u"txtMemberLastName", u"Last Name"_s);
    txtMemberAddressOne = grid.addText(u"txtMemberAddressOne", u"Address One"_s);
    txtMemberAddressTwo = grid.addText(u"txtMemberAddressTwo", u"Address Two"_s);
    txtCity = grid.addText(u"txtCity", u"City"_s);
    LstState = grid.addOneLineList(u"LstState", u"State"_s, statesList());
    txtMemberZip = grid.addText(u"txtMemberZip", u"Zip"_s);
    txtMemberHomePhone = grid.addText(u"txtMemberHomePhone", u"Home Phone"_s);
    txtMemberCellPhone = grid.addText(u"txtMemberCellPhone", u"Cell Phone"_s);
    txtMemberWorkExtension = grid.addText(u"txtMemberWorkExtension", u"Work Phone"_s);
    txtMemberEmail = grid.addText(u"txtMemberEmail", u"EMail Address"_s);
    return frame;
}

QWidget *FrmAddEditMember::setUpEmployer()
{
    auto *frame = new desktop::Frame(SSTab1, u"Frame2", u"Employer Infromation"_s);
    FieldGrid grid(frame);
    txtEmployerName = grid.addText(u"txtEmployerName", u"Employer Name"_s);
    txtEmployerAddressOne = grid.addText(u"txtEmployerAddressOne", u"Address One"_s);
    txtEmployerAddressTwo = grid.addText(u"txtEmployerAddressTwo", u"Address Two"_s);
    txtEmployerCity = grid.addText(u"txtEmployerCity", u"City"_s);
    LstEmployerState = grid.addOneLineList(u"LstEmployerState", u"State"_s, statesList());
    txtEmployerZip = grid.addText(u"txtEmployerZip", u"Zip"_s);
    txtEmployerMainPhone = grid.addText(u"txtEmployerMainPhone", u"Main Phone"_s);
    txtEmployerExtension = grid.addText(u"txtEmployerExtension", u"Extension"_s);
    txtEmployerCellPhone = grid.addText(u"txtEmployerCellPhone", u"Cell Phone"_s);
    txtEmployerEmail = grid.addText(u"txtEmployerEmail", u"EMail Address"_s);
    return frame;
}

void FrmAddEditMember::setUpButtons()
{
    Command1 = new CommandButton(this, u"Command1", u"Save"_s);
    Command2 = new CommandButton(this, u"Command2", u"Close"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(SSTab1);
    whole->addLayout(buttons);
    txtMemberFirstName->setFocus();
}

MemberValues FrmAddEditMember::memberValues() const
{
    return {txtMemberFirstName->text(),
            txtMemberMiddleName->text(),
            txtMemberLastName->text(),
            txtMemberAddressOne->text(),
            txtMemberAddressTwo->text(),
            txtCity->text(),
            LstState->Text(),
            txtMemberZip->text(),
            txtMemberHomePhone->text(),
            txtMemberCellPhone->text(),
            txtMemberEmail->text()};
}

EmployerValues FrmAddEditMember::employerValues() const
{
    return {txtEmployerName->text(),      txtEmployerAddressOne->text(), txtEmployerAddressTwo->text(),
            txtEmployerCity->text(),      LstEmployerState->Text(),      txtEmployerZip->text(),
            txtEmployerMainPhone->text(), txtEmployerExtension->text(),  txtEmployerEmail->text()};
}

void FrmAddEditMember::Command1_Click()
{
    if (m_saved || txtMemberFirstName->text().isEmpty() || txtMemberLastName->text().isEmpty())
        return;
    save();
    m_saved = true;
    Unload();
}

void FrmAddEditMember::save()
{
    CommandSequence sequence;
    sequence.open();
    sequence.execute(insertMemberStatement(memberValues()));
    data::Recordset member = sequence.execute(findMemberStatement(memberValues()));
    const QString memberId = runtime::toText(member[u"MemberId"].Value());
    member.Close();
    member.Cancel();
    sequence.execute(insertEmployerStatement(employerValues(), memberId));
    const auto &interests = Frame3->lstInterest->ListItems;
    for (int index = 1; index <= interests.Count(); ++index) {
        sequence.execute(insertInterestStatement(interests(index).Text(), interests(index).SubItems(1), memberId));
        sequence.command.Cancel();
    }
    sequence.close();
}

void FrmAddEditMember::Command2_Click()
{
    Unload();
}
