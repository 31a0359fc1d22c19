#include "datafile/Progress.h"

#include "platform/runtime/RuntimeError.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

constexpr qint64 firstShown = 1000;  // milliseconds
constexpr qint64 betweenShown = 200; // milliseconds

std::atomic_bool stopAsked = false;
Progress *current = nullptr;
static_assert(std::atomic_bool::is_always_lock_free, "a signal handler may set it");

} // namespace

void stopOnSignals()
{
    struct sigaction action = {};
    action.sa_handler = [](int) { stopAsked = true; };
    sigemptyset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaction(number, &action, nullptr);
}

bool isStopAsked()
{
    return stopAsked;
}

void stopOnSignals(data::Database &file)
{
    file.stopWhen([] {
        if (current)
            current->show();
        return isStopAsked();
    });
}

Progress::Progress(const QString &what) : m_what(what), m_isTerminal(isatty(STDERR_FILENO) == 1)
{
    m_sinceBegin.start();
    current = this;
}

Progress::~Progress()
{
    finish();
    current = nullptr;
}

void Progress::finish()
{
    if (m_lastShown > 0)
        std::fputs("\r\033[K", stderr);
    m_lastShown = 0;
}

void Progress::at(qint64 done, qint64 all)
{
    if (stopAsked)
        throw runtime::RuntimeError(Interrupted, u"interrupted"_s);
    m_percent = all > 0 ? done * 100 / all : 100;
    show();
}

void Progress::show()
{
    const qint64 now = m_sinceBegin.elapsed();
    if (!m_isTerminal || now < firstShown || now < m_lastShown + betweenShown)
        return;
    m_lastShown = now;
    const QString state = m_percent < 0 ? u"%1 s"_s.arg(now / 1000) : u"%1 %"_s.arg(m_percent);
    std::fprintf(stderr, "\r%s: %s\033[K", qPrintable(m_what), qPrintable(state));
    std::fflush(stderr);
}

} // namespace datafile
