#include "dossier/StatesList.h"

using namespace Qt::Literals::StringLiterals;

const QStringList &statesList()
{
    static const QStringList states{
        u"Alabama"_s,       u"Alaska"_s,      u"Arizona "_s,       u"Arkansas"_s,      u"California "_s,
        u"Colorado "_s,     u"Connecticut"_s, u"Delaware"_s,       u"Florida"_s,       u"Georgia"_s,
        u"Hawaii"_s,        u"Idaho"_s,       u"Illinois"_s,       u"Indiana"_s,       u"Iowa"_s,
        u"Kansas"_s,        u"Kentucky"_s,    u"Louisiana"_s,      u"Maine"_s,         u"Maryland"_s,
        u"Massachusetts"_s, u"Michigan"_s,    u"Minnesota"_s,      u"Mississippi"_s,   u"Missouri"_s,
        u"Montana"_s,       u"Nebraska"_s,    u"Nevada"_s,         u"New Hampshire"_s, u"New Jersey"_s,
        u"New Mexico"_s,    u"New York"_s,    u"North Carolina"_s, u"North Dakota"_s,  u"Ohio"_s,
        u"Oklahoma"_s,      u"Oregon"_s,      u"Pennsylvania"_s,   u"Rhode Island"_s,  u"South Carolina"_s,
        u"South Dakota"_s,  u"Tennessee"_s,   u"Texas"_s,          u"Utah"_s,          u"Vermont"_s,
        u"Virginia "_s,     u"Washington"_s,  u"West Virginia"_s,  u"Wisconsin"_s,     u"Wyoming"_s,
    };
    return states;
}
