#pragma once

#include <chrono>
#include <coroutine>
#include <exception>
#include <functional>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/EventLoop.h"

namespace orvel::tests {

struct Unattended {
    struct promise_type {
        Unattended get_return_object() { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() { }
        void unhandled_exception() { std::terminate(); }
    };
};

/// Runs a task beside others; `done` gets its answer.
template <typename T>
Unattended begin(Task<T> task, std::function<void(T)> done)
{
    auto answer = co_await std::move(task);
    done(std::move(answer));
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
