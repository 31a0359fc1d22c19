#include "dossier/EmployerTab.h"

#include "dossier/StatesList.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/FieldGrid.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/RowTexts.h"
#include "shell/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

EmployerTab::EmployerTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame2", u"Employer Information"_s), m_dossier(dossier)
{
    desktop::FieldGrid grid(this);
    txtEmployerName = grid.addText(u"txtEmployerName", u"Employer Name"_s);
    txtEmployerAddressOne = grid.addText(u"txtEmployerAddressOne", u"Address One"_s);
    txtEmployerAddressTwo = grid.addText(u"txtEmployerAddressTwo", u"Address Two"_s);
    txtEmployerCity = grid.addText(u"txtEmployerCity", u"City"_s);
    LstEmployerState = grid.addOneLineList(u"LstEmployerState", u"State"_s, statesList());
    txtEmployerZip = grid.addText(u"txtEmployerZip", u"Zip"_s);
    txtEmployerPhoneNumber = grid.addText(u"txtEmployerPhoneNumber", u"Phone Number"_s);
    txtEmployerExtension = grid.addText(u"txtEmployerExtension", u"Extension"_s);
    txtEmail = grid.addText(u"txtEmail", u"EMail Address"_s);
    txtWebAddress = grid.addText(u"txtWebAddress", u"Web Address"_s);
    butEditEmployer = new desktop::CommandButton(this, u"butEditEmployer", u"Update"_s);
    butEmployerClose = new desktop::CommandButton(this, u"butEmployerClose", u"Close"_s);
    grid.addButtons({butEditEmployer, butEmployerClose});
    desktop::on(butEditEmployer, &QPushButton::clicked, this, &EmployerTab::butEditEmployer_Click);
}

void EmployerTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset employer =
        store.CreateRecordset(u"SELECT * FROM EmployerInformation WHERE (MemberId="_s + m_dossier.member() + u")"_s);
    if (employer.Eof())
        return;
    putText(*txtEmployerName, employer[u"Name"]);
    putText(*txtEmployerAddressOne, employer[u"AddressOne"]);
    putText(*txtEmployerAddressTwo, employer[u"AddressTwo"]);
    putText(*txtEmployerCity, employer[u"City"]);
    putText(*LstEmployerState, employer[u"State"]);
    putText(*txtEmployerZip, employer[u"Zip"]);
    putText(*txtEmployerPhoneNumber, employer[u"PhoneNumber"]);
    putText(*txtEmployerExtension, employer[u"Extension"]);
    putText(*txtEmail, employer[u"EMailAddress"]);
    putText(*txtWebAddress, employer[u"WebAddress"]);
}

void EmployerTab::butEditEmployer_Click()
{
    m_dossier.run(u"UPDATE EmployerInformation SET Name = '"_s + txtEmployerName->text() + u"', AddressOne = '"_s +
                  txtEmployerAddressOne->text() + u"', AddressTwo = '"_s + txtEmployerAddressTwo->text() +
                  u"', City = '"_s + txtEmployerCity->text() + u"', Zip = '"_s + txtEmployerZip->text() +
                  u"', PhoneNumber = '"_s + txtEmployerPhoneNumber->text() + u"', EmailAddress = '"_s +
                  txtEmail->text() + u"', WebAddress = '"_s + txtWebAddress->text() + u"'"_s + u" WHERE (MemberId="_s +
                  m_dossier.member() + u");"_s);
    desktop::MsgBox(u"Changes have been saved"_s, desktop::vbInformation);
}
