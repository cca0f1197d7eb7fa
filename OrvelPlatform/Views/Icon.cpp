#include "OrvelPlatform/Views/Icon.h"

#include "OrvelPlatform/Views/Alignment.h"

namespace orvel {

namespace {

// Strokes that look as heavy as the letters of the rounded face beside them, as a share of the symbol's side.
double strokeShare(int weight)
{
    constexpr double regular = 0.073;
    constexpr double perHundred = 0.0105;
    return regular + perHundred * (weight - 400) / 100;
}

std::shared_ptr<const Symbol> found(const Icon& icon, const Environment& environment)
{
    if (const auto symbols = environment.get<SymbolSourceKey>()) {
        if (auto symbol = symbols->find(icon.name))
            return symbol;
        if (auto symbol = symbols->find(icon.fallback))
            return symbol;
    }
    return std::make_shared<const Symbol>(Symbol { icon.name, 1, {} });
}

}

Extent Icon::measure(const Proposal&, const Environment&) const
{
    return Size { size, size };
}

void Icon::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto place = placed(Size { size, size }, in, Alignment::center, LayoutDirection::leftToRight);
    canvas.symbol(*found(*this, environment), place, size * strokeShare(weight), paint);
}

}
