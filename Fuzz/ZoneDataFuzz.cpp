// A zone file of any content, and TZ of any value, is a zone or none.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <stdlib.h>
#include <string>
#include <unistd.h>

#include "OrvelPlatform/Base/Calendar.h"

using namespace orvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string file = [] {
        std::string path = "/tmp/orvel-zone-XXXXXX";
        return ::close(::mkstemp(path.data())), path;
    }();
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::ofstream(file, std::ios::binary) << bytes;
    for (const auto& setting : { file, bytes }) {
        const Calendar calendar(TimeZone::forSetting(setting.c_str()));
        for (const auto date : { earliestDate, Date {}, latestDate }) {
            static_cast<void>(calendar.startOfDay(date));
            static_cast<void>(calendar.addingDays(1, date));
            static_cast<void>(calendar.timeZone().nextChange(date));
        }
    }
    return 0;
}
