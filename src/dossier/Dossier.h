// What the tabs of one dossier share: the key of the member, and the command sequence that runs the statements of their
// actions. An action that uses the sequence opens it and closes it again.
#pragma once

#include "shell/store/CommandSequence.h"

#include <QString>

struct Dossier
{
    qint16 MemberId = 0;
    CommandSequence sequence;

    // The key as statements write it.
    QString member() const { return QString::number(MemberId); }
    // Opens the sequence, runs the one statement and closes the sequence.
    void run(const QString &statement)
    {
        sequence.open();
        sequence.execute(statement);
        sequence.close();
    }
};
