#include "dossier/InterestEntry.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Twips.h"

#include <QHeaderView>

#include <tuple>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

namespace {

// Twips. The button stands 5 twips further right after its first use than in the design.
constexpr double addLeftInDesign = 4635;
constexpr double addLeftWhileEntering = 3825;
constexpr double addLeftAfterwards = 4640;
constexpr double cancelLeft = 6300;
constexpr double buttonTop = 0;

} // namespace

InterestEntry::InterestEntry(QWidget *parent)
    : Frame(parent, u"Frame3", u"Member's Intereest"_s), lstInterest(new desktop::ListView(this, u"lstInterest")),
      m_area(*this, *lstInterest)
{
    setUpContent();
    desktop::on(cmdAddInterest, &QPushButton::clicked, this, &InterestEntry::cmdAddInterest_Click);
    desktop::on(CMdInterestCancel, &QPushButton::clicked, this, &InterestEntry::CMdInterestCancel_Click);
}

void InterestEntry::setUpContent()
{
    lstInterest->ColumnHeaders.Add(u"Interest"_s);
    lstInterest->ColumnHeaders.Add(u"Description"_s);
    lstInterest->header()->resizeSection(0, 180);
    lstInterest->setAccessibleName(u"Interests"_s);
    std::tie(lblInterest, txtInterest) = m_area.addRow<desktop::TextBox>(u"lblInterest", u"Interest"_s, u"txtInterest");
    std::tie(lblInterestDescription, txtInterestDescription) = m_area.addRow<desktop::MultilineTextBox>(
        u"lblInterestDescription", u"Interest Description"_s, u"txtInterestDescription", EntryArea::Lines::Several);
    m_area.addWidget(*setUpButtons());
    m_area.useWhileEntering(*CMdInterestCancel);
    m_area.beginBrowsing();
    desktop::setTabOrder({lstInterest, txtInterest, txtInterestDescription, cmdAddInterest, CMdInterestCancel});
}

// The buttons stand at places of their own, since one of them moves.
QWidget *InterestEntry::setUpButtons()
{
    cmdAddInterest = new CommandButton(this, u"cmdAddInterest", u"Add Interest"_s);
    CMdInterestCancel = new CommandButton(this, u"CMdInterestCancel", u"Cancel"_s);
    auto *strip = new QWidget(this);
    const auto place = [strip](CommandButton &button, double left) {
        button.setParent(strip);
        const QSize size = button.sizeHint();
        button.Move(left, buttonTop, desktop::twips(size.width()), desktop::twips(size.height()));
    };
    place(*cmdAddInterest, addLeftInDesign);
    place(*CMdInterestCancel, cancelLeft);
    strip->setFixedHeight(cmdAddInterest->height());
    strip->setMinimumWidth(CMdInterestCancel->geometry().right() + 1);
    return strip;
}

void InterestEntry::cmdAddInterest_Click()
{
    if (!txtInterestDescription->isEnabled()) {
        beginEntry();
        return;
    }
    if (txtInterest->text().isEmpty()) {
        desktop::MsgBox(u"Invalid Interest"_s, desktop::vbCritical, u"Tolmark"_s);
        return;
    }
    desktop::ListItem &item = lstInterest->ListItems.Add(txtInterest->text());
    item.setSubItem(1, txtInterestDescription->text());
    endEntry();
}

void InterestEntry::CMdInterestCancel_Click()
{
    endEntry();
}

void InterestEntry::beginEntry()
{
    cmdAddInterest->setText(u"Save"_s);
    cmdAddInterest->setLeft(addLeftWhileEntering);
    m_area.enter();
}

void InterestEntry::endEntry()
{
    m_area.browse();
    cmdAddInterest->setText(u"Add Interest"_s);
    txtInterest->clear();
    txtInterestDescription->clear();
    cmdAddInterest->setLeft(addLeftAfterwards);
}
