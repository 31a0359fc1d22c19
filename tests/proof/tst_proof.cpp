// Every action under every failure of a file or of memory, under losses of power and kills.
//
// In the environment: PROOF_POINTS is how many failures of each kind are tried with an action, evenly spread over its
// calls (without it a single one of any kind); PROOF_PARTS how many random parts of what was not synced are left at
// each point of a loss of power; PROOF_KILLS how many kills; PROOF_SEED what chance begins with. scripts/proof sets
// them.
#include "proof/Trial.h"

#include <QApplication>
#include <QTest>

#include <csignal>

using namespace Qt::Literals::StringLiterals;
using namespace proof;

namespace {

int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

} // namespace

class tst_Proof : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qInfo("PROOF_SEED=%u", m_seed); }
    void cleanup() { qInfo("%d trials so far", m_trials); }

    void faults_data() { eachAction(); }
    void faults()
    {
        QFETCH(int, action);
        const Expectation &expectation = expectationOf(action);
        QVERIFY2(expectation.undisturbed().exitCode == 0, qPrintable(expectation.undisturbed().asText()));
        QList<Plan> plans;
        for (const Fault fault : allFaults) {
            QVERIFY(fault == Fault::OwnMemory || expectation.undisturbed().calls.value(int(fault)) > 0);
            plans << Plan{fault, 0, false};
            if (fault != Fault::Kill)
                plans << Plan{fault, 0, true};
        }
        if (m_points == 0)
            plans = {plans[qsizetype(m_chance() % quint32(plans.size()))]};
        QStringList findings;
        for (const Plan &plan : std::as_const(plans))
            findings += untilNoneComes(actions()[action], expectation, plan);
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
    }

    void powerLoss_data() { eachAction(); }
    void powerLoss()
    {
        QFETCH(int, action);
        const Expectation &expectation = expectationOf(action);
        QStringList findings;
        bool isTried = false;
        for (const Ending::Loss &loss : expectation.undisturbed().losses) {
            const QString file = expectation.fileOf(loss);
            if (!QFile::exists(file)) // not before it is opened
                continue;
            isTried = true;
            findings += faultsOfFile(expectation, file, expectation.undisturbed().texts.first(loss.texts), loss.folder);
        }
        QVERIFY(isTried);
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
    }

    void kills()
    {
        QStringList findings;
        for (int count = setting("PROOF_KILLS", 50); count > 0; --count) {
            const auto which = qsizetype(m_chance() % quint32(actions().size()));
            const qint64 after = m_chance() % quint32(expectationOf(which).microseconds());
            Trial trial(actions()[which]);
            const Ending ending = trial.run({}, after);
            findings += faultsOfFile(expectationOf(which), trial.file(), ending.texts,
                                     u"%1 killed after %2 us"_s.arg(QLatin1String(actions()[which].name)).arg(after));
        }
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
    }

private:
    const Expectation &expectationOf(qsizetype action)
    {
        auto &known = m_expectations[std::size_t(action)];
        if (!known)
            known.emplace(actions()[action], setting("PROOF_PARTS", 0), m_seed);
        return *known;
    }

    static void eachAction()
    {
        QTest::addColumn<int>("action");
        for (int index = 0; index < actions().size(); ++index)
            QTest::newRow(actions()[index].name) << index;
    }

    QStringList faultsOfFile(const Expectation &expectation, const QString &file, const QList<Ending::Text> &texts,
                             const QString &when)
    {
        ++m_trials;
        const QStringList faults = expectation.faultsOfFile(file, texts, Expectation::Rule::AsAfterACommit);
        return faults.isEmpty() ? faults : QStringList(when + u": "_s + faults.join(u"; "_s));
    }

    QStringList untilNoneComes(const Action &action, const Expectation &expectation, Plan plan)
    {
        const qint64 calls = expectation.undisturbed().calls.value(int(plan.fault));
        const qint64 step = qMax<qint64>(1, calls / qMax(1, m_points));
        QStringList findings;
        for (plan.at = 1 + m_chance() % step;; plan.at += step) {
            Trial trial(action);
            const Ending ending = trial.run(plan);
            const bool isKilled = plan.fault == Fault::Kill && ending.exitCode == -SIGKILL;
            const QString when =
                u"fault %1 %2 %3"_s.arg(int(plan.fault)).arg(plan.lasts ? u"from" : u"at").arg(plan.at);
            if (isKilled) {
                findings += faultsOfFile(expectation, trial.file(), ending.texts, when);
            } else {
                ++m_trials;
                if (const QStringList faults = expectation.faultsAfter(trial, ending); !faults.isEmpty())
                    findings << when + u": "_s + faults.join(u"; "_s);
            }
            if ((!ending.faultCame && ending.exitCode >= 0) || (step > 1 && plan.at + step > calls))
                return findings;
        }
    }

    const int m_points = setting("PROOF_POINTS", 0);
    const quint32 m_seed = quint32(setting("PROOF_SEED", 1));
    std::mt19937 m_chance{m_seed};
    std::vector<std::optional<Expectation>> m_expectations{std::size_t(actions().size())};
    int m_trials = 0;
};

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("TMPDIR") && QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm"); // thousands of files are synced
    installFaults();
    const QApplication application(argc, argv);
    QFontMetrics(QApplication::font()).horizontalAdvance(u'x'); // or each child would look for the fonts anew
    tst_Proof tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "tst_proof.moc"
