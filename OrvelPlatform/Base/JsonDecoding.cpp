#include "OrvelPlatform/Base/JsonDecoding.h"

#include <fmt/format.h>
#include <utility>

namespace orvel {

bool JsonDecoder::read(JsonValue json, bool& value)
{
    const auto found = json.boolean();
    if (!found)
        return failWrongType("a boolean", json);
    value = *found;
    return true;
}

bool JsonDecoder::read(JsonValue json, std::int64_t& value)
{
    const auto found = json.integer();
    if (!found)
        return failWrongType("a whole 64-bit number", json);
    value = *found;
    return true;
}

bool JsonDecoder::read(JsonValue json, std::int32_t& value)
{
    const auto found = json.integer();
    if (!found || !std::in_range<std::int32_t>(*found))
        return failWrongType("a whole 32-bit number", json);
    value = static_cast<std::int32_t>(*found);
    return true;
}

bool JsonDecoder::read(JsonValue json, std::string& value)
{
    const auto found = json.text();
    if (!found)
        return failWrongType("text", json);
    value = *found;
    return true;
}

bool JsonDecoder::read(JsonValue json, Date& value)
{
    const auto text = json.text();
    if (!text)
        return failWrongType("a date as text", json);
    const auto found = dateFromISO8601(*text);
    if (!found)
        return fail(fmt::format("malformed date {}", quotedForMessage(*text)));
    value = *found;
    return true;
}

bool JsonDecoder::read(JsonValue json, UUID& value)
{
    const auto text = json.text();
    if (!text)
        return failWrongType("a UUID as text", json);
    const auto found = UUID::fromText(*text);
    if (!found)
        return fail(fmt::format("malformed UUID {}", quotedForMessage(*text)));
    value = *found;
    return true;
}

bool JsonDecoder::fail(std::string why)
{
    m_fault.why = std::move(why);
    return false;
}

bool JsonDecoder::failMissing()
{
    return fail("is required and missing");
}

bool JsonDecoder::failWrongType(std::string_view expected, JsonValue found)
{
    return fail(fmt::format("expected {}, found {}", expected, found.kindName()));
}

bool JsonDecoder::failUnknown(std::string_view noun, std::string_view text)
{
    return fail(fmt::format("unknown {} {}", noun, quotedForMessage(text)));
}

bool JsonDecoder::isWithinMember(std::string_view key)
{
    m_fault.where = jsonPath(key, m_fault.where);
    return false;
}

bool JsonDecoder::isWithinElement(std::size_t index)
{
    m_fault.where = jsonPath(index, m_fault.where);
    return false;
}

}
