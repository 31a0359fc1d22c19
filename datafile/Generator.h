// Organisations of any size, the same for the same options on every system: for tests and benchmarks.
//
// Members are numbered from 1 without a gap. Raises 5 for a count outside its range, and the errors of createDataFile.
#pragma once

#include "datafile/Progress.h"

#include <QString>

namespace datafile {

struct GeneratorOptions
{
    quint32 seed = 1;
    int members = 1000; // 1 .. 32,767: the windows keep a member's number in 16 bits
    int inactivePercent = 5;
    // The first `crowd` members have a last name with this initial ('A' .. 'Z'), for a group of a known size. The other
    // names are drawn from all surnames by their frequency.
    int crowd = 0;
    char crowdInitial = 'S';

    // Rows of the side tables; each belongs to some member.
    int interests = 3000;
    int contributions = 2000;
    int assignedEvents = 2000;
    int notes = 1000;
    int attachments = 300;     // a name that is drawn again becomes the next version of the file
    int attachmentBytes = 400; // of each file; the stored value has a zero byte more

    int events = 200;
};

void createGeneratedFile(const QString &path, const GeneratorOptions &options, Progress *progress = nullptr);

} // namespace datafile
