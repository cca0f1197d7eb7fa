#pragma once

#include <string>
#include <string_view>

#include "OrvelDesign/BiggerText.h"
#include "OrvelDesign/CardBackground.h"
#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/MacTypeRole.h"
#include "OrvelDesign/OrvelColor.h"
#include "OrvelDesign/ShadowLayer.h"

namespace orvel {

/// What a window's style follows.
struct StyleSettings {
    ColorFlags colors {};
    bool reducesMotion = false;
    BiggerText biggerText = BiggerText::actualSize;
    double textScale = 1; // the desktop's
    bool operator==(const StyleSettings&) const = default;
};

/// Rules for the widgets of one window, in the toolkit's style language. What the desktop's theme says of them is put
/// back first, so that a window looks the same under every theme. Lengths are in the toolkit's pixels, which are
/// points.
class StyleSheet {
public:
    /// `window` is the window's name, by which its rules find it. It starts with the rules of everything that our
    /// windows have in common: text classes named after the type roles, "secondary" texts, "capsule" buttons, the bar
    /// at a window's "foot", switches, scales, the window's frame.
    StyleSheet(std::string window, const StyleSettings& settings);

    /// `selector` is looked for within the window; several may stand there, commas between, without spaces. "&"
    /// at its start is the window itself.
    void rule(std::string_view selector, std::string_view declarations);

    std::string color(const OrvelColor& color) const;
    /// The declarations of a type role's face and size.
    std::string font(MacTypeRole role) const;
    /// A value of the property box-shadow.
    static std::string shadow(const ShadowLayers& layers);
    /// The declarations of a card's edge: its light, or under increased contrast its line.
    std::string edge(LitEdge edge) const;
    /// The declaration of how fast a control follows the pointer.
    std::string hoverTransition() const;

    const StyleSettings& settings() const { return m_settings; }
    const std::string& text() const { return m_text; }

private:
    void addWindow();
    void addTexts();
    void addButtons();
    void addSwitches();
    void addScales();
    void addScrolling();

    std::string m_window;
    StyleSettings m_settings;
    std::string m_text;
};

}
