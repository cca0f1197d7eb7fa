#include "OrvelDesign/Drawn/BloomingOrb.h"

#include "OrvelDesign/Drawn/OrbDisc.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/Progress.h"
#include "OrvelDesign/TokensMotion.h"

namespace orvel {

namespace {

constexpr double duration = Tokens::Duration::bloom;

constexpr double brightest = 1.2;
constexpr double brighteningShare = 0.4; // of the duration

// The light starts inside the disc and leaves it behind, so that only a ring of it is seen.
constexpr double startScale = BloomingOrb::Values::rest.bloomScale;
constexpr double endScale = 1.5;
constexpr double startOpacity = 1;
constexpr double lightAlpha = 0.6; // most of it lies behind the disc: what is seen is less than half of that
constexpr Seconds jump { 0.01 }; // from rest to the start values

/// From `a` to `b` with neither speed nor jolt at the ends.
double eased(double a, double b, double share)
{
    const double t = clampedProgress(share);
    return a + (b - a) * t * t * (3 - 2 * t);
}

double brightness(double share)
{
    if (share < brighteningShare)
        return eased(1, brightest, share / brighteningShare);
    return eased(brightest, 1, (share - brighteningShare) / (1 - brighteningShare));
}

}

BloomingOrb::Values BloomingOrb::Values::at(Seconds elapsed, bool reduceMotion)
{
    if (elapsed.count() < 0 || elapsed.count() >= duration)
        return rest;
    const double lit = orvel::brightness(elapsed.count() / duration);
    if (reduceMotion)
        return { lit, 1, startOpacity * (lit - 1) / (brightest - 1) };
    if (elapsed < jump)
        return { lit, startScale, startOpacity * (elapsed / jump) };
    const double share = (elapsed - jump).count() / (duration - jump.count());
    return { lit, eased(startScale, endScale, share), eased(startOpacity, 0, share) };
}

Extent BloomingOrb::measure(const Proposal&, const Environment&) const
{
    return Size { size, size };
}

void BloomingOrb::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto options = effectiveAccessibility(environment);
    const bool dark = environment.get<ColorSchemeKey>() == ColorScheme::dark;
    const auto values = elapsed ? Values::at(*elapsed, options.reduceMotion) : Values::rest;
    if (values.bloomOpacity > 0 && !options.reduceTransparency) {
        drawOrbPool(canvas, in.center(), size * orbPoolFactor * values.bloomScale,
            Color(Palette::orbGlow.rgba({ .dark = dark })).faded(lightAlpha * values.bloomOpacity));
    }
    drawOrbDisc(canvas, in.center(), size, OrbColors::palette(dark, values.brightness));
}

void BloomTrigger::observe(int trigger, Seconds now)
{
    if (m_trigger && *m_trigger != trigger)
        m_start = now;
    m_trigger = trigger;
}

std::optional<Seconds> BloomTrigger::elapsed(Seconds now) const
{
    if (!m_start || now - *m_start >= Seconds(duration))
        return std::nullopt;
    return now - *m_start;
}

}
