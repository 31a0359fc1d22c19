// How a handler deals with failures that it does not let escape to the report. A third way, to report error 7 and
// ignore all others, needs a message box: see desktop/ErrorReport.h.
#pragma once

#include "platform/runtime/RuntimeError.h"

#include <exception>

namespace runtime {

// Runs each step; a step that fails is passed over and the next one runs.
template <class... Steps> void everyStep(Steps &&...steps)
{
    const auto run = [](auto &step) {
        try {
            step();
        } catch (const std::exception &) { // ignored on purpose
        }
    };
    (run(steps), ...);
}

// Runs the steps of the body until one fails, which ends it without a word. True when none failed.
template <class Body> bool endSilently(Body &&body)
{
    try {
        body();
        return true;
    } catch (const std::exception &) { // not reported on purpose
        return false;
    }
}

} // namespace runtime
