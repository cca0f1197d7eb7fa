#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace orvel {

/// The JSON form of a type, told once for both directions. Specialised beside the type with one of
///
///     static constexpr auto fields = std::tuple { JsonField { "end", &Unlock::end }, … };   a record: an object
///     static constexpr auto cases = std::tuple { jsonCase<State::Block, &State::Block::running>("block"), … };
///     static constexpr std::string_view noun = "level";   an enumeration with raw values: text; the noun is for
///     messages
///
/// Keys stand in ascending byte order, which is the order of writing.
template <typename Value>
struct JsonForm;

/// A field of a record under its key. An optional field is left out when absent; any other is required.
template <typename Record, typename Value>
struct JsonField {
    std::string_view key;
    Value Record::*member;
};

/// A field that a file may lack: missing or null, it has its type's empty value. It is always written.
template <typename Record, typename Value>
struct JsonDefaulted {
    std::string_view key;
    Value Record::*member;
};

/// A value that a record derives: written for tools when present, never read.
template <typename Record, typename Value>
struct JsonDerived {
    std::string_view key;
    Value (Record::*member)() const;
};

/// A case of a choice: an object with the case's name as its one key; the payload stands in a further object under
/// "_0".
template <typename Case, auto payload>
struct JsonCase {
    using Type = Case;
    static constexpr bool hasPayload = !std::is_null_pointer_v<decltype(payload)>;
    std::string_view name;
};

template <typename Case, auto payload = nullptr>
constexpr JsonCase<Case, payload> jsonCase(std::string_view name)
{
    return { name };
}

inline constexpr std::string_view jsonPayloadKey = "_0";
inline constexpr std::string_view jsonCaseCountMessage = "Invalid number of keys found, expected one.";

template <typename Value>
concept JsonRecord = requires
{
    JsonForm<Value>::fields;
};

template <typename Value>
concept JsonChoice = requires
{
    JsonForm<Value>::cases;
};

template <typename Value>
concept JsonRawValue = requires
{
    JsonForm<Value>::noun;
};

template <typename Value>
concept JsonWrittenText = requires(const Value& value)
{
    JsonForm<Value>::text(value);
};

/// Whether the keys of a record ascend, so that writing them in this order is writing them sorted.
template <JsonRecord Record>
consteval bool jsonKeysAscend()
{
    return std::apply(
        [](const auto&... field) {
            std::string_view previous;
            return ((previous < field.key && (previous = field.key, true)) && ...);
        },
        JsonForm<Record>::fields);
}

/// The path of a value that stands under a key, or at a place in an array: "phases", "[3]", "phases[3].start".
std::string jsonPath(std::string_view key, std::string_view rest);
std::string jsonPath(std::size_t index, std::string_view rest);

}
