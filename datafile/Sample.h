// The sample organisation: some sixty members with all that the windows show of them. Two samples are equal byte for
// byte: every date in it is fixed.
#pragma once

#include <QString>

namespace datafile {

// Refuses a taken path and raises as createDataFile does.
void createSampleFile(const QString &path);

} // namespace datafile
