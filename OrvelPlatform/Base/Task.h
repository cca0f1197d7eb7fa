#pragma once

#include <concepts>
#include <coroutine>
#include <exception>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "OrvelPlatform/Base/Precondition.h"

/// Work that can wait without holding up its thread: a coroutine whose result another one awaits. Everything happens on
/// one thread, the main loop's; nothing here locks.
///
///     Task<int> doubled(Task<int> number)
///     {
///         const auto value = co_await number;
///         co_return 2 * value;
///     }
///
/// How to write one: take arguments by value (a reference may be gone after the first wait); no lambda that captures;
/// await a variable, and keep whatever has a destructor out of the expression with `co_await` (g++ 12 may destroy it
/// twice).
namespace orvel {

template <typename T>
class Task;

/// What a task came to: its value, or what it threw.
template <typename T>
using TaskOutcome = std::expected<T, std::exception_ptr>;

namespace Detail {

/// What promises of all types share: a lazy beginning, and handing over to whoever awaits.
struct TaskPromiseBase {
    struct HandOver {
        bool await_ready() const noexcept { return false; }
        template <typename Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> done) const noexcept
        {
            return done.promise().waiting;
        }
        void await_resume() const noexcept { }
    };

    std::suspend_always initial_suspend() const noexcept { return {}; }
    HandOver final_suspend() const noexcept { return {}; }

    std::coroutine_handle<> waiting = std::noop_coroutine();
};

template <typename T>
struct TaskPromise : TaskPromiseBase {
    Task<T> get_return_object();

    template <typename Value>
    requires std::constructible_from<T, Value>
    void return_value(Value&& value) { outcome.emplace(std::in_place, std::forward<Value>(value)); }
    void return_value(T value) { outcome.emplace(std::in_place, std::move(value)); }
    void unhandled_exception() { outcome.emplace(std::unexpect, std::current_exception()); }

    std::optional<TaskOutcome<T>> outcome;
};

template <>
struct TaskPromise<void> : TaskPromiseBase {
    Task<void> get_return_object();

    void return_void() { outcome.emplace(); }
    void unhandled_exception() { outcome.emplace(std::unexpect, std::current_exception()); }

    std::optional<TaskOutcome<void>> outcome;
};

}

/// A coroutine with a result. It begins when it is awaited, once; a task that is destroyed before its end is given up
/// where it stands, and with it all that it awaits. What it throws is thrown where it is awaited.
template <typename T>
class [[nodiscard]] Task {
public:
    using promise_type = Detail::TaskPromise<T>;

    explicit Task(std::coroutine_handle<promise_type> coroutine) : m_coroutine(coroutine) { }
    Task(Task&& other) noexcept : m_coroutine(std::exchange(other.m_coroutine, nullptr)) { }
    Task& operator=(Task&& other) noexcept
    {
        std::swap(m_coroutine, other.m_coroutine);
        return *this;
    }
    ~Task()
    {
        if (m_coroutine)
            m_coroutine.destroy();
    }

    /// The task must outlive the wait, which a variable of the waiting coroutine does.
    auto operator co_await() const
    {
        precondition(m_coroutine && !m_coroutine.done(), "a task is awaited once");
        return Awaiter { m_coroutine };
    }

private:
    struct Awaiter {
        std::coroutine_handle<promise_type> task;

        bool await_ready() const noexcept { return false; }
        bool await_suspend(std::coroutine_handle<> waiting) const
        {
            // A task that ends before its first wait hands over to nobody and is simply gone on from: g++ transfers
            // from coroutine to coroutine on the same stack only when it optimises, and a loop would grow it.
            task.resume();
            if (task.done())
                return false;
            task.promise().waiting = waiting;
            return true;
        }
        T await_resume() const
        {
            auto& outcome = *task.promise().outcome;
            if (!outcome)
                std::rethrow_exception(outcome.error());
            if constexpr (!std::is_void_v<T>)
                return *std::move(outcome);
        }
    };

    std::coroutine_handle<promise_type> m_coroutine;
};

template <typename T>
Task<T> Detail::TaskPromise<T>::get_return_object()
{
    return Task<T>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> Detail::TaskPromise<void>::get_return_object()
{
    return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

/// Work that was started and is not over. Destroyed, it gives the work up, whose completion is then never called; do
/// not destroy it from within the work itself. The completion may destroy it.
class [[nodiscard]] StartedTask {
public:
    StartedTask() = default;
    StartedTask(StartedTask&& other) noexcept = default;
    StartedTask& operator=(StartedTask&& other) noexcept
    {
        std::swap(m_work, other.m_work);
        return *this;
    }
    ~StartedTask()
    {
        if (!isOver())
            std::exchange(m_work->coroutine, nullptr).destroy();
    }

    bool isOver() const { return !m_work || !m_work->coroutine; }

    /// Lets the work go on by itself; it then has to come to an end before the loop does.
    void detach() { m_work = nullptr; }

private:
    struct Work {
        std::coroutine_handle<> coroutine; // null once the work is over
    };

    /// The coroutine at the root of started work, which begins at once and destroys itself at its end.
    struct Root {
        struct promise_type {
            Root get_return_object() { return { std::coroutine_handle<promise_type>::from_promise(*this) }; }
            std::suspend_always initial_suspend() const noexcept { return {}; }
            std::suspend_never final_suspend() const noexcept { return {}; }
            void return_void() const { }
            void unhandled_exception() const { std::terminate(); } // a completion must not throw
        };
        std::coroutine_handle<promise_type> coroutine;
    };

    template <typename T>
    static Root run(Task<T> task, std::function<void(TaskOutcome<T>)> completion, std::shared_ptr<Work> work)
    {
        TaskOutcome<T> outcome = std::unexpected(std::exception_ptr());
        try {
            if constexpr (std::is_void_v<T>) {
                co_await task;
                outcome.emplace();
            } else {
                outcome = co_await task;
            }
        } catch (...) {
            outcome = std::unexpected(std::current_exception());
        }
        work->coroutine = nullptr;
        completion(std::move(outcome));
    }

    explicit StartedTask(std::shared_ptr<Work> work) : m_work(std::move(work)) { }

    template <typename T>
    friend StartedTask start(Task<T> task, std::type_identity_t<std::function<void(TaskOutcome<T>)>> completion);

    std::shared_ptr<Work> m_work;
};

/// Begins a task from outside any coroutine; it runs until its first wait before this returns. `completion` gets what
/// it came to, perhaps before this returns, and must not throw.
template <typename T>
StartedTask start(Task<T> task, std::type_identity_t<std::function<void(TaskOutcome<T>)>> completion)
{
    auto work = std::make_shared<StartedTask::Work>();
    const auto root = StartedTask::run<T>(std::move(task), std::move(completion), work);
    work->coroutine = root.coroutine;
    root.coroutine.resume();
    return StartedTask(std::move(work));
}

}
