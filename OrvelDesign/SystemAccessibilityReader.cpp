#include "OrvelDesign/SystemAccessibilityReader.h"

namespace orvel {

SystemAccessibilityReader::SystemAccessibilityReader(const SystemAccessibility& system) : m_system(system) { }

OrvelAccessibility SystemAccessibilityReader::read() const
{
    return {
        .reduceMotion = m_system.reduceMotion(),
        .reduceTransparency = m_system.reduceTransparency(),
        .increaseContrast = m_system.colorSchemeContrast() == ColorSchemeContrast::increased,
        .usesPersonalAccent = m_system.hasPersonalAccent(),
    };
}

Environment SystemAccessibilityReader::body(const Environment& content) const
{
    return content.with<OrvelAccessibilityKey>(read());
}

}
