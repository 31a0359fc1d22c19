#include "dossier/MemberTab.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

MemberTab::MemberTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame1", u"Member Information"_s), m_dossier(dossier), m_boxes(this)
{
    txtFirstName = m_boxes.addText(u"txtFirstName", u"First Name"_s, u"FirstName"_s);
    txtMiddleName = m_boxes.addText(u"txtMiddleName", u"Middle Name"_s, u"MiddleName"_s);
    txtLastName = m_boxes.addText(u"txtLastName", u"Last Name"_s, u"LastName"_s);
    txtAddressOne = m_boxes.addText(u"txtAddressOne", u"Address One"_s, u"AddressOne"_s);
    txtAddressTwo = m_boxes.addText(u"txtAddressTwo", u"Address Two"_s, u"AddressTwo"_s);
    txtCity = m_boxes.addText(u"txtCity", u"City"_s, u"City"_s);
    LstState = m_boxes.addStates(u"LstState", u"State"_s);
    txtZip = m_boxes.addText(u"txtZip", u"Zip"_s, u"Zip"_s);
    txtHomePhone = m_boxes.addText(u"txtHomePhone", u"Home Phone Number"_s, u"HomePhone"_s);
    txtCellPhone = m_boxes.addText(u"txtCellPhone", u"Cell Phone Number"_s, u"CellPhone"_s);
    txtEMailAddress = m_boxes.addText(u"txtEMailAddress", u"EMail Address"_s, u"EMailAddress"_s);
    butEditMember = new desktop::CommandButton(this, u"butEditMember", u"Update"_s);
    butCloseMember = new desktop::CommandButton(this, u"butCloseMember", u"Close"_s);
    m_boxes.addButtons({butEditMember, butCloseMember});
    desktop::on(butEditMember, &QPushButton::clicked, this, &MemberTab::butEditMember_Click);
}

void MemberTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset member = store.CreateRecordset(u"SELECT * FROM MemberInformation "
                                                   " WHERE ((MemberInformation.Active=Yes) AND "
                                                   "(MemberInformation.MemberId="_s +
                                                   m_dossier.member() + u"))"_s);
    if (member.Eof())
        return;
    m_boxes.show(member);
}

void MemberTab::butEditMember_Click()
{
    m_dossier.run(
        u"UPDATE MemberInformation SET MemberInformation.FirstName = '"_s + txtFirstName->text() +
        u"', MemberInformation.MiddleName = '"_s + txtMiddleName->text() + u"', MemberInformation.LastName = '"_s +
        txtLastName->text() + u"', MemberInformation.AddressOne = '"_s + txtAddressOne->text() +
        u"', MemberInformation.AddressTwo = '"_s + txtAddressTwo->text() + u"', MemberInformation.HomePhone = '"_s +
        txtHomePhone->text() + u"', MemberInformation.CellPhone = '"_s + txtCellPhone->text() +
        u"', MemberInformation.EMailAddress = '"_s + txtEMailAddress->text() + u"', MemberInformation.Zip = '"_s +
        txtZip->text() + u"'"_s + u" WHERE (MemberInformation.MemberId="_s + m_dossier.member() + u");"_s);
    desktop::MsgBox(u"Changes have been saved"_s, desktop::vbInformation);
}
