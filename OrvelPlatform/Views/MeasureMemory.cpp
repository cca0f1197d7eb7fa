#include "OrvelPlatform/Views/MeasureMemory.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace orvel {

namespace {

constexpr std::size_t answersInOneWidget = 256;
constexpr std::size_t roomForThem = answersInOneWidget * 128;

std::size_t mixed(std::size_t seed, std::size_t value)
{
    constexpr std::size_t golden = 0x9e3779b97f4a7c15; // spreads the bits of small numbers
    return (seed ^ value) * golden;
}

std::size_t hashOf(const ProposedLength& length)
{
    return std::bit_cast<std::size_t>(length.value_or(-1) + 0.0); // both zeros are one
}

}

std::size_t MeasureMemory::Hash::operator()(const Question& question) const
{
    auto seed = std::hash<const void*> {}(question.view);
    seed = mixed(seed, question.environment);
    seed = mixed(seed, hashOf(question.proposed.width));
    return mixed(seed, hashOf(question.proposed.height));
}

MeasureMemory::MeasureMemory() : m_room(roomForThem)
{
    m_answers.reserve(answersInOneWidget);
}

std::size_t MeasureMemory::index(const Environment& environment)
{
    const auto found = std::ranges::find(m_environments, environment);
    if (found == m_environments.end())
        m_environments.push_back(environment);
    return static_cast<std::size_t>(found - m_environments.begin());
}

Extent MeasureMemory::measure(const View& view, const Proposal& proposed, const Environment& environment)
{
    const Question question { view.m_node.get(), index(environment), proposed };
    if (const auto found = m_answers.find(question); found != m_answers.end())
        return found->second.extent;
    const auto extent = view.measureAfresh(proposed, environment);
    m_answers.emplace(question, Answer { view, extent });
    return extent;
}

View MeasureMemory::body(const View& view, const Environment& environment)
{
    const Question question { view.m_node.get(), index(environment), {} };
    if (const auto found = m_bodies.find(question); found != m_bodies.end())
        return found->second.body;
    auto body = view.m_node->body(environment);
    m_bodies.emplace(question, Body { view, body });
    return body;
}

}
