// The regional settings of the United States while it stands, for a test that names texts in their form; the others run
// in the region that scripts/regions chooses.
#pragma once

#include <QLocale>

class UnitedStates
{
public:
    UnitedStates() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~UnitedStates() { QLocale::setDefault(m_former); }
    UnitedStates(const UnitedStates &) = delete;
    UnitedStates &operator=(const UnitedStates &) = delete;

private:
    QLocale m_former;
};
