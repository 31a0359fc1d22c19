// How far a long piece of work has come, and whether the person at the keyboard wants it to stop.
//
// On a terminal a line of standard error tells how far it is, from one second after the beginning on: in percent once
// that is known, before it in seconds. Ctrl-C does not end the process at
// once: the work stops at its next report, by an exception, so that everything unfinished is taken away.
#pragma once

#include "platform/data/engine/Database.h"

#include <QElapsedTimer>
#include <QString>

namespace datafile {

inline constexpr int Interrupted = 18; // the run-time's number for a break by the user

// From here on SIGINT, SIGTERM and SIGHUP only ask the work to stop.
void stopOnSignals();
bool isStopAsked();
// Lets the statements of the file tell how long they take, and stop: they raise the store's error for an interrupted
// one.
void stopOnSignals(data::Database &file);

// There is one at a time.
class Progress
{
public:
    explicit Progress(const QString &what);
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    ~Progress();

    // Raises RuntimeError 18 ("interrupted") when a stop was asked for.
    void at(qint64 done, qint64 all);
    // Takes the line away, so that other text can be written.
    void finish();
    // Shows the line anew if it is time.
    void show();

private:
    QString m_what;
    QElapsedTimer m_sinceBegin;
    qint64 m_lastShown = 0; // milliseconds since the beginning
    qint64 m_percent = -1;  // not known
    bool m_isTerminal;
};

} // namespace datafile
