// What people do that writes to the data file or reads it whole: with the real windows, and with the data tool.
#pragma once

#include "support/DataStoreFolder.h"

#include <functional>

namespace proof {

struct Action
{
    const char *name;
    std::function<void(const DataFolder &)> run;
};

const QList<Action> &actions();

// The rows and files that the actions need beside the sample's.
void prepare(const DataFolder &folder);

} // namespace proof
