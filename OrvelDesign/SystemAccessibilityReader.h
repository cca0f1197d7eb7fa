#pragma once

#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

/// What the desktop says about accessibility, asked anew whenever it is needed. The desktop's settings implement it; a
/// setting that a desktop does not have is off.
class SystemAccessibility {
public:
    virtual ~SystemAccessibility() = default;

    virtual bool reduceMotion() const = 0;
    virtual bool reduceTransparency() const = 0;
    virtual ColorSchemeContrast colorSchemeContrast() const = 0;

    /// Whether the user chose an accent colour, whichever it is.
    virtual bool hasPersonalAccent() const = 0;
};

/// Fills the accessibility record from the system.
class SystemAccessibilityReader {
public:
    /// `system` outlives the reader.
    explicit SystemAccessibilityReader(const SystemAccessibility& system);

    OrvelAccessibility read() const;

    /// `content` with the record placed in it, in place of the one it had.
    Environment body(const Environment& content) const;

private:
    const SystemAccessibility& m_system;
};

}
