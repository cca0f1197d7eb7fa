#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Json.h"
#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Base/UUID.h"

namespace orvel {

/// Reads a record from JSON bytes, whole or not at all. A fault names the path to the value at fault and the reason.
template <typename Value>
[[nodiscard]] std::expected<Value, Fault> decodeJson(std::string_view bytes);

/// Reads values by their `JsonForm`. Each function is false on the first fault, and the path to it is built on the way
/// back out, so that a good file pays nothing for it.
class JsonDecoder {
public:
    const Fault& fault() const { return m_fault; }

    bool read(JsonValue json, bool& value);
    bool read(JsonValue json, std::int64_t& value);
    bool read(JsonValue json, std::int32_t& value);
    bool read(JsonValue json, std::string& value);
    bool read(JsonValue json, Date& value);
    bool read(JsonValue json, UUID& value);

    template <JsonRawValue Enum>
    bool read(JsonValue json, Enum& value)
    {
        const auto text = json.text();
        if (!text)
            return failWrongType("text", json);
        const auto found = fromRawValue<Enum>(*text);
        if (!found)
            return failUnknown(JsonForm<Enum>::noun, *text);
        value = *found;
        return true;
    }

    template <typename Element>
    bool read(JsonValue json, std::vector<Element>& values)
    {
        if (!json.isArray())
            return failWrongType("an array", json);
        JsonArrayReader elements(json);
        values.reserve(elements.count());
        while (const auto element = elements.next()) {
            if (!read(*element, values.emplace_back()))
                return isWithinElement(values.size() - 1);
        }
        return true;
    }

    template <JsonRecord Record>
    bool read(JsonValue json, Record& record)
    {
        static_assert(jsonKeysAscend<Record>(), "write the fields in the order of their keys");
        if (!json.isObject())
            return failWrongType("an object", json);
        JsonObjectReader members(json);
        return std::apply(
            [&](const auto&... field) { return (readField(members, field, record) && ...); }, JsonForm<Record>::fields);
    }

    template <JsonChoice Choice>
    bool read(JsonValue json, Choice& choice)
    {
        if (!json.isObject())
            return failWrongType("an object", json);
        JsonObjectReader members(json);
        return std::apply(
            [&](const auto&... choiceCase) {
                const std::optional<JsonValue> found[] = { members.find(choiceCase.name)... };
                auto count = 0;
                for (const auto& payload : found)
                    count += payload.has_value();
                if (count != 1)
                    return fail(std::string(jsonCaseCountMessage));
                auto index = 0;
                return (readCase(found[index++], choiceCase, choice) && ...);
            },
            JsonForm<Choice>::cases);
    }

private:
    template <typename Record, typename Owner, typename Value>
    bool readField(JsonObjectReader& members, const JsonField<Owner, Value>& field, Record& record)
    {
        const auto json = members.find(field.key);
        if (!json)
            return failMissing() || isWithinMember(field.key);
        return read(*json, record.*field.member) || isWithinMember(field.key);
    }

    template <typename Record, typename Owner, typename Value>
    bool readField(JsonObjectReader& members, const JsonField<Owner, std::optional<Value>>& field, Record& record)
    {
        const auto json = members.find(field.key);
        if (!json || json->isNull())
            return true;
        return read(*json, (record.*field.member).emplace()) || isWithinMember(field.key);
    }

    template <typename Record, typename Owner, typename Value>
    bool readField(JsonObjectReader& members, const JsonDefaulted<Owner, Value>& field, Record& record)
    {
        const auto json = members.find(field.key);
        if (json && !json->isNull())
            return read(*json, record.*field.member) || isWithinMember(field.key);
        record.*field.member = {};
        return true;
    }

    template <typename Record, typename Owner, typename Value>
    bool readField(JsonObjectReader&, const JsonDerived<Owner, Value>&, Record&)
    {
        return true;
    }

    template <typename Choice, typename Case, auto payload>
    bool readCase(const std::optional<JsonValue>& json, const JsonCase<Case, payload>& choiceCase, Choice& choice)
    {
        if (!json)
            return true;
        if (!json->isObject())
            return failWrongType("an object", *json) || isWithinMember(choiceCase.name);
        auto& value = choice.template emplace<Case>();
        if constexpr (JsonCase<Case, payload>::hasPayload) {
            JsonObjectReader members(*json);
            return readField(members, JsonField { jsonPayloadKey, payload }, value) || isWithinMember(choiceCase.name);
        }
        return true;
    }

    // All of these are false, for `return`.
    bool fail(std::string why);
    bool failMissing();
    bool failWrongType(std::string_view expected, JsonValue found);
    bool failUnknown(std::string_view noun, std::string_view text);
    bool isWithinMember(std::string_view key);
    bool isWithinElement(std::size_t index);

    Fault m_fault;
};

template <typename Value>
std::expected<Value, Fault> decodeJson(std::string_view bytes)
{
    const auto document = JsonDocument::parse(bytes);
    if (!document)
        return std::unexpected(document.error());
    std::expected<Value, Fault> value {};
    if (JsonDecoder decoder; !decoder.read(document->root(), *value))
        value = std::unexpected(decoder.fault());
    return value;
}

}
