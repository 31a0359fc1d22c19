#include "dossier/EmployerTab.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

EmployerTab::EmployerTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame2", u"Employer Information"_s), m_dossier(dossier), m_boxes(this)
{
    txtEmployerName = m_boxes.addText(u"txtEmployerName", u"Employer Name"_s, u"Name"_s);
    txtEmployerAddressOne = m_boxes.addText(u"txtEmployerAddressOne", u"Address One"_s, u"AddressOne"_s);
    txtEmployerAddressTwo = m_boxes.addText(u"txtEmployerAddressTwo", u"Address Two"_s, u"AddressTwo"_s);
    txtEmployerCity = m_boxes.addText(u"txtEmployerCity", u"City"_s, u"City"_s);
    LstEmployerState = m_boxes.addStates(u"LstEmployerState", u"State"_s);
    txtEmployerZip = m_boxes.addText(u"txtEmployerZip", u"Zip"_s, u"Zip"_s);
    txtEmployerPhoneNumber = m_boxes.addText(u"txtEmployerPhoneNumber", u"Phone Number"_s, u"PhoneNumber"_s);
    txtEmployerExtension = m_boxes.addText(u"txtEmployerExtension", u"Extension"_s, u"Extension"_s);
    txtEmail = m_boxes.addText(u"txtEmail", u"EMail Address"_s, u"EMailAddress"_s);
    txtWebAddress = m_boxes.addText(u"txtWebAddress", u"Web Address"_s, u"WebAddress"_s);
    butEditEmployer = new desktop::CommandButton(this, u"butEditEmployer", u"Update"_s);
    butEmployerClose = new desktop::CommandButton(this, u"butEmployerClose", u"Close"_s);
    m_boxes.addButtons({butEditEmployer, butEmployerClose});
    desktop::on(butEditEmployer, &QPushButton::clicked, this, &EmployerTab::butEditEmployer_Click);
}

void EmployerTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset employer =
        store.CreateRecordset(u"SELECT * FROM EmployerInformation WHERE (MemberId="_s + m_dossier.member() + u")"_s);
    if (employer.Eof())
        return;
    m_boxes.show(employer);
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
