#pragma once

#include <array>
#include <string_view>

#include "OrvelDesign/TypeSpecValue.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The text styles of the widgets.
enum class WidgetType {
    kicker,
    smallTitle,
    mediumTitle,
    detail,
    numberMedium,
    numberLarge,
    label,
    button,
    buttonLarge,
};

template <>
inline constexpr std::array<std::string_view, 9> rawValues<WidgetType> {
    "kicker",
    "smallTitle",
    "mediumTitle",
    "detail",
    "numberMedium",
    "numberLarge",
    "label",
    "button",
    "buttonLarge",
};

/// A style's size, line height, weight and letter spacing, in the rounded face. Sizes come from the type tokens
/// wherever a style follows one, so a change there carries through. Nothing scales them: a widget's canvas grows whole.
TypeSpecValue spec(WidgetType type);

}
