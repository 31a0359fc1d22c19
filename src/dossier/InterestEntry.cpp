#include "dossier/InterestEntry.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Twips.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

namespace {

constexpr std::array gatheredColumns{
    ListedColumn{.header = u"Interest", .width = 2700},
    ListedColumn{.header = u"Description"},
};

// Twips. After its first use the button stands 5 twips to the right of where it was designed.
constexpr double addLeftInDesign = 4635;
constexpr double addLeftWhileEntering = 3825;
constexpr double addLeftAfterwards = 4640;
constexpr double cancelLeft = 6300;
constexpr double buttonTop = 0;

} // namespace

InterestEntry::InterestEntry(QWidget *parent) : InterestArea(parent, u"Member's Intereest"_s, gatheredColumns)
{
    addBoxes();
    m_area.addWidget(*setUpButtons());
    m_area.useWhileEntering(*CMdInterestCancel);
    m_area.beginBrowsing();
    desktop::setTabOrder({lstInterest, txtInterest, txtInterestDescription, cmdAddInterest, CMdInterestCancel});
    desktop::on(cmdAddInterest, &QPushButton::clicked, this, &InterestEntry::cmdAddInterest_Click);
    desktop::on(CMdInterestCancel, &QPushButton::clicked, this, &InterestEntry::CMdInterestCancel_Click);
}

// The buttons have fixed places instead of a layout, since one of them moves.
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
        enter();
        cmdAddInterest->setLeft(addLeftWhileEntering);
        return;
    }
    if (!isEntryValid())
        return;
    desktop::ListItem &item = lstInterest->ListItems.Add(txtInterest->text());
    item.setSubItem(1, txtInterestDescription->text());
    endEntry();
}

void InterestEntry::CMdInterestCancel_Click()
{
    endEntry();
}

void InterestEntry::endEntry()
{
    browse();
    cmdAddInterest->setLeft(addLeftAfterwards);
}
