// One action of the real windows in a process of its own, whose failure or death is planned, and what must hold of the
// data file afterwards.
#pragma once

#include "proof/Actions.h"
#include "proof/Faults.h"

#include <QSet>

namespace proof {

// How a process ended, and what its message boxes said before.
struct Ending
{
    struct Text
    {
        QString text;
        int commits; // made by then, in a run that is watched
    };
    // What a loss of power would have left when so many texts had been shown.
    struct Loss
    {
        QString folder;
        qsizetype texts;
    };
    int exitCode = 0; // below 0: by that signal
    bool isHung = false;
    bool faultCame = false;
    bool wentOn = false; // after a failure that it passed over in silence, to do the action once more
    QList<Text> texts;
    QList<Loss> losses;
    QList<qint64> calls; // that each kind of failure could have met, after an undisturbed run
    QString standardError;

    bool isReported() const
    {
        return !texts.isEmpty() && texts.last().text.startsWith(QLatin1String("Run-time error"));
    }
    QString asText() const;
};

// A folder with a data file and the files that the action takes.
class Trial
{
public:
    explicit Trial(const Action &action) : m_action(action) { prepare(m_folder); }

    // Killed after so many microseconds, unless that is below 0.
    Ending run(Plan plan, qint64 killAfter = -1);
    // Without a failure. Keeps the file as it is after each commit, and what a loss of power would leave wherever
    // something is synced or told: once nothing of what was not synced, and `parts` times a random part of it.
    Ending watch(int parts, quint32 seed);

    QString file() const { return m_folder.file(); }
    QString fileOf(const Ending::Loss &loss) const
    {
        return m_folder.path(loss.folder + QStringLiteral("/Tolmark.mdb"));
    }
    QString fileAfter(int commits) const { return m_folder.path(QString::number(commits)); }
    // The file as a failure left it that was passed over in silence.
    QString silentFile() const { return m_folder.path(QStringLiteral("silent")); }

private:
    Ending inChild(const std::function<void()> &body, qint64 killAfter);

    const Action &m_action;
    DataStoreFolder m_folder;
};

// What an undisturbed run leaves: the rows after each commit, and what each message stands for.
class Expectation
{
public:
    // By Trial::watch.
    Expectation(const Action &action, int parts, quint32 seed);

    // The file passes integrity_check, and what each message reported as done is done in it. AsAfterACommit, for a kill
    // or a loss of power: its rows are exactly those after one of the commits. RowByRow, for a failed call: no row is
    // there that an undisturbed run never has, and every row that it always has; a step that failed in silence is
    // missing in what comes later.
    enum class Rule { AsAfterACommit, RowByRow };
    QStringList faultsOfFile(const QString &path, const QList<Ending::Text> &texts, Rule rule) const;
    QStringList faultsAfter(const Trial &trial, const Ending &ending) const;

    const Ending &undisturbed() const { return m_undisturbed; }
    QString fileOf(const Ending::Loss &loss) const { return m_trial.fileOf(loss); }
    qint64 microseconds() const { return m_microseconds; }

private:
    Trial m_trial;
    Ending m_undisturbed;
    qint64 m_microseconds;
    QList<QSet<QString>> m_states;
    QSet<QString> m_always, m_ever; // rows of all states, of any state
};

} // namespace proof
