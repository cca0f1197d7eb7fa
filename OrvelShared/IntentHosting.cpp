#include "OrvelShared/IntentHosting.h"

#include <utility>

#include "OrvelPlatform/Base/Bundle.h"

namespace orvel::IntentHosting {

namespace {

constexpr std::chrono::milliseconds step { 50 };

/// Longer than any wait; still far from where sums overflow.
constexpr std::chrono::years longest { 1000 };

Clock::Uptime wait(Seconds seconds)
{
    if (!(seconds > Seconds { 0 }))
        return Clock::Uptime { 0 };
    return seconds >= longest ? longest : std::chrono::floor<Clock::Uptime>(seconds);
}

}

std::shared_ptr<OrvelIntentHost> host;

void register_(std::shared_ptr<OrvelIntentHost> newHost)
{
    host = std::move(newHost);
}

bool isAppProcess()
{
    return Bundle::main().path().extension() == ".app";
}

Task<std::shared_ptr<OrvelIntentHost>> current(Seconds waitingUpTo, Clock& clock, Cancellation cancellation)
{
    if (!isAppProcess())
        co_return nullptr;
    // PORT: by the clock that goes on evenly, so that a clock set meanwhile neither ends nor prolongs the wait.
    const auto deadline = clock.uptime() + wait(waitingUpTo);
    while (!host && clock.uptime() < deadline) {
        // Cancelling cuts one pause short. The wait goes on all the same, and never without a pause.
        if (cancellation.isCancelled()) {
            auto pause = clock.sleep(step);
            co_await pause;
        } else {
            auto pause = clock.sleep(step, cancellation);
            co_await pause;
        }
    }
    co_return host;
}

}
