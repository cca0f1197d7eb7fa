#include "OrvelPlatform/Base/Json.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <fmt/format.h>
#include <simdjson.h>
#include <utility>

namespace orvel {

namespace {

namespace dom = simdjson::dom;

// The views keep the parser's own references, whose types stay in this file.
using Place = std::array<std::uintptr_t, 2>;

template <typename Reference>
Reference reference(Place place)
{
    return std::bit_cast<Reference>(place);
}

template <typename Reference>
Place place(Reference reference)
{
    return std::bit_cast<Place>(reference);
}

template <typename Value>
std::optional<Value> optional(simdjson::simdjson_result<Value> result)
{
    Value value;
    if (std::move(result).get(value))
        return std::nullopt;
    return value;
}

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool needsEscape(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\' || character == '/';
}

void appendEscaped(std::string& json, char character)
{
    constexpr std::string_view characters = "\"\\/\b\f\n\r\t", letters = "\"\\/bfnrt";
    const auto found = characters.find(character);
    if (found != std::string_view::npos)
        json += { '\\', letters[found] };
    else
        json += fmt::format("\\u{:04x}", static_cast<unsigned>(character));
}

}

struct JsonDocument::Parsed {
    dom::parser parser;
    dom::element root;
};

bool JsonValue::isNull() const
{
    return reference<dom::element>(m_place).is_null();
}

std::optional<bool> JsonValue::boolean() const
{
    return optional(reference<dom::element>(m_place).get_bool());
}

std::optional<std::int64_t> JsonValue::integer() const
{
    const auto element = reference<dom::element>(m_place);
    if (element.type() != dom::element_type::DOUBLE)
        return optional(element.get_int64());
    constexpr double exact = 1LL << 53;
    const auto number = element.get_double().value_unsafe();
    if (std::abs(number) > exact || number != std::trunc(number))
        return std::nullopt;
    return static_cast<std::int64_t>(number);
}

std::optional<std::string_view> JsonValue::text() const
{
    return optional(reference<dom::element>(m_place).get_string());
}

bool JsonValue::isArray() const
{
    return reference<dom::element>(m_place).is_array();
}

bool JsonValue::isObject() const
{
    return reference<dom::element>(m_place).is_object();
}

std::string_view JsonValue::kindName() const
{
    switch (reference<dom::element>(m_place).type()) {
    case dom::element_type::ARRAY:
        return "an array";
    case dom::element_type::OBJECT:
        return "an object";
    case dom::element_type::INT64:
    case dom::element_type::UINT64:
    case dom::element_type::DOUBLE:
        return "a number";
    case dom::element_type::STRING:
        return "text";
    case dom::element_type::BOOL:
        return "a boolean";
    case dom::element_type::NULL_VALUE:
        return "null";
    }
    return "nothing";
}

JsonArrayReader::JsonArrayReader(JsonValue array)
{
    const auto elements = reference<dom::element>(array.m_place).get_array().value_unsafe();
    m_next = place(elements.begin());
    m_end = place(elements.end());
    m_count = elements.size();
}

std::size_t JsonArrayReader::count() const
{
    return m_count;
}

std::optional<JsonValue> JsonArrayReader::next()
{
    auto next = reference<dom::array::iterator>(m_next);
    if (!(next != reference<dom::array::iterator>(m_end)))
        return std::nullopt;
    const JsonValue value(place(*next));
    m_next = place(++next);
    return value;
}

JsonObjectReader::JsonObjectReader(JsonValue object)
{
    const auto members = reference<dom::element>(object.m_place).get_object().value_unsafe();
    m_next = place(members.begin());
    m_end = place(members.end());
}

std::optional<JsonValue> JsonObjectReader::find(std::string_view key)
{
    // All members before `m_next` were found under other keys, so the first of this key is still ahead.
    const auto first = reference<dom::object::iterator>(m_next);
    const auto end = reference<dom::object::iterator>(m_end);
    for (auto member = first; member != end; ++member) {
        if (member.key() != key)
            continue;
        const JsonValue value(place(member.value()));
        if (member == first)
            m_next = place(++member);
        return value;
    }
    return std::nullopt;
}

JsonDocument::JsonDocument(std::unique_ptr<Parsed> parsed) : m_parsed(std::move(parsed)) { }

JsonDocument::JsonDocument(JsonDocument&&) noexcept = default;
JsonDocument& JsonDocument::operator=(JsonDocument&&) noexcept = default;
JsonDocument::~JsonDocument() = default;

std::expected<JsonDocument, Fault> JsonDocument::parse(std::string_view text)
{
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    auto parsed = std::make_unique<Parsed>();
    if (const auto error = parsed->parser.parse(text.data(), text.size()).get(parsed->root))
        return std::unexpected(
            Fault { .where = "", .why = fmt::format("malformed JSON ({})", simdjson::error_message(error)) });
    return JsonDocument(std::move(parsed));
}

JsonValue JsonDocument::root() const
{
    return JsonValue(place(m_parsed->root));
}

bool appendJsonText(std::string& json, std::string_view text)
{
    if (!simdjson::validate_utf8(text.data(), text.size()))
        return false;
    json += '"';
    while (true) {
        const auto plain = static_cast<std::size_t>(std::ranges::find_if(text, needsEscape) - text.begin());
        json += text.substr(0, plain);
        if (plain == text.size())
            break;
        appendEscaped(json, text[plain]);
        text.remove_prefix(plain + 1);
    }
    json += '"';
    return true;
}

std::string quotedForMessage(std::string_view text)
{
    constexpr std::size_t most = 60;
    const auto isCut = text.size() > most;
    if (isCut) {
        auto end = most;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
            --end;
        text = text.substr(0, end);
    }
    std::string quoted;
    if (!appendJsonText(quoted, text))
        return "text that is not UTF-8";
    if (isCut)
        quoted.insert(quoted.size() - 1, "…");
    return quoted;
}

}
