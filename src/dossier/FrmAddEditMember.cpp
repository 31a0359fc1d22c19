#include "dossier/FrmAddEditMember.h"

#include "platform/runtime/Conversion.h"
#include "shell/store/CommandSequence.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using desktop::Frame;

namespace {

// Filled in by MemberBoxes.
constexpr QStringView insertMember = u"INSERT INTO MemberInformation (FirstName, MiddleName, LastName, "
                                     " AddressOne, AddressTwo, City, State, Zip, HomePhone, CellPhone, EMailAddress)"
                                     "values ('{FirstName}','{MiddleName}','{LastName}','{AddressOne}','{AddressTwo}',"
                                     "'{City}','{State}','{Zip}','{HomePhone}','{CellPhone}','{EMailAddress}')";

// Finds the row that was just written, to learn its key. The zip is not compared; an earlier member who is the same in
// all else may be found in its place.
constexpr QStringView findMember = u"select * from memberinformation where (FirstName = '{FirstName}"
                                   "') and (MiddleName = '{MiddleName}"
                                   "') and (LastName = '{LastName}"
                                   "') and (addressOne = '{AddressOne}"
                                   "') and (AddressTwo = '{AddressTwo}"
                                   "') and (City = '{City}"
                                   "') and (State = '{State}"
                                   "') and (HomePhone = '{HomePhone}"
                                   "') and (CellPhone = '{CellPhone}"
                                   "') and (EMailaddress = '{EMailAddress}')";

constexpr QStringView insertEmployer = u"INSERT INTO EmployerInformation (Name, AddressOne, AddressTwo, City, Zip, "
                                       " PhoneNumber, EmailAddress, State, MemberId, Extension) values ('"
                                       "{Name}','{AddressOne}','{AddressTwo}','{City}','{Zip}',"
                                       "'{PhoneNumber}','{EMailAddress}','{State}','{MemberId}','{Extension}')";

} // namespace

// Tab follows the order in which the controls are made.
FrmAddEditMember::FrmAddEditMember()
    : Form(Place::InFrame, u"FrmAddEditMember"), SSTab1(new desktop::TabbedDialog(this, u"SSTab1")),
      Frame1(new Frame(SSTab1, u"Frame1", u"Member Infromation"_s)),
      Frame2(new Frame(SSTab1, u"Frame2", u"Employer Infromation"_s)), Frame3(new InterestEntry(SSTab1)),
      m_member(Frame1, memberFields(), MemberBoxes::Window::Entry),
      m_employer(Frame2, employerFields(), MemberBoxes::Window::Entry)
{
    setDesignCaption(u"Tolmark Add/Edit Member Infromation"_s);
    SSTab1->setAccessibleName(u"Pages"_s);
    SSTab1->addPage(Frame1, u"Member Information"_s);
    SSTab1->addPage(Frame2, u"Employer Information"_s);
    SSTab1->addPage(Frame3, u"Interest"_s);
    setUpButtons();
    m_member.setFocusToFirst();
    desktop::on(Command1, &QPushButton::clicked, this, &FrmAddEditMember::Command1_Click);
    desktop::on(Command2, &QPushButton::clicked, this, &FrmAddEditMember::Command2_Click);
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
}

void FrmAddEditMember::Command1_Click()
{
    if (m_saved || m_member.text(u"FirstName").isEmpty() || m_member.text(u"LastName").isEmpty())
        return;
    save();
    m_saved = true;
    Unload();
}

void FrmAddEditMember::save()
{
    CommandSequence sequence;
    sequence.open();
    sequence.execute(m_member.filledIn(insertMember));
    data::Recordset member = sequence.execute(m_member.filledIn(findMember));
    const QString memberId = runtime::toText(member[u"MemberId"].Value());
    member.Close();
    member.Cancel();
    sequence.execute(m_employer.filledIn(insertEmployer, memberId));
    const auto &interests = Frame3->lstInterest->ListItems;
    for (int index = 1; index <= interests.Count(); ++index) {
        sequence.execute(insertInterest(interests(index).Text(), interests(index).SubItems(1), memberId));
        sequence.command.Cancel();
    }
    sequence.close();
}

void FrmAddEditMember::Command2_Click()
{
    Unload();
}
