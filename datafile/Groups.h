// The groups of the explorers (NodeInformation). A member, event or user whose name begins with the name of no group is
// listed nowhere: a letter with an accent, such as the first one of "Åkesson", needs a group of its own.
#pragma once

#include "platform/data/engine/Database.h"

#include <QList>
#include <QString>

namespace datafile {

struct Initial
{
    QString group;   // the name of the group that is missing; empty where none can be made
    QString example; // a name that begins so
    int names = 0;
};

// The initials of names that no active group lists, in the order of the store. No group can be made for a name that is
// empty or begins with a blank, an apostrophe or a control character.
QList<Initial> initialsWithoutGroup(data::Database &file);

// Adds a group for each of them, behind the groups that the file has.
void addMissingGroups(data::Database &file);

} // namespace datafile
