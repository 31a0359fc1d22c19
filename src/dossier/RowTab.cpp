#include "dossier/RowTab.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

RowTab::Design RowTab::member()
{
    return {
        .frame = u"Frame1",
        .caption = u"Member Information",
        .fields = memberFields(),
        .select = u"SELECT * FROM MemberInformation "
                  " WHERE ((MemberInformation.Active=Yes) AND (MemberInformation.MemberId={MemberId}))",
        .update = u"UPDATE MemberInformation SET MemberInformation.FirstName = '{FirstName}"
                  "', MemberInformation.MiddleName = '{MiddleName}"
                  "', MemberInformation.LastName = '{LastName}"
                  "', MemberInformation.AddressOne = '{AddressOne}"
                  "', MemberInformation.AddressTwo = '{AddressTwo}"
                  "', MemberInformation.HomePhone = '{HomePhone}"
                  "', MemberInformation.CellPhone = '{CellPhone}"
                  "', MemberInformation.EMailAddress = '{EMailAddress}"
                  "', MemberInformation.Zip = '{Zip}'"
                  " WHERE (MemberInformation.MemberId={MemberId});",
        .updateButton = u"butEditMember",
        .closeButton = u"butCloseMember",
    };
}

RowTab::Design RowTab::employer()
{
    return {
        .frame = u"Frame2",
        .caption = u"Employer Information",
        .fields = employerFields(),
        .select = u"SELECT * FROM EmployerInformation WHERE (MemberId={MemberId})",
        .update = u"UPDATE EmployerInformation SET Name = '{Name}"
                  "', AddressOne = '{AddressOne}"
                  "', AddressTwo = '{AddressTwo}"
                  "', City = '{City}"
                  "', Zip = '{Zip}"
                  "', PhoneNumber = '{PhoneNumber}"
                  "', EmailAddress = '{EMailAddress}"
                  "', WebAddress = '{WebAddress}'"
                  " WHERE (MemberId={MemberId});",
        .updateButton = u"butEditEmployer",
        .closeButton = u"butEmployerClose",
    };
}

RowTab::RowTab(QWidget *parent, Dossier &dossier, const Design &design)
    : Frame(parent, design.frame, design.caption.toString()), m_dossier(dossier), m_design(design),
      m_boxes(this, design.fields, MemberBoxes::Window::Dossier)
{
    butUpdate = new desktop::CommandButton(this, m_design.updateButton, u"Update"_s);
    butClose = new desktop::CommandButton(this, m_design.closeButton, u"Close"_s);
    m_boxes.addButtons({butUpdate, butClose});
    desktop::on(butUpdate, &QPushButton::clicked, this, &RowTab::butUpdate_Click);
}

void RowTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset row = store.CreateRecordset(m_boxes.filledIn(m_design.select, m_dossier.member()));
    if (!row.Eof())
        m_boxes.show(row);
}

void RowTab::butUpdate_Click()
{
    m_dossier.run(m_boxes.filledIn(m_design.update, m_dossier.member()));
    desktop::MsgBox(u"Changes have been saved"_s, desktop::vbInformation);
}
