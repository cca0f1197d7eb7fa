#include "Benchmarks/NlohmannDecoding.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace orvelbench {

namespace {

using namespace orvel;
using nlohmann::json;
using State = WidgetSnapshot::State;

template <typename Value>
Value need(std::optional<Value> value)
{
    if (!value)
        throw std::invalid_argument("a text that is not understood");
    return *std::move(value);
}

Date date(const json& value)
{
    return need(dateFromISO8601(value.get_ref<const std::string&>()));
}

WidgetSnapshot::Level level(const json& value)
{
    return need(fromRawValue<WidgetSnapshot::Level>(value.get_ref<const std::string&>()));
}

UUID uuid(const json& value)
{
    return need(UUID::fromText(value.get_ref<const std::string&>()));
}

/// What `read` makes of a member; absent where it is missing or null.
template <typename Read>
auto optional(const json& object, const char* key, Read read) -> std::optional<decltype(read(object))>
{
    const auto found = object.find(key);
    if (found == object.end() || found->is_null())
        return std::nullopt;
    return read(*found);
}

template <typename Read>
auto list(const json& array, Read read) -> std::vector<decltype(read(array))>
{
    std::vector<decltype(read(array))> values;
    values.reserve(array.size());
    for (const auto& element : array.get_ref<const json::array_t&>())
        values.push_back(read(element));
    return values;
}

WidgetSnapshot::Look look(const json& value)
{
    return { .color = value.at("color").get<std::string>(), .symbol = value.at("symbol").get<std::string>() };
}

WidgetSnapshot::Unlock unlock(const json& value)
{
    return { .name = value.at("name").get<std::string>(), .end = date(value.at("end")) };
}

WidgetSnapshot::Running running(const json& value)
{
    return {
        .name = value.at("name").get<std::string>(),
        .names = value.at("names").get<std::vector<std::string>>(),
        .look = optional(value, "look", look),
        .start = date(value.at("start")),
        .end = optional(value, "end", date),
        .level = level(value.at("level")),
        .listNames = value.at("listNames").get<std::vector<std::string>>(),
        .unlock = optional(value, "unlock", unlock),
    };
}

WidgetSnapshot::Upcoming upcoming(const json& value)
{
    return {
        .name = value.at("name").get<std::string>(),
        .look = optional(value, "look", look),
        .start = date(value.at("start")),
        .end = date(value.at("end")),
        .level = level(value.at("level")),
    };
}

void needEmptyPayload(const json& value)
{
    if (!value.is_object())
        throw std::invalid_argument("a payload that is no object");
}

State state(const json& value)
{
    constexpr std::array cases { "block", "focus", "focusFilter", "next", "nothingScheduled", "noBlocks" };
    const auto& object = value.get_ref<const json::object_t&>();
    if (std::ranges::count_if(cases, [&](const char* name) { return object.contains(name); }) != 1)
        throw std::invalid_argument("a state that is not exactly one");
    if (const auto found = value.find("block"); found != value.end())
        return State::Block { running(found->at("_0")) };
    if (const auto found = value.find("focus"); found != value.end())
        return State::Focus { running(found->at("_0")) };
    if (const auto found = value.find("focusFilter"); found != value.end())
        return State::FocusFilter { running(found->at("_0")) };
    if (const auto found = value.find("next"); found != value.end())
        return State::Next { upcoming(found->at("_0")) };
    if (const auto found = value.find("nothingScheduled"); found != value.end()) {
        needEmptyPayload(*found);
        return State::NothingScheduled {};
    }
    needEmptyPayload(value.at("noBlocks"));
    return State::NoBlocks {};
}

WidgetSnapshot::Phase phase(const json& value)
{
    return { .start = date(value.at("start")), .state = state(value.at("state")) };
}

WidgetSnapshot::Day day(const json& value)
{
    return {
        .start = date(value.at("start")),
        .breaths = value.at("breaths").get<std::int64_t>(),
        .minutesBreathed = value.at("minutesBreathed").get<std::int64_t>(),
        .stayedOff = value.at("stayedOff").get<std::int64_t>(),
    };
}

WidgetSnapshot::ListItem listItem(const json& value)
{
    return {
        .id = uuid(value.at("id")),
        .name = value.at("name").get<std::string>(),
        .look = look(value.at("look")),
    };
}

WidgetSnapshot::BlockItem blockItem(const json& value)
{
    return {
        .id = uuid(value.at("id")),
        .name = value.at("name").get<std::string>(),
        .look = look(value.at("look")),
        .level = level(value.at("level")),
        .isEnabled = value.at("isEnabled").get<bool>(),
        .isRunning = value.at("isRunning").get<bool>(),
    };
}

WidgetSnapshot snapshot(const json& value)
{
    const auto& breathe = value.at("breathe");
    return {
        .writtenAt = date(value.at("writtenAt")),
        .isRunning = value.at("isRunning").get<bool>(),
        .blockCount = value.at("blockCount").get<std::int64_t>(),
        .phases = list(value.at("phases"), phase),
        .horizon = date(value.at("horizon")),
        .days = list(value.at("days"), day),
        .breathe = { .style = breathe.at("style").get<std::string>(),
            .minutes = breathe.at("minutes").get<std::int64_t>() },
        .focusMinutes = value.at("focusMinutes").get<std::int64_t>(),
        .lists = list(value.at("lists"), listItem),
        .blocks = list(value.at("blocks"), blockItem),
    };
}

}

std::optional<WidgetSnapshot> decodeWithNlohmann(std::string_view bytes)
{
    try {
        return snapshot(json::parse(bytes));
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

}
