#pragma once

#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

// The form of "widgets.json": the fields' own names, in ascending order.

template <>
struct JsonForm<WidgetSnapshot::Level> {
    static constexpr std::string_view noun = "level";
};

template <>
struct JsonForm<WidgetSnapshot::Look> {
    using Look = WidgetSnapshot::Look;
    static constexpr auto fields = std::tuple {
        JsonField { "color", &Look::color },
        JsonField { "symbol", &Look::symbol },
    };
};

template <>
struct JsonForm<WidgetSnapshot::Unlock> {
    using Unlock = WidgetSnapshot::Unlock;
    static constexpr auto fields = std::tuple {
        JsonField { "end", &Unlock::end },
        JsonField { "name", &Unlock::name },
    };
};

template <>
struct JsonForm<WidgetSnapshot::Running> {
    using Running = WidgetSnapshot::Running;
    static constexpr auto fields = std::tuple {
        JsonField { "end", &Running::end },
        JsonField { "level", &Running::level },
        JsonField { "listNames", &Running::listNames },
        JsonField { "look", &Running::look },
        JsonField { "name", &Running::name },
        JsonField { "names", &Running::names },
        JsonField { "start", &Running::start },
        JsonField { "unlock", &Running::unlock },
    };
};

template <>
struct JsonForm<WidgetSnapshot::Upcoming> {
    using Upcoming = WidgetSnapshot::Upcoming;
    static constexpr auto fields = std::tuple {
        JsonField { "end", &Upcoming::end },
        JsonField { "level", &Upcoming::level },
        JsonField { "look", &Upcoming::look },
        JsonField { "name", &Upcoming::name },
        JsonField { "start", &Upcoming::start },
    };
};

template <>
struct JsonForm<WidgetSnapshot::State> {
    using State = WidgetSnapshot::State;
    static constexpr auto cases = std::tuple {
        jsonCase<State::Block, &State::Block::running>("block"),
        jsonCase<State::Focus, &State::Focus::running>("focus"),
        jsonCase<State::FocusFilter, &State::FocusFilter::running>("focusFilter"),
        jsonCase<State::Next, &State::Next::upcoming>("next"),
        jsonCase<State::NoBlocks>("noBlocks"),
        jsonCase<State::NothingScheduled>("nothingScheduled"),
    };
};

template <>
struct JsonForm<WidgetSnapshot::Phase> {
    using Phase = WidgetSnapshot::Phase;
    static constexpr auto fields = std::tuple {
        JsonField { "start", &Phase::start },
        JsonField { "state", &Phase::state },
    };
};

template <>
struct JsonForm<WidgetSnapshot::Day> {
    using Day = WidgetSnapshot::Day;
    static constexpr auto fields = std::tuple {
        JsonField { "breaths", &Day::breaths },
        JsonField { "minutesBreathed", &Day::minutesBreathed },
        JsonField { "start", &Day::start },
        JsonField { "stayedOff", &Day::stayedOff },
    };
};

template <>
struct JsonForm<WidgetSnapshot::Breath> {
    using Breath = WidgetSnapshot::Breath;
    static constexpr auto fields = std::tuple {
        JsonField { "minutes", &Breath::minutes },
        JsonField { "style", &Breath::style },
    };
};

template <>
struct JsonForm<WidgetSnapshot::ListItem> {
    using ListItem = WidgetSnapshot::ListItem;
    static constexpr auto fields = std::tuple {
        JsonField { "id", &ListItem::id },
        JsonField { "look", &ListItem::look },
        JsonField { "name", &ListItem::name },
    };
};

template <>
struct JsonForm<WidgetSnapshot::BlockItem> {
    using BlockItem = WidgetSnapshot::BlockItem;
    static constexpr auto fields = std::tuple {
        JsonField { "id", &BlockItem::id },
        JsonField { "isEnabled", &BlockItem::isEnabled },
        JsonField { "isRunning", &BlockItem::isRunning },
        JsonField { "level", &BlockItem::level },
        JsonField { "look", &BlockItem::look },
        JsonField { "name", &BlockItem::name },
    };
};

template <>
struct JsonForm<WidgetSnapshot> {
    static constexpr auto fields = std::tuple {
        JsonField { "blockCount", &WidgetSnapshot::blockCount },
        JsonField { "blocks", &WidgetSnapshot::blocks },
        JsonField { "breathe", &WidgetSnapshot::breathe },
        JsonField { "days", &WidgetSnapshot::days },
        JsonField { "focusMinutes", &WidgetSnapshot::focusMinutes },
        JsonField { "horizon", &WidgetSnapshot::horizon },
        JsonField { "isRunning", &WidgetSnapshot::isRunning },
        JsonField { "lists", &WidgetSnapshot::lists },
        JsonField { "phases", &WidgetSnapshot::phases },
        JsonField { "writtenAt", &WidgetSnapshot::writtenAt },
    };
};

}
