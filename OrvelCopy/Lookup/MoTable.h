#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelCopy/Lookup/PluralRule.h"

namespace orvel::Copy {

/// One language's texts by their English keys: a binary message catalogue (`.mo`) as gettext's msgfmt makes it.
///
/// The bytes are kept as they are and searched in place: reading costs nothing but the header, whatever the size. They
/// may be anything: what is cut off, out of bounds, empty, not UTF-8 or longer than any text of ours is absent.
class MoTable {
public:
    /// Absent where the bytes do not begin like a table of either byte order, or are too few for what they announce.
    static std::optional<MoTable> read(std::string bytes);

    /// The text for a key.
    std::optional<std::string_view> text(std::string_view key) const;

    /// The text for a key in the form that a count takes; the one text of a key that the table does not inflect.
    std::optional<std::string_view> text(std::string_view key, std::int64_t count) const;

    /// All forms of the text for a key; none where it is absent.
    std::vector<std::string_view> forms(std::string_view key) const;

    /// The rule of the plural forms, as the table states it; absent where that is no rule.
    const std::optional<PluralRule>& pluralRule() const { return m_rule; }

    /// What the table's header says under a name such as "Language".
    std::optional<std::string_view> headerField(std::string_view name) const;

private:
    struct Entry {
        std::string_view translation;
        bool isInflected;
    };

    explicit MoTable(std::string bytes) : m_bytes(std::move(bytes)) { }

    std::uint32_t number(std::size_t at) const;
    std::optional<std::string_view> string(std::size_t list, std::uint32_t index) const;
    std::optional<Entry> find(std::string_view key) const;
    std::optional<PluralRule> statedRule() const;

    std::string m_bytes;
    bool m_isSwapped = false;
    std::uint32_t m_count = 0;
    std::uint32_t m_keys = 0; // where the list of keys begins
    std::uint32_t m_translations = 0;
    std::optional<PluralRule> m_rule; // absent: what the table states is no rule, so that nothing is inflected
};

}
