// The fifty states as the lists of states offer and the store keeps them; four carry a trailing blank.
#pragma once

#include <QStringList>

const QStringList &statesList();
