// A snapshot file of any content is absent or a record; a record survives being written and read again, and answers
// every question about its timeline.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshotForm.h"

using namespace orvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Calendar calendar(TimeZone::named("America/Havana").value_or(TimeZone::utc()));
    const auto snapshot = decodeJson<WidgetSnapshot>({ reinterpret_cast<const char*>(data), size });
    if (!snapshot)
        return snapshot.error().why.empty() ? std::abort(), 0 : 0;
    const auto written = encodeJson(*snapshot);
    if (!written || decodeJson<WidgetSnapshot>(*written) != *snapshot)
        std::abort();
    const auto dates = snapshot->timelineDates(snapshot->writtenAt, calendar, Seconds { 10800 }, 240);
    for (const auto date : dates)
        static_cast<void>(snapshot->moment(date, calendar).focus());
    return 0;
}
