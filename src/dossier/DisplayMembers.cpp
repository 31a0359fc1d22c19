#include "dossier/DisplayMembers.h"

#include "platform/desktop/Twips.h"
#include "platform/runtime/Conversion.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize roomForAllTabs(820, 590); // logical pixels, with letters of the usual size

} // namespace

DisplayMembers::DisplayMembers()
    : Form(Place::InFrame, u"DisplayMembers"), SSTab1(new desktop::TabbedDialog(this, u"SSTab1")),
      CommonDialog1(new desktop::CommonDialog(this, u"CommonDialog1"))
{
    setDesignCaption(u"Tolmark Member Information"_s);
    SSTab1->setAccessibleName(u"Pages"_s);
    setUpTabs();
    setUpCloseButtons();
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(SSTab1);
    resize(roomForAllTabs * desktop::letterScale());
}

void DisplayMembers::setUpTabs()
{
    SSTab1->addPage(Frame1 = new RowTab(SSTab1, *this, RowTab::member()), u"Member Information"_s);
    SSTab1->addPage(Frame2 = new RowTab(SSTab1, *this, RowTab::employer()), u"Employer"_s);
    SSTab1->addPage(Frame7 = new AssignedEventsTab(SSTab1, *this), u"Event"_s);
    SSTab1->addPage(Frame5 = new ContributionsTab(SSTab1, *this), u"Contributions"_s);
    SSTab1->addPage(Frame4 = new AttachmentsTab(SSTab1, *this, *CommonDialog1), u"Attachements"_s);
    SSTab1->addPage(Frame3 = new InterestsTab(SSTab1, *this), u"Interest"_s);
    SSTab1->addPage(Frame6 = new NotesTab(SSTab1, *this), u"Notes"_s);
}

// Each closes the window, with no question.
void DisplayMembers::setUpCloseButtons()
{
    for (desktop::CommandButton *close :
         {Frame1->butClose, Frame2->butClose, Frame7->butCloseEvent, Frame5->butCloseContributions,
          Frame4->butCLoseAttachment, Frame3->butCloseInterest, Frame6->butClosePhone})
        desktop::on(close, &QPushButton::clicked, this, &DisplayMembers::Unload);
}

void DisplayMembers::setMemberIdentification(const runtime::Value &id)
{
    MemberId = runtime::toInteger(id);
}

void DisplayMembers::Form_Load()
{
    Frame1->load();
    Frame4->load();
    Frame2->load();
    Frame3->load();
    Frame6->load();
    Frame5->load();
    Frame7->loadEventChoices();
    Frame7->loadAssignedEvents();
}
