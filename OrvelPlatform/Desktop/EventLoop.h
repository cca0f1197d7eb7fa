#pragma once

#include <chrono>
#include <functional>

#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

/// GLib's loop, on which everything here runs: requests, replies and timers. For one thread. What is started on a loop
/// is destroyed before it.
class EventLoop {
public:
    /// A loop of its own, which turns only while somebody runs it. Libraries in other programs' processes use these.
    EventLoop();

    /// The program's main loop, which a toolkit turns. For programs only.
    static EventLoop ofTheProgram();

    /// Turns until `quit`.
    void run();
    void quit();

    /// Serves what is due, after waiting for it where it may. False when there was nothing.
    bool turn(bool mayWait);

    /// What is to be run later on the loop, unless the handle is destroyed before; it may be destroyed by what it runs.
    /// `after` runs once; `whenIdle` once, when nothing else is due; `whenReadable` and `onSignal` each time.
    [[nodiscard]] SourceHandle after(std::chrono::microseconds delay, std::function<void()> what) const;
    [[nodiscard]] SourceHandle whenIdle(std::function<void()> what) const;
    [[nodiscard]] SourceHandle whenReadable(int descriptor, std::function<void()> what) const;
    [[nodiscard]] SourceHandle onSignal(int signal, std::function<void()> what) const;

    _GMainContext* context() const { return m_context.get(); }

private:
    explicit EventLoop(ContextHandle context) : m_context(std::move(context)) { }

    ContextHandle m_context;
    bool m_isToQuit = false;
};

/// While it lives, what GLib starts on this thread answers on the loop.
class LoopScope {
public:
    explicit LoopScope(_GMainContext* context);
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;
    ~LoopScope();

private:
    _GMainContext* m_context;
};

}
