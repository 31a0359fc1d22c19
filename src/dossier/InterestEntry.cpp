#include "dossier/InterestEntry.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Twips.h"

#include <QGridLayout>
#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using desktop::Label;

namespace {

// Twips. The button stands 5 twips further right after its first use than in the design.
constexpr double addLeftInDesign = 4635;
constexpr double addLeftWhileEntering = 3825;
constexpr double addLeftAfterwards = 4640;
constexpr double cancelLeft = 6300;
constexpr double buttonTop = 0;

void keepPlaceWhenHidden(QWidget &widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
    widget.hide();
}

} // namespace

InterestEntry::InterestEntry(QWidget *parent)
    : Frame(parent, u"Frame3", u"Member's Intereest"_s), lstInterest(new desktop::ListView(this, u"lstInterest")),
      lblInterest(new Label(this, u"lblInterest", u"Interest"_s)),
      txtInterest(new desktop::TextBox(this, u"txtInterest")),
      lblInterestDescription(new Label(this, u"lblInterestDescription", u"Interest Description"_s)),
      txtInterestDescription(new desktop::MultilineTextBox(this, u"txtInterestDescription")),
      cmdAddInterest(new CommandButton(this, u"cmdAddInterest", u"Add Interest"_s)),
      CMdInterestCancel(new CommandButton(this, u"CMdInterestCancel", u"Cancel"_s))
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
    lblInterest->setBuddy(txtInterest);
    lblInterestDescription->setBuddy(txtInterestDescription);
    txtInterest->setAccessibleName(lblInterest->text());
    txtInterestDescription->setAccessibleName(lblInterestDescription->text());
    for (QWidget *box : {static_cast<QWidget *>(txtInterest), static_cast<QWidget *>(txtInterestDescription)})
        box->setEnabled(false);
    CMdInterestCancel->setEnabled(false);
    keepPlaceWhenHidden(*lblInterest);
    keepPlaceWhenHidden(*lblInterestDescription);

    auto *grid = new QGridLayout(this);
    grid->addWidget(lstInterest, 0, 0, 1, 2);
    grid->addWidget(lblInterest, 1, 0);
    grid->addWidget(txtInterest, 1, 1);
    grid->addWidget(lblInterestDescription, 2, 0, Qt::AlignTop);
    grid->addWidget(txtInterestDescription, 2, 1);
    grid->addWidget(setUpButtons(), 3, 0, 1, 2);
    grid->setRowStretch(0, 3);
    grid->setRowStretch(2, 2);
    desktop::setTabOrder({lstInterest, txtInterest, txtInterestDescription, cmdAddInterest, CMdInterestCancel});
}

// The buttons stand at places of their own, since one of them moves.
QWidget *InterestEntry::setUpButtons()
{
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
    txtInterest->setEnabled(true);
    txtInterestDescription->setEnabled(true);
    cmdAddInterest->setText(u"Save"_s);
    lstInterest->setEnabled(false);
    cmdAddInterest->setLeft(addLeftWhileEntering);
    CMdInterestCancel->setEnabled(true);
    lblInterest->show();
    lblInterestDescription->show();
    txtInterest->setFocus(); // typing goes on where it is wanted
}

void InterestEntry::endEntry()
{
    cmdAddInterest->setFocus(); // before the boxes go out of use
    txtInterest->setEnabled(false);
    txtInterestDescription->setEnabled(false);
    cmdAddInterest->setText(u"Add Interest"_s);
    txtInterest->clear();
    txtInterestDescription->clear();
    lstInterest->setEnabled(true);
    CMdInterestCancel->setEnabled(false);
    cmdAddInterest->setLeft(addLeftAfterwards);
    lblInterest->hide();
    lblInterestDescription->hide();
}
