#include "proof/Trial.h"

#include "platform/runtime/Clock.h"
#include "support/Dialogs.h"

#include <QElapsedTimer>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace proof {

namespace {

using Rows = QSet<QString>;

constexpr qint64 tooLong = 60'000'000; // microseconds: far more than any action takes under sanitizers

// Of the child.
int parent = -1;
int commits = 0;
std::function<void()> atBox;

// A line to the parent, which gets it even if the process is killed right after.
void tell(char kind, const QString &text = {})
{
    const QByteArray line = kind + text.toUtf8().replace('\n', ' ') + '\n';
    if (write(parent, line.constData(), size_t(line.size())) != line.size())
        _exit(2);
}

void tellFault()
{
    if (hasCome())
        tell('F');
}

Ending endingOf(const QByteArray &lines)
{
    Ending ending;
    for (const QByteArray &line : lines.split('\n')) {
        const QString text = QString::fromUtf8(line.mid(1));
        ending.faultCame |= line.startsWith('F');
        ending.wentOn |= line.startsWith('S');
        if (line.startsWith('C'))
            ending.calls << text.toLongLong();
        if (line.startsWith('M'))
            ending.texts << Ending::Text{text.section(u' ', 1), text.section(u' ', 0, 0).toInt()};
        if (line.startsWith('L'))
            ending.losses << Ending::Loss{text, ending.texts.size()};
    }
    return ending;
}

// Tells the text of each message box and goes on by its button "Yes" or "OK".
void answerBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    tellFault();
    tell('M', QString::number(commits) + u' ' + box->text());
    if (atBox)
        atBox();
    box->button(box->standardButtons() & QMessageBox::Yes ? QMessageBox::Yes : QMessageBox::Ok)->click();
}

// What is put off until a handler is through belongs to the action.
void perform(const Action &action, const DataFolder &folder)
{
    desktop::guarded([&] { action.run(folder); });
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

Rows rowsOf(const data::Database &file)
{
    Rows rows;
    for (const QString &table : ::rowsOf(file, "SELECT name FROM sqlite_master WHERE type = 'table'"))
        for (const QString &row : ::rowsOf(file, "SELECT rowid, * FROM \"" + table.toUtf8() + '"'))
            rows << table + u": "_s + row;
    // Column by column: a table is made without one whose making failed in silence.
    for (const QString &made : ::rowsOf(
             file,
             "SELECT made.type, made.name, columns.name, columns.type, columns.\"notnull\" FROM sqlite_master AS made "
             "LEFT JOIN pragma_table_info(made.name) AS columns"))
        rows << made;
    return rows;
}

void expectNone(QStringList &faults, const QString &fault, const Rows &rows)
{
    if (!rows.isEmpty())
        faults << fault + u": "_s + rows.values().join(u"; "_s).left(300);
}

} // namespace

QString Ending::asText() const
{
    QStringList said;
    for (const Text &each : texts)
        said << each.text;
    // Of a stack that was written at a signal, what is ours.
    const QStringList frames = standardError.split(u'\n').filter(QRegularExpression(u"^#.*(src|datafile|proof)/"_s));
    return u"%1 [%2]\n%3"_s.arg(isHung ? u"hangs"_s : u"exit code %1"_s.arg(exitCode), said.join(u" / "_s),
                                frames.isEmpty() ? standardError.right(400) : frames.join(u'\n'));
}

Ending Trial::inChild(const std::function<void()> &body, qint64 killAfter)
{
    std::array<int, 2> pipes{};
    if (pipe(pipes.data()) != 0)
        qFatal("no pipe");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(pipes[0]);
        parent = pipes[1];
        const int errors = open(qPrintable(m_folder.path(u"stderr"_s)), O_CREAT | O_WRONLY | O_TRUNC, 0600);
        dup2(errors, STDERR_FILENO);
        dup2(errors, STDOUT_FILENO);
        runtime::setClock([] { return QDateTime(QDate(2026, 1, 31), QTime(9, 5)); });
        QTimer answers;
        answers.callOnTimeout(answerBox);
        answers.start(1);
        body();
        tellFault();
        _exit(0);
    }
    close(pipes[1]);
    QByteArray lines;
    bool isLate = false;
    QElapsedTimer since;
    since.start();
    for (std::array<char, 4096> bytes{};;) {
        const qint64 left = qMax<qint64>(0, (killAfter < 0 ? tooLong : killAfter) - since.nsecsElapsed() / 1000);
        const timespec wait{left / 1'000'000, left % 1'000'000 * 1000};
        pollfd end{pipes[0], POLLIN, 0};
        if (!isLate && ppoll(&end, 1, &wait, nullptr) == 0) {
            isLate = true;
            kill(child, SIGKILL);
        }
        const ssize_t size = read(pipes[0], bytes.data(), bytes.size());
        if (size <= 0)
            break;
        lines.append(bytes.data(), size);
    }
    close(pipes[0]);
    int status = 0;
    waitpid(child, &status, 0);
    Ending ending = endingOf(lines);
    ending.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    ending.isHung = isLate && killAfter < 0;
    ending.standardError = QString::fromUtf8(contentOf(m_folder.path(u"stderr"_s))).trimmed();
    return ending;
}

