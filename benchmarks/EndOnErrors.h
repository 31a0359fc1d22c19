// An error that a handler raises ends the process at once: a figure of work that was not done would look fast.
#pragma once

#include "platform/desktop/ErrorReport.h"
#include "platform/runtime/RuntimeError.h"

#include <cstdio>
#include <cstdlib>

inline void endOnErrors()
{
    desktop::setErrorReport([](const runtime::RuntimeError &error) {
        std::fprintf(stderr, "%s\n", error.description().toLocal8Bit().constData());
        std::_Exit(EXIT_FAILURE);
    });
}
