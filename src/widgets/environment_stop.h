#pragma once

#include <QWidget>

#include <functional>

namespace ferna {

/// Runs one event handler. A run-time error that no handler of the program catches stops it here: a
/// box tells the classic number and the text, with two ways on: back to the program (the default;
/// the command is abandoned and the state stays as it stands), or the end of the program with exit
/// code 1 and without saving. Returns false where the handler was stopped.
bool guarded(QWidget* form, const std::function<void()>& handler);

/// Runs a step that its command can do without. Where the step is stopped, the same box says in
/// `whatComes` how the command goes on. Returns false where the engineer ends the program instead.
bool goesOnWithout(QWidget* form, const std::function<void()>& step, const QString& whatComes);

/// Calls a handler with the arguments of a signal, or without where it takes none.
template <typename Handler, typename... Arguments>
void callHandler(const Handler& handler, Arguments... arguments) {
    if constexpr (std::is_invocable_v<const Handler&, Arguments...>)
        handler(arguments...);
    else
        handler();
}

/// The connection of a signal to a handler that runs under `guarded`.
template <typename Sender, typename Signal, typename Handler>
void connectGuarded(Sender* sender, Signal signal, QWidget* form, Handler handler) {
    QObject::connect(sender, signal, form, [form, handler](auto... arguments) {
        guarded(form, [&] { callHandler(handler, arguments...); });
    });
}

} // namespace ferna
