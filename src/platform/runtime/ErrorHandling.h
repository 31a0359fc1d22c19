// The error styles of a handler that does not simply let a failure escape to the report, as they read at the place of
// use. The style that reports error 7 alone needs a message box and lives in the desktop room.
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
        } catch (const std::exception &) { // this style passes over every failure
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
    } catch (const std::exception &) { // this style tells nobody
        return false;
    }
}

} // namespace runtime
