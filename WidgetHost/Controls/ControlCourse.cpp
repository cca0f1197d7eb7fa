#include "WidgetHost/Controls/ControlCourse.h"

#include <algorithm>
#include <utility>

namespace orvel {

namespace {

/// A value that changes sooner after its arrival than this is hasty. One may be, just before something changes; an
/// extension that gives nothing else would keep both of us busy.
constexpr Clock::Uptime haste = std::chrono::seconds { 1 };

using Parameter = ExtensionIntent::Parameter;
using Role = ExtensionMember::Role;

bool isState(const Parameter& parameter)
{
    return !parameter.isOptional && parameter.type == ExtensionIntent::Type::truth;
}

/// Whether an intent runs with what a control of that role can say: a toggle its new state, a button nothing.
bool suits(const ExtensionIntent& intent, Role role)
{
    const auto required = std::ranges::count(intent.parameters, false, &Parameter::isOptional);
    return role == Role::toggle ? required == 1 && std::ranges::any_of(intent.parameters, isState) : required == 0;
}

IntentParameters parametersOf(const ExtensionIntent& intent, bool isOn)
{
    IntentParameters parameters;
    for (const auto& parameter : intent.parameters) {
        if (isState(parameter))
            parameters.emplace(parameter.name, isOn);
    }
    return parameters;
}

}

ControlCourse::ControlCourse(ExtensionMember member, HostEnvironment environment, Clock& clock,
    ControlRequests& requests, std::function<void()> answered)
    : m_shown { .member = std::move(member) }
    , m_environment(std::move(environment))
    , m_clock(clock)
    , m_requests(requests)
    , m_answered(std::move(answered))
    , m_value(clock, m_answered)
{
}

void ControlCourse::move(const HostEnvironment& environment)
{
    if (m_environment == environment)
        return;
    m_environment = environment;
    askAnew();
}

void ControlCourse::reload()
{
    askAnew();
    if (m_settling != Settling::settled)
        m_settling = Settling::isDue;
}

bool ControlCourse::use(IntentPlatform platform)
{
    const auto& member = m_shown.member;
    const auto intent =
        std::ranges::find_if(member.intents, [&](const auto& candidate) { return suits(candidate, member.role); });
    if (intent == member.intents.end())
        return false;
    const auto isOn = !m_shown.isOn();
    m_uses.push_back({ intent->name, parametersOf(*intent, isOn), std::move(platform) });
    if (member.role == Role::toggle) {
        m_shown.askedFor = isOn;
        m_settling = Settling::waits;
        m_patienceEnds = m_clock.uptime() + patience;
    }
    return true;
}

void ControlCourse::update()
{
    takeValue();
    takeOutcome();
    perform();
    settle();
    askForValue();
}

NextWake ControlCourse::nextWake() const
{
    NextWake wake { .date = m_changes, .uptime = m_value.nextChange() };
    if (m_settling == Settling::waits)
        wake.include(m_patienceEnds);
    return wake;
}

void ControlCourse::takeValue()
{
    auto answer = m_value.take();
    if (!answer)
        return;
    if (m_settling == Settling::isAsked) {
        m_settling = Settling::settled;
        m_shown.askedFor.reset();
    }
    if (*answer)
        keep(**std::move(answer));
}

void ControlCourse::keep(ControlValue value)
{
    const auto now = m_clock.now();
    m_hastyValues = value.changes && *value.changes < now + haste ? m_hastyValues + 1 : 0;
    m_changes = value.changes;
    if (m_hastyValues > 1)
        m_changes = std::max(*value.changes, now + pauseAfter(m_hastyValues - 1));
    m_shown.value = std::move(value);
}

void ControlCourse::takeOutcome()
{
    const auto outcome = std::exchange(m_outcome, std::nullopt);
    if (!outcome || *outcome)
        return;
    m_fault = outcome->error();
    if (m_uses.empty())
        reload(); // nothing came of what was asked for
}

void ControlCourse::perform()
{
    if (m_uses.empty() || !m_performing.isOver() || m_outcome)
        return;
    auto use = std::move(m_uses.front());
    m_uses.pop_front();
    auto task = m_requests.perform(std::move(use.intent), std::move(use.parameters), std::move(use.platform));
    m_performing = start(std::move(task), [this](auto outcome) {
        m_outcome = answerOf(std::move(outcome));
        m_answered();
    });
}

void ControlCourse::settle()
{
    if (m_settling == Settling::waits && m_patienceEnds <= m_clock.uptime())
        reload();
}

void ControlCourse::askForValue()
{
    if (m_changes && *m_changes <= m_clock.now()) {
        m_changes.reset();
        askAnew();
    }
    const auto isAsked = m_value.ask([&] { return m_requests.controlValue(m_shown.member.kind, m_environment); });
    if (isAsked && m_settling == Settling::isDue)
        m_settling = Settling::isAsked;
}

}
