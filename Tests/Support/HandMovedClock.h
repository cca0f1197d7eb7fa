#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Clock.h"

/// A clock that stands still until a test moves it. What falls due is called on the way, in order, at its own time.
class HandMovedClock : public orvel::Clock {
public:
    explicit HandMovedClock(orvel::Date now) : m_now(now) { }

    orvel::Date now() const override { return m_now; }
    Uptime uptime() const override { return m_uptime; }

    std::unique_ptr<Timer> after(Uptime span, std::function<void()> what) override
    {
        return keep({ m_uptime + span, std::move(what) });
    }
    std::unique_ptr<Timer> at(orvel::Date date, std::function<void()> what) override
    {
        return keep({ date, std::move(what) });
    }

    /// Lets time pass.
    void advance(Uptime span)
    {
        const auto end = m_uptime + span;
        while (const auto alarm = first()) {
            if (m_uptime + wait(*alarm) > end)
                break;
            pass(wait(*alarm));
            ++m_calls;
            alarm->isDone = true;
            alarm->what();
        }
        pass(end - m_uptime);
    }

    /// Sets the clock on the wall; no time passes.
    void set(orvel::Date date)
    {
        m_now = date;
        advance(Uptime { 0 });
    }

    /// How often something fell due, and how much waits.
    int calls() const { return m_calls; }
    std::ptrdiff_t waiting() const { return std::ranges::count_if(m_alarms, isAhead); }

private:
    struct Alarm {
        std::variant<Uptime, orvel::Date> due;
        std::function<void()> what;
        bool isDone = false;
    };
    struct Kept : Timer {
        explicit Kept(std::shared_ptr<Alarm> itsAlarm) : alarm(std::move(itsAlarm)) { }
        std::shared_ptr<Alarm> alarm;
    };

    static bool isAhead(const std::weak_ptr<Alarm>& alarm)
    {
        const auto found = alarm.lock();
        return found && !found->isDone;
    }

    std::unique_ptr<Timer> keep(Alarm alarm)
    {
        auto kept = std::make_unique<Kept>(std::make_shared<Alarm>(std::move(alarm)));
        m_alarms.push_back(kept->alarm);
        return kept;
    }

    Uptime wait(const Alarm& alarm) const
    {
        const auto* uptime = std::get_if<Uptime>(&alarm.due);
        return std::max(Uptime { 0 }, uptime ? *uptime - m_uptime : std::get<orvel::Date>(alarm.due) - m_now);
    }

    /// The alarm that falls due next; of two at once the one made first.
    std::shared_ptr<Alarm> first()
    {
        std::erase_if(m_alarms, [](const auto& alarm) { return !isAhead(alarm); });
        const auto found =
            std::ranges::min_element(m_alarms, {}, [&](const auto& alarm) { return wait(*alarm.lock()); });
        return found == m_alarms.end() ? nullptr : found->lock();
    }

    void pass(Uptime span)
    {
        m_now += span;
        m_uptime += span;
    }

    orvel::Date m_now;
    Uptime m_uptime { 0 };
    std::vector<std::weak_ptr<Alarm>> m_alarms;
    int m_calls = 0;
};
