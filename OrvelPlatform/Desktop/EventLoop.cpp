#include "OrvelPlatform/Desktop/EventLoop.h"

#include <algorithm>
#include <glib-unix.h>
#include <utility>

namespace orvel {

namespace {

using Callback = std::function<void()>;

gboolean runOnce(void* data)
{
    (*static_cast<Callback*>(data))();
    return G_SOURCE_REMOVE;
}

gboolean runAlways(void* data)
{
    (*static_cast<Callback*>(data))();
    return G_SOURCE_CONTINUE;
}

gboolean runWhenReadable(int, GIOCondition, void* data)
{
    return runAlways(data);
}

/// A new source, which owns its callback from now on. GLib keeps that while it runs, whatever becomes of the source.
SourceHandle attached(GSource* source, _GMainContext* context, GSourceFunc run, Callback what)
{
    const auto release = +[](void* data) { std::unique_ptr<Callback>(static_cast<Callback*>(data)).reset(); };
    g_source_set_callback(source, run, std::make_unique<Callback>(std::move(what)).release(), release);
    g_source_attach(source, context);
    return SourceHandle(source);
}

/// Longer waits do not end while anybody looks, and sums of times do not overflow.
constexpr std::chrono::microseconds longestWait = std::chrono::years { 1000 };

}

EventLoop::EventLoop() : m_context(g_main_context_new()) { }

EventLoop EventLoop::ofTheProgram()
{
    return EventLoop(ContextHandle(g_main_context_ref(g_main_context_default())));
}

void EventLoop::run()
{
    m_isToQuit = false;
    while (!m_isToQuit)
        turn(true);
}

void EventLoop::quit()
{
    m_isToQuit = true;
    g_main_context_wakeup(m_context.get());
}

bool EventLoop::turn(bool mayWait)
{
    const LoopScope scope(m_context.get());
    return g_main_context_iteration(m_context.get(), mayWait ? TRUE : FALSE) != FALSE;
}

SourceHandle EventLoop::after(std::chrono::microseconds delay, Callback what) const
{
    using std::chrono::microseconds;
    auto* source = g_timeout_source_new(0);
    g_source_set_ready_time(
        source, g_get_monotonic_time() + std::clamp(delay, microseconds { 0 }, longestWait).count());
    return attached(source, m_context.get(), &runOnce, std::move(what));
}

SourceHandle EventLoop::whenIdle(Callback what) const
{
    auto* source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_LOW);
    return attached(source, m_context.get(), &runOnce, std::move(what));
}

SourceHandle EventLoop::whenReadable(int descriptor, Callback what) const
{
    auto* source = g_unix_fd_source_new(descriptor, G_IO_IN);
    return attached(source, m_context.get(), G_SOURCE_FUNC(&runWhenReadable), std::move(what));
}

SourceHandle EventLoop::onSignal(int signal, Callback what) const
{
    return attached(g_unix_signal_source_new(signal), m_context.get(), &runAlways, std::move(what));
}

LoopScope::LoopScope(_GMainContext* context) : m_context(context)
{
    g_main_context_push_thread_default(m_context);
}

LoopScope::~LoopScope()
{
    g_main_context_pop_thread_default(m_context);
}

}
