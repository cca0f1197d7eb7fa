#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvel {

/// A wish, made by whoever started some work, that it end early. Copies are the same wish; nobody has to grant it. For
/// one thread.
class Cancellation {
    struct State;

public:
    Cancellation();

    /// Makes the wish, once and for all, and tells those who watch for it.
    void cancel() const;
    bool isCancelled() const;

    /// Is told of the wish for as long as it lives.
    class [[nodiscard]] Watch {
    public:
        Watch() = default;
        Watch(Watch&& other) noexcept = default;
        Watch& operator=(Watch&& other) noexcept
        {
            std::swap(m_state, other.m_state);
            std::swap(m_what, other.m_what);
            return *this;
        }
        ~Watch();

    private:
        friend class Cancellation;
        std::shared_ptr<State> m_state;
        std::shared_ptr<std::function<void()>> m_what;
    };

    /// Calls `what` when the wish is made, on the spot. Not for one that has been made already.
    Watch watch(std::function<void()> what) const;

private:
    std::shared_ptr<State> m_state;
};

}
