#include "OrvelPlatform/Base/Cancellation.h"

#include <algorithm>

namespace orvel {

struct Cancellation::State {
    bool isCancelled = false;
    std::vector<std::weak_ptr<std::function<void()>>> watchers;
};

Cancellation::Cancellation() : m_state(std::make_shared<State>()) { }

void Cancellation::cancel() const
{
    const auto state = m_state; // whoever is told may destroy this
    state->isCancelled = true;
    for (const auto& watcher : std::exchange(state->watchers, {})) {
        if (const auto what = watcher.lock())
            (*what)();
    }
}

bool Cancellation::isCancelled() const
{
    return m_state->isCancelled;
}

Cancellation::Watch Cancellation::watch(std::function<void()> what) const
{
    Watch watch;
    watch.m_what = std::make_shared<std::function<void()>>(std::move(what));
    watch.m_state = m_state;
    m_state->watchers.emplace_back(watch.m_what);
    return watch;
}

Cancellation::Watch::~Watch()
{
    m_what = nullptr;
    if (m_state)
        std::erase_if(m_state->watchers, [](const auto& watcher) { return watcher.expired(); });
}

}
