// Bytes of any content are a moment or none; whatever is one can be shown in every widget and control, at any date, and
// survives being kept again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "OrvelPlatform/Base/Checksum.h"
#include "OrvelWidgets/EntryViews.h"
#include "OrvelWidgets/MenuBarGlyph.h"
#include "OrvelWidgets/OpaqueMoment.h"
#include "OrvelWidgetsUI/ControlContent.h"

using namespace orvel;

namespace {

/// The version and the right checksum before a record, so that it is looked at.
std::string sealed(std::string_view json)
{
    const auto checksum = crc32(json);
    std::string bytes { 1 };
    for (auto shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(checksum >> shift & 0xFF);
    return bytes.append(json);
}

void show(const OrvelEntry& entry)
{
    static const EntryPlace place {
        .family = "systemLarge",
        .renderingMode = WidgetRenderingMode::fullColor,
        .colorScheme = ColorScheme::dark,
        .locale = Locale::named("de").value_or(Locale::english()),
        .calendar = Calendar(TimeZone::named("America/Havana").value_or(TimeZone::utc())),
    };
    static_cast<void>(StatusWidgetView { entry }.shown(place));
    static_cast<void>(BreatheWidgetView { entry }.shown(place));
    static_cast<void>(ControlContent::focus(entry.moment));
    static_cast<void>(menuBarOrbState(entry.moment));
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input { reinterpret_cast<const char*>(data), size };
    static_cast<void>(momentFromOpaque(input, {}));
    for (const auto date : { earliestDate, Date {}, latestDate }) {
        const auto moment = momentFromOpaque(sealed(input), date);
        if (!moment)
            continue;
        show({ .date = date, .moment = *moment });
        const auto kept = opaqueMoment(*moment);
        if (!kept || momentFromOpaque(*kept, date) != bounded(*moment))
            std::abort();
    }
    return 0;
}
