#include "OrvelCopy/Lookup/MoTable.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "OrvelPlatform/Base/UTF8.h"

namespace orvel::Copy {

namespace {

constexpr std::uint32_t magic = 0x950412de;
constexpr std::size_t headerSize = 28;
constexpr std::size_t listItemSize = 8;
constexpr std::size_t longestText = 16 * 1024;

/// What a table gives for a text: absent unless it can be shown.
std::optional<std::string_view> shown(std::string_view text)
{
    if (text.empty() || !isUTF8(text))
        return std::nullopt;
    return text;
}

std::uint64_t magnitude(std::int64_t count)
{
    const auto bits = static_cast<std::uint64_t>(count);
    return count < 0 ? 0 - bits : bits;
}

/// The key itself, without the plural form that may stand after it; only as much of it as decides about `wanted`.
std::string_view singular(std::string_view stored, std::string_view wanted)
{
    const auto start = stored.substr(0, wanted.size() + 1);
    return start.substr(0, start.find('\0'));
}

}

std::optional<MoTable> MoTable::read(std::string bytes)
{
    if (bytes.size() < headerSize)
        return std::nullopt;
    MoTable table(std::move(bytes));
    table.m_isSwapped = table.number(0) != magic;
    constexpr std::uint32_t newestRevision = 1;
    if (table.number(0) != magic || table.number(4) >> 16U > newestRevision)
        return std::nullopt;
    table.m_count = table.number(8);
    table.m_keys = table.number(12);
    table.m_translations = table.number(16);
    const auto size = table.m_bytes.size();
    for (const auto list : { table.m_keys, table.m_translations }) {
        if (list > size || table.m_count > (size - list) / listItemSize)
            return std::nullopt;
    }
    table.m_rule = table.statedRule();
    return table;
}

std::uint32_t MoTable::number(std::size_t at) const
{
    std::uint32_t value = 0;
    std::memcpy(&value, m_bytes.data() + at, sizeof value);
    return m_isSwapped ? std::byteswap(value) : value;
}

std::optional<std::string_view> MoTable::string(std::size_t list, std::uint32_t index) const
{
    const auto item = list + std::size_t { index } * listItemSize;
    const std::size_t length = number(item);
    const std::size_t start = number(item + 4);
    if (start > m_bytes.size() || length > m_bytes.size() - start)
        return std::nullopt;
    return std::string_view(m_bytes).substr(start, length);
}

/// Keys stand in ascending order of their bytes. Where they do not, or one cannot be read, some are not found.
std::optional<MoTable::Entry> MoTable::find(std::string_view key) const
{
    for (std::uint32_t first = 0, last = m_count; first < last;) {
        const auto middle = first + (last - first) / 2;
        const auto stored = string(m_keys, middle);
        if (!stored)
            return std::nullopt;
        const auto order = singular(*stored, key).compare(key);
        if (order == 0) {
            const auto translation = string(m_translations, middle);
            if (!translation || translation->size() > longestText)
                return std::nullopt;
            return Entry { *translation, stored->size() > key.size() };
        }
        if (order < 0)
            first = middle + 1;
        else
            last = middle;
    }
    return std::nullopt;
}

std::optional<PluralRule> MoTable::statedRule() const
{
    const auto statement = headerField("Plural-Forms");
    return statement ? PluralRule::parse(*statement) : PluralRule::singularForOne();
}

std::optional<std::string_view> MoTable::headerField(std::string_view name) const
{
    const auto header = find("");
    for (auto rest = header ? header->translation : std::string_view(); !rest.empty();) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (!line.starts_with(name) || !line.substr(name.size()).starts_with(':'))
            continue;
        const auto value = line.substr(name.size() + 1);
        return value.substr(std::min(value.find_first_not_of(' '), value.size()));
    }
    return std::nullopt;
}

std::vector<std::string_view> MoTable::forms(std::string_view key) const
{
    const auto entry = find(key);
    if (!entry)
        return {};
    std::vector<std::string_view> forms;
    for (auto rest = entry->translation;;) {
        const auto end = rest.find('\0');
        if (const auto form = shown(rest.substr(0, end)))
            forms.push_back(*form);
        if (end == std::string_view::npos)
            return forms;
        rest.remove_prefix(end + 1);
    }
}

std::optional<std::string_view> MoTable::text(std::string_view key) const
{
    const auto entry = find(key);
    return entry ? shown(entry->translation.substr(0, entry->translation.find('\0'))) : std::nullopt;
}

std::optional<std::string_view> MoTable::text(std::string_view key, std::int64_t count) const
{
    const auto entry = find(key);
    if (!entry || !entry->isInflected)
        return text(key);
    const auto wanted = m_rule ? m_rule->form(magnitude(count)) : std::nullopt;
    auto rest = entry->translation;
    for (auto form = wanted; form && *form > 0; --*form) {
        const auto end = rest.find('\0');
        if (end == std::string_view::npos)
            return std::nullopt;
        rest.remove_prefix(end + 1);
    }
    return wanted ? shown(rest.substr(0, rest.find('\0'))) : std::nullopt;
}

}
