#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "WidgetHost/Schedule/Attempts.h"

namespace orvel {

/// Whether a fault says that nobody sound is there to answer.
bool isOutOfReach(RequestFault::Kind kind);

/// What a request came to; whoever threw gave no answer.
template <typename T>
Answer<T> answerOf(TaskOutcome<Answer<T>> outcome)
{
    if (outcome)
        return *std::move(outcome);
    return std::unexpected(RequestFault { RequestFault::Kind::unavailable, "The request broke off." });
}

/// A question to the extension that is asked until it has a good answer, at most once at a time. It does nothing by
/// itself: its owner calls `take` and then `ask` when an answer came and when something fell due.
template <typename T>
class Question {
public:
    /// One request in a row that nobody answers may be chance.
    static constexpr int mostUnanswered = 1;

    /// `answered` is called when an answer came, perhaps from within `ask`.
    Question(Clock& clock, std::function<void()> answered) : m_clock(clock), m_answered(std::move(answered)) { }
    Question(const Question&) = delete; // the request knows its place
    Question& operator=(const Question&) = delete;

    /// It is to be asked anew, after the one that is under way.
    void want()
    {
        m_isWanted = true;
        m_attempts.startAfresh();
    }

    /// The answer that came, once.
    std::optional<Answer<T>> take()
    {
        auto answer = std::exchange(m_answer, std::nullopt);
        if (!answer)
            return answer;
        if (*answer)
            m_attempts.succeed();
        else
            m_attempts.fail(m_clock.uptime());
        m_unanswered = !*answer && isOutOfReach(answer->error().kind) ? m_unanswered + 1 : 0;
        return answer;
    }

    /// Asks if that is wanted, or due after a failure; whether it did.
    bool ask(const std::function<Task<Answer<T>>()>& request)
    {
        const auto isWaiting = !m_request.isOver() || m_answer;
        if (isWaiting || !(m_isWanted || m_attempts.isDue(m_clock.uptime())))
            return false;
        m_isWanted = false;
        m_attempts.begin(m_clock);
        m_request = start(request(), [this](auto outcome) {
            m_answer = answerOf(std::move(outcome));
            m_answered();
        });
        return true;
    }

    /// False from the second request on that nobody answered, until one is answered.
    bool isReachable() const { return m_unanswered <= mostUnanswered; }

    std::optional<Clock::Uptime> nextChange() const { return m_attempts.nextChange(m_clock.uptime()); }

private:
    Clock& m_clock;
    std::function<void()> m_answered;
    bool m_isWanted = true;
    int m_unanswered = 0; // in a row
    Attempts m_attempts;
    std::optional<Answer<T>> m_answer;
    StartedTask m_request; // last, so that no answer comes to what is half gone
};

}
