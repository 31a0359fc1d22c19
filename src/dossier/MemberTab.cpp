#include "dossier/MemberTab.h"

#include "dossier/StatesList.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/FieldGrid.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/RowTexts.h"
#include "shell/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

MemberTab::MemberTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame1", u"Member Information"_s), m_dossier(dossier)
{
    desktop::FieldGrid grid(this);
    txtFirstName = grid.addText(u"txtFirstName", u"First Name"_s);
    txtMiddleName = grid.addText(u"txtMiddleName", u"Middle Name"_s);
    txtLastName = grid.addText(u"txtLastName", u"Last Name"_s);
    txtAddressOne = grid.addText(u"txtAddressOne", u"Address One"_s);
    txtAddressTwo = grid.addText(u"txtAddressTwo", u"Address Two"_s);
    txtCity = grid.addText(u"txtCity", u"City"_s);
    LstState = grid.addOneLineList(u"LstState", u"State"_s, statesList());
    txtZip = grid.addText(u"txtZip", u"Zip"_s);
    txtHomePhone = grid.addText(u"txtHomePhone", u"Home Phone Number"_s);
    txtCellPhone = grid.addText(u"txtCellPhone", u"Cell Phone Number"_s);
    txtEMailAddress = grid.addText(u"txtEMailAddress", u"EMail Address"_s);
    butEditMember = new desktop::CommandButton(this, u"butEditMember", u"Update"_s);
    butCloseMember = new desktop::CommandButton(this, u"butCloseMember", u"Close"_s);
    grid.addButtons({butEditMember, butCloseMember});
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
    putText(*txtFirstName, member[u"FirstName"]);
    putText(*txtMiddleName, member[u"MiddleName"]);
    putText(*txtLastName, member[u"LastName"]);
    putText(*txtAddressOne, member[u"AddressOne"]);
    putText(*txtAddressTwo, member[u"AddressTwo"]);
    putText(*txtCity, member[u"City"]);
    putText(*LstState, member[u"State"]);
    putText(*txtZip, member[u"Zip"]);
    putText(*txtHomePhone, member[u"HomePhone"]);
    putText(*txtCellPhone, member[u"CellPhone"]);
    putText(*txtEMailAddress, member[u"EMailAddress"]);
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
