#include "OrvelPlatform/Desktop/EventLoop.h"

#include <algorithm>
#include <glib-unix.h>
#include <limits>
#include <utility>

namespace orvel {

namespace {

using Callback = std::function<void()>;

/// A source as GLib has it, which owns its callback and runs it once or as long as it lives.
SourceHandle attached(GSource* source, _GMainContext* context, Callback what, bool isRepeated)
{
    const auto once = +[](void* data) -> gboolean {
        const auto callback = std::move(*static_cast<Callback*>(data)); // it may destroy this source
        callback();
        return G_SOURCE_REMOVE;
    };
    const auto always = +[](void* data) -> gboolean {
        const auto callback = *static_cast<Callback*>(data);
        callback();
        return G_SOURCE_CONTINUE;
    };
    const auto release = +[](void* data) { std::unique_ptr<Callback>(static_cast<Callback*>(data)).reset(); };
    g_source_set_callback(
        source, isRepeated ? always : once, std::make_unique<Callback>(std::move(what)).release(), release);
    g_source_attach(source, context);
    return SourceHandle(source);
}

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

void EventLoop::turn(bool mayWait)
{
    const LoopScope scope(m_context.get());
    g_main_context_iteration(m_context.get(), mayWait ? TRUE : FALSE);
}

SourceHandle EventLoop::after(std::chrono::milliseconds delay, Callback what) const
{
    using Limits = std::numeric_limits<int>;
    const auto bounded = std::clamp<std::chrono::milliseconds::rep>(delay.count(), 0, Limits::max());
    return attached(g_timeout_source_new(static_cast<guint>(bounded)), m_context.get(), std::move(what), false);
}

SourceHandle EventLoop::whenIdle(Callback what) const
{
    auto* source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_LOW);
    return attached(source, m_context.get(), std::move(what), false);
}

SourceHandle EventLoop::onSignal(int signal, Callback what) const
{
    return attached(g_unix_signal_source_new(signal), m_context.get(), std::move(what), true);
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
