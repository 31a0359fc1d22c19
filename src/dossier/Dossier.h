// What the tabs of one dossier share: whose dossier it is, and the connection and command that carry the statements of
// its actions. Each action opens the sequence, uses it and closes it before it ends.
#pragma once

#include "shell/store/CommandSequence.h"

#include <QString>

struct Dossier
{
    qint16 MemberId = 0;
    CommandSequence sequence;

    // As it stands in a statement.
    QString member() const { return QString::number(MemberId); }
    // Runs one statement from the opening of the sequence to its close.
    void run(const QString &statement)
    {
        sequence.open();
        sequence.execute(statement);
        sequence.close();
    }
};
