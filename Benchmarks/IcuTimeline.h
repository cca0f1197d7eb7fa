#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <unicode/gregocal.h>
#include <vector>

#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgets/OrvelEntry.h"

namespace orvelbench {

/// The three questions that a timeline asks of a calendar, answered by one ICU calendar that is kept and set to each
/// date in turn. Throws `std::runtime_error` where ICU reports a fault.
class IcuCalendar {
public:
    explicit IcuCalendar(std::string_view zone);

    orvel::Date startOfDay(orvel::Date date);
    orvel::Date addingDays(int days, orvel::Date date);
    bool isDate(orvel::Date date, orvel::Date inSameDayAs);

private:
    /// The year (with its era) and the day in it, which together name a calendar day.
    struct DayNumber {
        int era, year, dayOfYear;
        bool operator==(const DayNumber&) const = default;
    };

    void set(orvel::Date date);
    orvel::Date date() const;
    DayNumber day(orvel::Date date);

    std::unique_ptr<icu::GregorianCalendar> m_calendar;
};

/// A peer to compare with: a timeline worked out the obvious way, a set of dates and then each moment by itself.
std::vector<orvel::OrvelEntry> entriesWithIcu(const orvel::WidgetSnapshot& snapshot, orvel::Date now,
    IcuCalendar& calendar, orvel::Seconds countdownSpan, std::size_t limit);

}
