#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Base/UUID.h"
#include "OrvelShared/SharedFile.h"

namespace orvel {

struct WidgetMoment;

/// The application's state as it writes it for widgets and controls: what holds from which instant on, today's and
/// earlier tallies, and what the user set up. Everything that widgets show follows from one such value.
struct WidgetSnapshot {
    /// How hard a Block or Focus is to leave.
    enum class Level : std::uint8_t { gentle, firm, ultraHard };

    /// The names of an item's colour and symbol, as the application has them.
    struct Look {
        std::string color;
        std::string symbol;
        bool operator==(const Look&) const = default;
    };

    /// What is let through for a while although a Block runs.
    struct Unlock {
        std::string name;
        Date end;
        bool operator==(const Unlock&) const = default;
    };

    /// Something that keeps things quiet now.
    struct Running {
        std::string name;
        std::vector<std::string> names; // of everything that runs at once
        std::optional<Look> look; // absent: the presentation's default symbol and tone
        Date start;
        std::optional<Date> end; // absent: no end is set
        Level level;
        std::vector<std::string> listNames; // the Lists that are kept quiet
        std::optional<Unlock> unlock; // absent: nothing is let through
        bool operator==(const Running&) const = default;
    };

    /// The Block that comes next.
    struct Upcoming {
        std::string name;
        std::optional<Look> look; // absent: the presentation's default symbol and tone
        Date start;
        Date end;
        Level level;
        bool operator==(const Upcoming&) const = default;
    };

    struct StateCases {
        struct Block {
            Running running;
            bool operator==(const Block&) const = default;
        };
        /// Started by hand.
        struct Focus {
            Running running;
            bool operator==(const Focus&) const = default;
        };
        /// Driven by the system's Focus filter.
        struct FocusFilter {
            Running running;
            bool operator==(const FocusFilter&) const = default;
        };
        /// Nothing runs; the next Block is known.
        struct Next {
            Upcoming upcoming;
            bool operator==(const Next&) const = default;
        };
        /// Nothing runs and nothing is scheduled.
        struct NothingScheduled {
            bool operator==(const NothingScheduled&) const = default;
        };
        /// The user has no Blocks.
        struct NoBlocks {
            bool operator==(const NoBlocks&) const = default;
        };
        using Any = std::variant<Block, Focus, FocusFilter, Next, NothingScheduled, NoBlocks>;
        bool operator==(const StateCases&) const = default;
    };

    /// What holds from one instant to another: one of `StateCases`, for `std::visit`.
    struct State : StateCases, StateCases::Any {
        using StateCases::Any::Any;
        bool operator==(const State&) const = default;
    };

    /// One step of the schedule: what holds from `start` until the next phase's start.
    struct Phase {
        Date start;
        State state;
        bool operator==(const Phase&) const = default;
    };

    /// One calendar day's tally.
    struct Day {
        Date start; // the start of that day
        std::int64_t breaths;
        std::int64_t minutesBreathed;
        std::int64_t stayedOff; // how often the user stayed off something blocked

        /// Nothing was counted on that day.
        bool isEmpty() const { return breaths == 0 && minutesBreathed == 0 && stayedOff == 0; }

        bool operator==(const Day&) const = default;
    };

    /// The breath that the application offers.
    struct Breath {
        std::string style; // the application's own name of it, such as "calm"
        std::int64_t minutes;
        bool operator==(const Breath&) const = default;
    };

    struct ListItem {
        UUID id;
        std::string name;
        Look look;
        bool operator==(const ListItem&) const = default;
    };

    struct BlockItem {
        UUID id;
        std::string name;
        Look look;
        Level level;
        bool isEnabled;
        bool isRunning;
        bool operator==(const BlockItem&) const = default;
    };

    /// The identifiers under which widgets and controls are registered, and under which the application asks for
    /// reloads.
    struct Kind {
        static constexpr std::string_view status = "app.orvel.widget.status";
        static constexpr std::string_view breathe = "app.orvel.widget.breathe";
        static constexpr std::string_view breatheControl = "app.orvel.control.breathe";
        static constexpr std::string_view focusControl = "app.orvel.control.focus";
    };

    Date writtenAt;
    bool isRunning; // false: blocking is paused; only the present moment is shown
    std::int64_t blockCount;
    std::vector<Phase> phases; // ascending by start; the order is the writer's promise and is relied on
    Date horizon; // until when `phases` holds; no timeline is planned beyond it
    std::vector<Day> days;
    Breath breathe;
    std::int64_t focusMinutes; // the length of a new Focus
    std::vector<ListItem> lists;
    std::vector<BlockItem> blocks;

    bool operator==(const WidgetSnapshot&) const = default;

    /// "widgets.json" in the application group's container, which is found at the first call and kept.
    static const SharedFile<WidgetSnapshot>& file();

    /// What holds at an instant: the state of the last phase that has started. Before all phases the first one is
    /// stretched back; without any there are no Blocks. The horizon does not matter here.
    State state(Date at) const;

    /// All that is shown at an instant.
    WidgetMoment moment(Date at, const Calendar& calendar) const;

    /// The instants at which something shown can change, from `from` on, ascending and without repeats: phase changes,
    /// midnights (tallies roll over), and the whole minutes left of a running Block or Focus that end within
    /// `countdownSpan`. At most `limit` (not negative); with a limit of at least 1 the first is always `from`. While
    /// blocking is paused nothing else follows.
    ///
    /// A countdown ticks at whole minutes before its end, not at the clock's minutes. The span is floored to
    /// microseconds; one that is not above 0, or no number, adds no ticks.
    std::vector<Date> timelineDates(
        Date from, const Calendar& calendar, Seconds countdownSpan, std::int64_t limit) const;

    /// When to ask for a new timeline: at the last date when that is still ahead, else at the horizon when that is,
    /// else in six hours.
    Date reloadDate(const std::vector<Date>& after, Date now) const;
};

template <>
inline constexpr std::array<std::string_view, 3> rawValues<WidgetSnapshot::Level> { "gentle", "firm", "ultraHard" };

// The JSON form is instantiated once, beside the record's fields.
extern template std::expected<WidgetSnapshot, Fault> decodeJson<WidgetSnapshot>(std::string_view bytes);
extern template std::expected<std::string, Fault> encodeJson<WidgetSnapshot>(
    const WidgetSnapshot& snapshot, JsonAudience audience);

}
