#include "OrvelPlatform/Base/URL.h"

#include <algorithm>
#include <ranges>
#include <simdjson.h>

namespace orvel {

namespace {

constexpr std::string_view hexadecimal = "0123456789ABCDEF";

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr bool isLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// What a query item's name and value may hold as it is: what a query allows, without the "&" and "=" that divide it.
constexpr bool standsUnescaped(char character)
{
    return isLetter(character) || isDigit(character)
        || std::string_view("-._~!$'()*+,;:@/?").find(character) != std::string_view::npos;
}

void appendEscaped(std::string& query, std::string_view text)
{
    for (const auto character : text) {
        if (standsUnescaped(character)) {
            query += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        query += '%';
        query += hexadecimal[byte >> 4];
        query += hexadecimal[byte & 0xF];
    }
}

std::optional<unsigned> hexadecimalDigit(char character)
{
    if (isDigit(character))
        return character - '0';
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    return std::nullopt;
}

std::string unescaped(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '%' && index + 2 < text.size()) {
            const auto high = hexadecimalDigit(text[index + 1]);
            const auto low = hexadecimalDigit(text[index + 2]);
            if (high && low) {
                bytes += static_cast<char>(*high << 4 | *low);
                index += 2;
                continue;
            }
        }
        bytes += text[index];
    }
    return bytes;
}

URLQueryItem queryItem(std::string_view text)
{
    const auto equals = text.find('=');
    URLQueryItem item { .name = unescaped(text.substr(0, equals)), .value = std::nullopt };
    if (equals == std::string_view::npos)
        return item;
    auto value = unescaped(text.substr(equals + 1));
    if (simdjson::validate_utf8(value))
        item.value = std::move(value);
    return item;
}

/// Takes what follows the last (or first) `mark` off `text`; absent without one.
std::optional<std::string> takeAfter(std::string_view& text, std::size_t mark)
{
    if (mark == std::string_view::npos)
        return std::nullopt;
    std::string after(text.substr(mark + 1));
    text = text.substr(0, mark);
    return after;
}

/// `user@host:port`; false when the port is no number.
bool splitAuthority(std::string_view authority, URLComponents& components)
{
    if (const auto at = authority.rfind('@'); at != std::string_view::npos) {
        components.user = std::string(authority.substr(0, at));
        authority = authority.substr(at + 1);
    }
    const auto bracket = authority.rfind(']'); // a literal address holds colons of its own
    const auto colon = authority.rfind(':');
    if (colon != std::string_view::npos && (bracket == std::string_view::npos || colon > bracket))
        components.port = takeAfter(authority, colon);
    components.host = std::string(authority);
    return !components.port || std::ranges::all_of(*components.port, isDigit);
}

}

std::optional<URLComponents> URLComponents::split(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    URLComponents components {};
    components.fragment = takeAfter(text, text.find('#'));
    components.query = takeAfter(text, text.find('?'));
    if (const auto colon = text.find(':'); colon != std::string_view::npos && isValidURLScheme(text.substr(0, colon))) {
        components.scheme = std::string(text.substr(0, colon));
        text = text.substr(colon + 1);
    }
    if (text.starts_with("//")) {
        text = text.substr(2);
        const auto end = std::min(text.find('/'), text.size());
        if (!splitAuthority(text.substr(0, end), components))
            return std::nullopt;
        text = text.substr(end);
    }
    components.path = std::string(text);
    return components;
}

std::vector<URLQueryItem> URLComponents::queryItems() const
{
    std::vector<URLQueryItem> items;
    if (!query)
        return items;
    for (const auto part : std::views::split(*query, '&'))
        items.push_back(queryItem(std::string_view(part.begin(), part.end())));
    return items;
}

bool isValidURLScheme(std::string_view scheme)
{
    return !scheme.empty() && isLetter(scheme.front()) && std::ranges::all_of(scheme, [](char character) {
        return isLetter(character) || isDigit(character) || character == '+' || character == '-' || character == '.';
    });
}

std::string urlQuery(const std::vector<URLQueryItem>& items)
{
    std::string query;
    for (const auto& item : items) {
        if (&item != &items.front())
            query += '&';
        appendEscaped(query, item.name);
        if (item.value) {
            query += '=';
            appendEscaped(query, *item.value);
        }
    }
    return query;
}

}
