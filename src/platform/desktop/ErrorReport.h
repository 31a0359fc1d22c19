// What becomes of an error that a handler does not catch, and the guard that keeps every exception away from Qt.
#pragma once

#include "platform/runtime/RuntimeError.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace desktop {

// Shows the critical box "Run-time error 'N':", a blank line and the description, says the same on standard error and
// ends the process with exit code 1.
void reportUnhandled(const runtime::RuntimeError &error);

// Puts another report in the place of that one, for a test; an empty function puts it back.
void setErrorReport(std::function<void(const runtime::RuntimeError &)> report);

// The exception in flight as the run-time's error: std::bad_alloc is error 7.
runtime::RuntimeError currentError();

// Runs the handler; what escapes goes to the report. True when nothing did.
template <class Handler> bool guarded(Handler &&handler)
{
    try {
        std::forward<Handler>(handler)();
        return true;
    } catch (...) {
        reportUnhandled(currentError());
        return false;
    }
}

// Error 7 gives the message "Too Many windows are currently open" and the error's description; any other is swallowed.
void reportOutOfMemoryOnly(const std::function<void()> &steps);

// Calls the handler with the signal's arguments, or with none when it takes none.
template <class Receiver, class Handler, class... Arguments>
void callHandler(Receiver *receiver, Handler handler, Arguments &&...arguments)
{
    if constexpr (std::is_invocable_v<Handler, Receiver *, Arguments...>)
        std::invoke(handler, receiver, std::forward<Arguments>(arguments)...);
    else
        std::invoke(handler, receiver);
}

// Connects a signal to a handler of the receiver, through the guard.
template <class Sender, class Signal, class Receiver, class Handler>
void on(Sender *sender, Signal signal, Receiver *receiver, Handler handler)
{
    Receiver::connect(sender, signal, receiver, [receiver, handler](auto &&...arguments) {
        guarded([&] { callHandler(receiver, handler, arguments...); });
    });
}

} // namespace desktop
