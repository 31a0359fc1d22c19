// The sample organisation: some sixty members with everything that the windows can show of a member. Every date in it
// is fixed, so that two samples are equal byte for byte.
#pragma once

#include <QString>

namespace datafile {

// Refuses a taken path and raises as createDataFile does.
void createSampleFile(const QString &path);

} // namespace datafile
