#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/EventLoop.h"

namespace orvel::tests {

/// Runs a task beside others; `done` gets its answer.
template <typename T>
void begin(Task<T> task, std::function<void(T)> done)
{
    start(std::move(task), [done = std::move(done)](TaskOutcome<T> outcome) { done(*std::move(outcome)); }).detach();
}

/// Turns the loop until something holds; false when it does not come to hold within `limit`.
inline bool turnUntil(
    EventLoop& loop, const std::function<bool()>& holds, std::chrono::milliseconds limit = std::chrono::seconds { 20 })
{
    bool isOver = false;
    const auto timer = loop.after(limit, [&] { isOver = true; });
    while (!holds() && !isOver)
        loop.turn(true);
    return holds();
}

inline void turnFor(EventLoop& loop, std::chrono::milliseconds time)
{
    turnUntil(
        loop, [] { return false; }, time);
}

/// The same for what nothing on the loop tells of.
inline bool lookUntil(EventLoop& loop, const std::function<bool()>& holds)
{
    for (int look = 0; look < 5000 && !holds(); ++look)
        turnFor(loop, std::chrono::milliseconds { 2 });
    return holds();
}

/// What a task gives, waited for.
template <typename T>
T finished(EventLoop& loop, Task<T> task)
{
    std::optional<T> result;
    begin<T>(std::move(task), [&](T answer) { result.emplace(std::move(answer)); });
    const auto isFinished = turnUntil(loop, [&] { return result.has_value(); });
    if (!isFinished)
        std::terminate(); // the task still refers to what would go now
    return *std::move(result);
}

}
