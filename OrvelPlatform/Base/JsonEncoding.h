#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Json.h"
#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Base/UUID.h"

namespace orvel {

/// For whom JSON is written.
enum class JsonAudience {
    file, // dates floored to whole seconds, stored fields only
    tool, // dates with their fraction, and what records derive
};

/// Writes a value by its `JsonForm`: sorted keys, no white space, absent optionals left out, no newline at the end. A
/// fault for text that is not UTF-8 and for a date that the form cannot show, with the path to it.
template <typename Value>
[[nodiscard]] std::expected<std::string, Fault> encodeJson(
    const Value& value, JsonAudience audience = JsonAudience::file);

class JsonEncoder {
public:
    explicit JsonEncoder(JsonAudience audience) : m_audience(audience) { }

    const Fault& fault() const { return m_fault; }
    std::string takeJson() { return std::move(m_json); }

    bool write(bool value);
    bool write(std::int64_t value);
    bool write(std::int32_t value) { return write(std::int64_t { value }); }
    bool write(double value);
    bool write(std::string_view value);
    bool write(const std::string& value) { return write(std::string_view(value)); }
    bool write(Date value);
    bool write(const UUID& value);

    template <JsonRawValue Enum>
    bool write(Enum value)
    {
        return write(rawValue(value));
    }

    template <JsonWrittenText Value>
    bool write(const Value& value)
    {
        return write(JsonForm<Value>::text(value));
    }

    template <typename Element>
    bool write(const std::vector<Element>& values)
    {
        m_json += '[';
        for (std::size_t index = 0; index < values.size(); ++index) {
            if (index > 0)
                m_json += ',';
            if (!write(values[index]))
                return isWithinElement(index);
        }
        m_json += ']';
        return true;
    }

    template <JsonRecord Record>
    bool write(const Record& record)
    {
        static_assert(jsonKeysAscend<Record>(), "write the fields in the order of their keys");
        m_json += '{';
        const auto isWritten = std::apply(
            [&](const auto&... field) { return (writeField(record, field) && ...); }, JsonForm<Record>::fields);
        m_json += '}';
        return isWritten;
    }

    template <JsonChoice Choice>
    bool write(const Choice& choice)
    {
        return std::apply(
            [&](const auto&... choiceCase) { return (writeCase(choice, choiceCase) && ...); }, JsonForm<Choice>::cases);
    }

private:
    template <typename Record, typename Owner, typename Value>
    bool writeField(const Record& record, const JsonField<Owner, Value>& field)
    {
        return writeMember(field.key, record.*field.member);
    }

    template <typename Record, typename Owner, typename Value>
    bool writeField(const Record& record, const JsonDefaulted<Owner, Value>& field)
    {
        return writeMember(field.key, record.*field.member);
    }

    template <typename Record, typename Owner, typename Value>
    bool writeField(const Record& record, const JsonDerived<Owner, Value>& field)
    {
        return m_audience == JsonAudience::file || writeMember(field.key, (record.*field.member)());
    }

    template <typename Choice, typename Case, auto payload>
    bool writeCase(const Choice& choice, const JsonCase<Case, payload>& choiceCase)
    {
        const auto* value = std::get_if<Case>(&choice);
        if (!value)
            return true;
        m_json += '{';
        beginMember(choiceCase.name);
        m_json += '{';
        if constexpr (JsonCase<Case, payload>::hasPayload) {
            if (!writeMember(jsonPayloadKey, value->*payload))
                return isWithinMember(choiceCase.name);
        }
        m_json += "}}";
        return true;
    }

    template <typename Value>
    bool writeMember(std::string_view key, const Value& value)
    {
        beginMember(key);
        return write(value) || isWithinMember(key);
    }

    template <typename Value>
    bool writeMember(std::string_view key, const std::optional<Value>& value)
    {
        return !value || writeMember(key, *value);
    }

    void beginMember(std::string_view key);
    bool fail(std::string why);
    bool isWithinMember(std::string_view key);
    bool isWithinElement(std::size_t index);

    JsonAudience m_audience;
    std::string m_json;
    Fault m_fault;
};

template <typename Value>
std::expected<std::string, Fault> encodeJson(const Value& value, JsonAudience audience)
{
    JsonEncoder encoder(audience);
    if (!encoder.write(value))
        return std::unexpected(encoder.fault());
    return encoder.takeJson();
}

}
