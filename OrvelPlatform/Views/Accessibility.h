#pragma once

#include <string>

#include "OrvelPlatform/Views/View.h"

/// Views that say what a picture means to assistive technology and to a pointer.
namespace orvel {

/// One element with one label: the elements within are not listed, their actions are.
struct Element {
    ElementRole role = ElementRole::text;
    std::string label;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Decoration: no element within is listed.
struct Hidden {
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// A view that runs an intent.
struct Action {
    std::string label;
    std::string intent;
    ActionParameters parameters;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
