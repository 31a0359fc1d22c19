#include "dossier/InterestArea.h"

#include "platform/desktop/MsgBox.h"

#include <tuple>

using namespace Qt::Literals::StringLiterals;

InterestArea::InterestArea(QWidget *parent, const QString &caption, std::span<const ListedColumn> columns)
    : Frame(parent, u"Frame3", caption), lstInterest(new desktop::ListView(this, u"lstInterest")),
      m_area(*this, *lstInterest)
{
    lstInterest->setAccessibleName(u"Interests"_s);
    setUpHeaders(*lstInterest, columns);
}

void InterestArea::addBoxes()
{
    std::tie(lblInterest, txtInterest) = m_area.addRow<desktop::TextBox>(u"lblInterest", u"Interest"_s, u"txtInterest");
    std::tie(lblInterestDescription, txtInterestDescription) = m_area.addRow<desktop::MultilineTextBox>(
        u"lblInterestDescription", u"Interest Description"_s, u"txtInterestDescription", EntryArea::Lines::Several);
}

void InterestArea::enter()
{
    cmdAddInterest->setText(u"Save"_s);
    m_area.enter();
}

void InterestArea::browse()
{
    cmdAddInterest->setText(u"Add Interest"_s);
    txtInterest->clear();
    txtInterestDescription->clear();
    m_area.browse();
}

bool InterestArea::isEntryValid() const
{
    if (!txtInterest->text().isEmpty())
        return true;
    desktop::MsgBox(u"Invalid Interest"_s, desktop::vbCritical, u"Tolmark"_s);
    return false;
}

QString insertInterest(const QString &interest, const QString &description, const QString &memberId)
{
    return u"INSERT INTO MemberInterest (Interest, InterestDescription, MemberId) values ('"_s + interest + u"','"_s +
           description + u"',"_s + memberId + u")"_s;
}
