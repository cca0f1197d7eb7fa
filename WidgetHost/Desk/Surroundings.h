#pragma once

#include <string>

#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Base/TimeZone.h"
#include "OrvelPlatform/Desktop/DesktopAppearance.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Face/WidgetFace.h"
#include "WidgetHost/State/HostState.h"

namespace orvel {

/// Where the user lives.
struct Homeland {
    Locale locale; // of formats
    std::string language; // of words: names with colons between them; empty: English
    TimeZone timeZone;

    /// What the process's environment and the system say now.
    static Homeland current();

    bool operator==(const Homeland&) const = default;
};

/// What all widgets on a desk have around them.
struct Surroundings {
    DesktopAppearance appearance;
    bool reducesTransparency;
    int biggerText; // steps, 0 to 4
    Homeland home;

    bool operator==(const Surroundings&) const = default;
};

/// What a host says to the extension of a widget's place. `scale` is taken for the nearest whole one from 1 to 3.
HostEnvironment hostEnvironment(const Surroundings& around, std::string family, ChosenLook look, double scale);

/// How many points of a window a point of a picture takes that is drawn in an environment: more for larger text.
double pointScale(const HostEnvironment& environment);

/// Whether it is a picture whose colours the host gives, and which ones.
bool isTinted(const HostEnvironment& environment);
WindowTint tint(const HostEnvironment& environment, const DesktopAppearance& appearance);

}
