#pragma once

#include <algorithm>
#include <compare>

namespace orvel {

/// The application's own bigger-text setting, in whole steps on top of the system's scaling. Ordered by its steps.
class BiggerText {
public:
    static constexpr int maxSteps = 4;
    static constexpr int pointsPerStep = 2;
    static const BiggerText actualSize;
    static const BiggerText largest;

    /// `steps` outside 0 to 4 are taken for the nearer end.
    explicit constexpr BiggerText(int steps) : m_steps(std::clamp(steps, 0, maxSteps)) { }

    constexpr int steps() const { return m_steps; }

    /// What every size and line height grows by: 0, 2, 4, 6 or 8 points.
    constexpr double points() const { return m_steps * pointsPerStep; }

    constexpr BiggerText bigger() const { return BiggerText { m_steps + 1 }; }
    constexpr BiggerText smaller() const { return BiggerText { m_steps - 1 }; }
    constexpr bool canGrow() const { return m_steps < maxSteps; }
    constexpr bool canShrink() const { return m_steps > 0; }

    auto operator<=>(const BiggerText&) const = default;

private:
    int m_steps;
};

inline constexpr BiggerText BiggerText::actualSize { 0 };
inline constexpr BiggerText BiggerText::largest { BiggerText::maxSteps };

}
