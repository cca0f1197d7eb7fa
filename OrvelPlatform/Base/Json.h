#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// One value inside a `JsonDocument`, as a view: cheap to copy, valid as long as the document. A question about another
/// kind of value than it is has no answer.
class JsonValue {
public:
    bool isNull() const;
    std::optional<bool> boolean() const;

    /// A number that is a whole 64-bit integer. Digits alone cover the whole range; a number written with a point or an
    /// exponent must be exact, up to 2^53.
    std::optional<std::int64_t> integer() const;

    /// Unescaped text; it may hold NUL.
    std::optional<std::string_view> text() const;

    bool isArray() const;
    bool isObject() const;

    /// "text", "a number", "an object" and so on, for messages.
    std::string_view kindName() const;

private:
    friend class JsonDocument;
    friend class JsonArrayReader;
    friend class JsonObjectReader;
    using Place = std::array<std::uintptr_t, 2>;

    explicit JsonValue(Place place) : m_place(place) { }

    Place m_place; // the parser's own reference to the value
};

/// The elements of an array, one after the other.
class JsonArrayReader {
public:
    /// `array` must be one.
    explicit JsonArrayReader(JsonValue array);

    std::size_t count() const;

    /// The next element; absent after the last.
    std::optional<JsonValue> next();

private:
    JsonValue::Place m_next;
    JsonValue::Place m_end;
    std::size_t m_count;
};

/// The members of an object, by key. Where a key stands twice, the first counts. Each key is asked for once; doing so
/// in the order in which the keys stand is fast, any other order works.
class JsonObjectReader {
public:
    /// `object` must be one.
    explicit JsonObjectReader(JsonValue object);

    std::optional<JsonValue> find(std::string_view key);

private:
    JsonValue::Place m_next;
    JsonValue::Place m_end;
};

/// A parsed text: strict JSON in UTF-8, with a byte-order mark or without. Nesting is bounded, whatever the text.
class JsonDocument {
public:
    static std::expected<JsonDocument, Fault> parse(std::string_view text);

    JsonDocument(JsonDocument&&) noexcept;
    JsonDocument& operator=(JsonDocument&&) noexcept;
    ~JsonDocument();

    JsonValue root() const;

private:
    struct Parsed;
    explicit JsonDocument(std::unique_ptr<Parsed> parsed);

    std::unique_ptr<Parsed> m_parsed;
};

/// Appends a JSON string to `json`: quotes, backslashes, slashes and control characters escaped, all else as it is.
/// False, with nothing appended, when the text is not UTF-8.
[[nodiscard]] bool appendJsonText(std::string& json, std::string_view text);

/// Text of unknown origin for a message: quoted, escaped and cut when it is long.
std::string quotedForMessage(std::string_view text);

}