Ending Trial::run(Plan plan, qint64 killAfter)
{
    return inChild(
        [&] {
            arm(plan);
            perform(m_action, m_folder);
            if (!hasCome())
                return;
            tellFault();
            tell('S');
            arm({});
            for (const QString &part : {QString(), u"-journal"_s}) // which may have to be rolled back
                QFile::copy(file() + part, silentFile() + part);
            perform(m_action, m_folder);
        },
        killAfter);
}

Ending Trial::watch(int parts, quint32 seed)
{
    return inChild(
        [&] {
            std::mt19937 chance(seed);
            int point = 0;
            const auto lose = [&] {
                ++point;
                for (int part = 0; part <= parts; ++part) {
                    const QString name = u"lost-%1-%2"_s.arg(point).arg(part);
                    writeAfterLoss(m_folder.path(name), part ? &chance : nullptr);
                    tell('L', name);
                }
            };
            QFile::copy(file(), fileAfter(0));
            watchDisk(lose, [&] { QFile::copy(file(), fileAfter(++commits)); });
            atBox = lose;
            arm({});
            perform(m_action, m_folder);
            lose();
            for (const Fault fault : allFaults)
                tell('C', QString::number(callsSoFar(fault)));
        },
        -1);
}

Expectation::Expectation(const Action &action, int parts, quint32 seed) : m_trial(action)
{
    QElapsedTimer since;
    since.start();
    m_undisturbed = m_trial.watch(parts, seed);
    m_microseconds = since.nsecsElapsed() / 1000;
    while (QFile::exists(m_trial.fileAfter(int(m_states.size())))) {
        data::Database file;
        file.open(m_trial.fileAfter(int(m_states.size())));
        m_states << rowsOf(file);
    }
    m_always = m_states.constFirst();
    for (const Rows &state : std::as_const(m_states)) {
        m_always &= state;
        m_ever |= state;
    }
}

QStringList Expectation::faultsOfFile(const QString &path, const QList<Ending::Text> &texts, Rule rule) const
{
    QStringList faults;
    Rows rows;
    try {
        data::Database file;
        file.open(path);
        const QStringList check = ::rowsOf(file, "PRAGMA integrity_check");
        if (check != QStringList(u"ok"_s))
            return {u"integrity_check: "_s + check.join(u", "_s)};
        rows = rowsOf(file);
    } catch (const runtime::RuntimeError &error) {
        return {u"cannot be read: "_s + error.description()};
    }
    expectNone(faults, u"lost"_s, m_always - rows);
    expectNone(faults, u"from nowhere"_s, rows - m_ever);
    if (rule == Rule::AsAfterACommit && !m_states.contains(rows))
        faults << u"not the rows after a commit"_s;
    for (const Ending::Text &each : texts) {
        const auto known = std::find_if(m_undisturbed.texts.cbegin(), m_undisturbed.texts.cend(),
                                        [&each](const Ending::Text &text) { return text.text == each.text; });
        if (known == m_undisturbed.texts.cend())
            continue;
        const Rows &before = m_states.constFirst();
        const Rows &promised = m_states[known->commits];
        expectNone(faults, u"told and not there, "_s + each.text, ((promised - before) & m_states.constLast()) - rows);
        expectNone(faults, u"told and still there, "_s + each.text, (before - promised) & rows);
    }
    return faults;
}

QStringList Expectation::faultsAfter(const Trial &trial, const Ending &ending) const
{
    if (ending.isHung || ending.exitCode != (ending.isReported() ? 1 : 0))
        return {ending.asText()};
    if (!ending.wentOn)
        return faultsOfFile(trial.file(), ending.texts, Rule::RowByRow);
    // The second time may meet the action's own errors, as for what is there already, but no more of the failure; and
    // its rows are not known.
    QStringList faults = faultsOfFile(trial.silentFile(), {}, Rule::RowByRow);
    faults += faultsOfFile(trial.file(), {}, Rule::RowByRow).filter(QRegularExpression(u"^(integrity|cannot)"_s));
    if (ending.isReported() && ending.asText().contains(QRegularExpression(u"disk|memory|'file"_s)))
        faults << u"cannot go on after a failure passed over in silence: "_s + ending.asText();
    return faults;
}

} // namespace proof
