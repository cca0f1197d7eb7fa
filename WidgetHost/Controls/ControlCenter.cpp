#include "WidgetHost/Controls/ControlCenter.h"

#include <algorithm>
#include <utility>

namespace orvel {

ControlCenter::ControlCenter(Clock& clock, ControlRequests& requests, Events events)
    : m_clock(clock)
    , m_requests(requests)
    , m_events(std::move(events))
    , m_timer(clock, [this] { update(); })
    , m_members(clock, [this] { update(); })
{
}

void ControlCenter::setEnvironment(const HostEnvironment& environment)
{
    if (m_environment == environment)
        return;
    m_environment = environment;
    m_members.want();
    for (const auto& course : m_courses)
        course->move(environment);
    update();
}

void ControlCenter::reload(const std::vector<std::string>& kinds)
{
    for (const auto& course : m_courses) {
        if (kinds.empty() || std::ranges::find(kinds, course->shown().member.kind) != kinds.end())
            course->reload();
    }
    update();
}

void ControlCenter::clockWasSet()
{
    for (const auto& course : m_courses)
        course->askAnew();
    update();
}

bool ControlCenter::use(const std::string& kind, std::optional<std::string> activationToken)
{
    auto* course = find(kind);
    if (!course || !course->use({ .activationToken = std::move(activationToken) }))
        return false;
    update();
    return true;
}

void ControlCenter::takeMembers()
{
    const auto answer = m_members.take();
    if (answer && *answer)
        keep(**answer);
}

/// Controls that were there before go on undisturbed; of two of one kind the first counts.
void ControlCenter::keep(const std::vector<ExtensionMember>& members)
{
    auto before = std::exchange(m_courses, {});
    for (const auto& member : members) {
        if (member.role == ExtensionMember::Role::widget || find(member.kind))
            continue;
        const auto known = std::ranges::find_if(before, [&](const auto& course) {
            return course && course->shown().member.kind == member.kind && course->shown().member.role == member.role;
        });
        if (known == before.end()) {
            m_courses.push_back(
                std::make_unique<ControlCourse>(member, *m_environment, m_clock, m_requests, [this] { update(); }));
            continue;
        }
        (*known)->describe(member);
        m_courses.push_back(std::move(*known));
    }
}

ControlCourse* ControlCenter::find(const std::string& kind)
{
    const auto found =
        std::ranges::find(m_courses, kind, [](const auto& course) { return course->shown().member.kind; });
    return found == m_courses.end() ? nullptr : found->get();
}

void ControlCenter::update()
{
    if (!m_environment)
        return;
    if (std::exchange(m_isUpdating, true)) {
        m_hasAnswers = true;
        return;
    }
    do {
        m_hasAnswers = false;
        updateOnce();
    } while (m_hasAnswers);
    m_isUpdating = false;
    m_timer.set(nextWake());
    tell();
    tellOfFaults();
}

void ControlCenter::updateOnce()
{
    takeMembers();
    m_members.ask([&] { return m_requests.members(*m_environment); });
    for (const auto& course : m_courses)
        course->update();
}

NextWake ControlCenter::nextWake() const
{
    NextWake next { .uptime = m_members.nextChange() };
    for (const auto& course : m_courses) {
        const auto wake = course->nextWake();
        next.include(wake.date);
        next.include(wake.uptime);
    }
    return next;
}

void ControlCenter::tell()
{
    Told now { .isReachable = m_members.isReachable() };
    for (const auto& course : m_courses) {
        now.controls.push_back(course->shown());
        now.isReachable = now.isReachable && course->isReachable();
    }
    if (now == m_told)
        return;
    m_told = std::move(now);
    if (m_events.changed)
        m_events.changed();
}

void ControlCenter::tellOfFaults()
{
    // Whoever is told may change the controls.
    std::vector<std::pair<std::string, RequestFault>> faults;
    for (const auto& course : m_courses) {
        if (auto fault = course->takeFault())
            faults.emplace_back(course->shown().member.kind, *std::move(fault));
    }
    for (const auto& [kind, fault] : faults)
        if (m_events.useFailed)
            m_events.useFailed(kind, fault);
}

}
