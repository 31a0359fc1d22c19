#include "platform/desktop/ErrorReport.h"

#include "platform/desktop/MsgBox.h"

#include <cstdio>
#include <cstdlib>
#include <new>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

std::function<void(const runtime::RuntimeError &)> &reportInstead()
{
    static std::function<void(const runtime::RuntimeError &)> report;
    return report;
}

} // namespace

void reportUnhandled(const runtime::RuntimeError &error)
{
    if (reportInstead())
        return reportInstead()(error);
    const QString text = u"Run-time error '%1':\n\n%2"_s.arg(QString::number(error.number()), error.description());
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
    MsgBox(text, vbCritical);
    // At once: what is left on the stack are handlers of windows that must not run on.
    std::_Exit(EXIT_FAILURE);
}

void setErrorReport(std::function<void(const runtime::RuntimeError &)> report)
{
    reportInstead() = std::move(report);
}

runtime::RuntimeError currentError()
{
    try {
        throw;
    } catch (const runtime::RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return runtime::RuntimeError(runtime::OutOfMemory);
    } catch (const std::exception &error) {
        return {-1, QString::fromLocal8Bit(error.what())};
    } catch (...) {
        return {-1, u"Unknown error"_s};
    }
}

void reportOutOfMemoryOnly(const std::function<void()> &steps)
{
    try {
        steps();
    } catch (...) {
        const runtime::RuntimeError error = currentError();
        if (error.number() == runtime::OutOfMemory)
            MsgBox(u"Too Many windows are currently open\n"_s + error.description());
    }
}

} // namespace desktop
