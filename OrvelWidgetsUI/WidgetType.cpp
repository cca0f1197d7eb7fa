#include "OrvelWidgetsUI/WidgetType.h"

#include "OrvelDesign/TokensType.h"

namespace orvel {

namespace {

namespace TypeSpec = Tokens::TypeSpec;

constexpr int light = 300, regular = 400, semibold = 600, bold = 700;

/// Upper-case letters need air; the spacing follows the size.
TypeSpecValue kickerSpec()
{
    const double size = TypeSpec::macSubheadline.size;
    auto kicker = TypeSpec::macSubheadline.resized(size, 13).withWeight(bold);
    kicker.tracking = 0.12 * size;
    return kicker;
}

TypeSpecValue numberSpec(double size, double lineHeight)
{
    return TypeSpec::macNumeral.resized(size, lineHeight).withWeight(light);
}

}

TypeSpecValue spec(WidgetType type)
{
    switch (type) {
    case WidgetType::kicker:
        return kickerSpec();
    case WidgetType::smallTitle:
        return TypeSpec::macTitle3.resized(TypeSpec::macTitle3.size, 19).withWeight(semibold);
    case WidgetType::mediumTitle:
        return TypeSpec::macTitle2.withWeight(semibold);
    case WidgetType::detail:
        return TypeSpec::macCallout.withWeight(regular);
    case WidgetType::numberMedium:
        return numberSpec(20, 24);
    case WidgetType::numberLarge:
        return numberSpec(24, 28);
    case WidgetType::label:
        return TypeSpec::macSubheadline.withWeight(regular);
    case WidgetType::button:
        return TypeSpec::macCallout.withWeight(semibold);
    case WidgetType::buttonLarge:
        return TypeSpec::macHeadline.withWeight(semibold);
    }
    return TypeSpec::macCallout;
}

}
