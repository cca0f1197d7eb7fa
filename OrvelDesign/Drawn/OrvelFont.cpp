#include "OrvelDesign/Drawn/OrvelFont.h"

#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

namespace {

FontFamily face(TypeFamily family)
{
    switch (family) {
    case TypeFamily::rounded:
        return FontFamily::rounded;
    case TypeFamily::serif:
        return FontFamily::serif;
    }
    return FontFamily::rounded;
}

}

TextStyle font(const TypeMetrics& metrics, std::optional<int> weight)
{
    return {
        .family = face(metrics.spec.family),
        .size = metrics.size,
        .lineHeight = metrics.lineHeight,
        .weight = weight.value_or(metrics.spec.weight),
        .italic = metrics.spec.italic,
        .tracking = metrics.spec.tracking,
        .tabularDigits = metrics.tabularDigits,
    };
}

TextStyle font(const TypeSpecValue& spec)
{
    return font(TypeMetrics { spec, spec.size, spec.lineHeight, false });
}

TextStyle OrvelFont::style(const Environment& environment) const
{
    const auto bigger = environment.get<OrvelBiggerTextKey>();
    return font(metrics(role, bigger, environment.get<OrvelSystemTextScaleKey>()), weight);
}

}
