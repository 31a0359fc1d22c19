// Organisations of any size, the same for the same options on every system: for tests and benchmarks.
//
// Members are numbered from 1 without a gap. Raises 5 for counts outside their ranges, otherwise as createDataFile
// does.
#pragma once

#include <QString>

namespace datafile {

struct GeneratorOptions
{
    quint32 seed = 1;
    int members = 1000; // 1 .. 32,767: the windows keep a member's number in 16 bits
    int inactivePercent = 5;
    // So many members, the first ones, have a last name with this initial ('A' .. 'Z'); the others' names spread
    // over the letters as surnames do.
    int crowd = 0;
    char crowdInitial = 'S';

    // Rows of the side tables; each belongs to some member.
    int interests = 3000;
    int contributions = 2000;
    int assignedEvents = 2000;
    int notes = 1000;
    int attachments = 300;     // some of them later versions of a file
    int attachmentBytes = 400; // of each file; the stored value has a zero byte more

    int events = 200;
};

void createGeneratedFile(const QString &path, const GeneratorOptions &options);

} // namespace datafile
