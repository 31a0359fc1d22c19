// What people do with the windows that writes to the data file, each as one function over the real windows.
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
