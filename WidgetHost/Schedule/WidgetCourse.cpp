#include "WidgetHost/Schedule/WidgetCourse.h"

#include <algorithm>
#include <utility>

namespace orvel {

namespace {

/// A timeline that ends sooner after its arrival than this is hasty. One may be, just before something changes; an
/// extension that gives nothing else would keep both of us busy.
constexpr Clock::Uptime haste = std::chrono::seconds { 1 };

using Entry = ExtensionTimeline::Entry;

/// The first entry that is still to come.
auto firstAfter(const ExtensionTimeline& timeline, Date now)
{
    // Before the first entry's date, which a clock that was set back may show, there is nothing better than that entry.
    return std::ranges::upper_bound(timeline.entries.begin() + 1, timeline.entries.end(), now, {}, &Entry::date);
}

ExtensionEntry entryHolding(const ExtensionTimeline& timeline, Date now)
{
    const auto& entry = *std::prev(firstAfter(timeline, now));
    return { entry.date, timeline.moments[entry.moment] };
}

std::optional<Date> nextEntry(const ExtensionTimeline& timeline, Date now)
{
    const auto next = firstAfter(timeline, now);
    return next == timeline.entries.end() ? std::nullopt : std::optional(next->date);
}

/// What a request came to; whoever threw gave no answer.
template <typename T>
Answer<T> answerOf(TaskOutcome<Answer<T>> outcome)
{
    if (outcome)
        return *std::move(outcome);
    return std::unexpected(RequestFault { RequestFault::Kind::unavailable, "The request broke off." });
}

}

WidgetCourse::WidgetCourse(
    ScheduledWidget widget, Clock& clock, WidgetRequests& requests, std::function<void()> answered)
    : m_widget(std::move(widget)), m_clock(clock), m_requests(requests), m_answered(std::move(answered))
{
}

void WidgetCourse::move(HostEnvironment environment)
{
    m_widget.environment = std::move(environment);
    askAnew();
}

void WidgetCourse::askAnew()
{
    m_isTimelineWanted = true;
    m_hastyTimelines = 0;
    m_timelineAttempts.startAfresh();
    m_pictureAttempts.startAfresh();
    if (m_pictureRequest.isOver())
        m_asked.reset();
}

void WidgetCourse::update()
{
    takeTimeline();
    takePicture();
    askForTimeline();
    askForPicture();
    const auto now = m_clock.uptime();
    m_shown.staleSince = earlier(m_timelineAttempts.missedSince(now), m_pictureAttempts.missedSince(now));
}

NextWake WidgetCourse::nextWake() const
{
    NextWake wake { .date = m_reload };
    if (m_timeline)
        wake.include(nextEntry(*m_timeline, m_clock.now()));
    wake.include(m_timelineAttempts.nextChange(m_clock.uptime()));
    wake.include(m_pictureAttempts.nextChange(m_clock.uptime()));
    return wake;
}

void WidgetCourse::takeTimeline()
{
    auto answer = std::exchange(m_timelineAnswer, std::nullopt);
    if (!answer)
        return;
    if (!*answer)
        return m_timelineAttempts.fail(m_clock.uptime());
    m_timelineAttempts.succeed();
    keep(**std::move(answer));
}

void WidgetCourse::keep(ExtensionTimeline timeline)
{
    const auto now = m_clock.now();
    m_hastyTimelines = timeline.reload < now + haste ? m_hastyTimelines + 1 : 0;
    m_reload = timeline.reload;
    if (m_hastyTimelines > 1)
        m_reload = std::max(timeline.reload, now + pauseAfter(m_hastyTimelines - 1));
    m_timeline = std::move(timeline);
    if (std::exchange(m_isEntryBad, false))
        m_asked.reset();
}

void WidgetCourse::takePicture()
{
    auto answer = std::exchange(m_pictureAnswer, std::nullopt);
    if (!answer)
        return;
    if (m_asked != scene())
        return m_asked.reset(); // it comes too late
    if (!*answer)
        return refusePicture(answer->error());
    m_shown.picture = std::make_shared<const HostPicture>(**std::move(answer));
    m_drawn = std::exchange(m_asked, std::nullopt);
    m_shown.environment = m_drawn->environment;
    m_pictureAttempts.succeed();
}

void WidgetCourse::refusePicture(const RequestFault& fault)
{
    m_pictureAttempts.fail(m_clock.uptime());
    m_isEntryBad = fault.kind == RequestFault::Kind::badEntry;
    // At once for the first time only: new timelines may be as bad.
    if (m_isEntryBad && m_pictureAttempts.failures() == 1 && m_timelineRequest.isOver())
        m_isTimelineWanted = true;
}

bool WidgetCourse::isTimelineDue() const
{
    const auto isOver = m_reload && *m_reload <= m_clock.now();
    const auto isMissing = m_isEntryBad && m_pictureAttempts.isDue(m_clock.uptime());
    return m_isTimelineWanted || isOver || isMissing || m_timelineAttempts.isDue(m_clock.uptime());
}

void WidgetCourse::askForTimeline()
{
    if (!m_timelineRequest.isOver() || m_timelineAnswer || !isTimelineDue())
        return;
    m_isTimelineWanted = false;
    m_reload.reset();
    m_timelineAttempts.begin(m_clock);
    if (m_isEntryBad)
        m_pictureAttempts.begin(m_clock); // this is its next attempt
    m_timelineRequest = start(m_requests.timeline(m_widget.kind, m_widget.environment), [this](auto outcome) {
        m_timelineAnswer = answerOf(std::move(outcome));
        m_answered();
    });
}

void WidgetCourse::askForPicture()
{
    const auto wanted = scene();
    if (!wanted || m_pictureAnswer)
        return;
    if (wanted == m_drawn)
        return settleForPicture();
    const auto isAsked = wanted == m_asked;
    if (isAsked && !(m_pictureRequest.isOver() && !m_isEntryBad && m_pictureAttempts.isDue(m_clock.uptime())))
        return;
    m_asked = wanted;
    m_isEntryBad = false;
    m_pictureAttempts.begin(m_clock);
    m_pictureRequest = {}; // of an entry that was replaced
    m_pictureRequest =
        start(m_requests.render(m_widget.kind, wanted->entry, wanted->environment), [this](auto outcome) {
            m_pictureAnswer = answerOf(std::move(outcome));
            m_answered();
        });
}

/// What is shown is what is wanted again: whatever was under way is given up.
void WidgetCourse::settleForPicture()
{
    m_asked.reset();
    m_isEntryBad = false;
    m_pictureRequest = {};
    m_pictureAttempts.succeed();
}

std::optional<WidgetCourse::Scene> WidgetCourse::scene() const
{
    if (!m_timeline)
        return std::nullopt;
    return Scene { entryHolding(*m_timeline, m_clock.now()), m_widget.environment };
}

}
