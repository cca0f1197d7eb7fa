#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

/// The text of a URL. It may be no URL at all: nothing is checked until it is split.
struct URL {
    std::string text;

    bool operator==(const URL&) const = default;
};

/// One `name=value` of a query, percent-decoded. Without a value: an item without "=", or whose value is not UTF-8.
struct URLQueryItem {
    std::string name;
    std::optional<std::string> value;

    bool operator==(const URLQueryItem&) const = default;
};

/// The pieces of a URL as they are written, without a base. A piece that is absent differs from an empty one.
struct URLComponents {
    std::optional<std::string> scheme;
    std::optional<std::string> user;
    std::optional<std::string> host; // percent-encoded, its case kept
    std::optional<std::string> port; // digits, or empty
    std::string path;
    std::optional<std::string> query;
    std::optional<std::string> fragment;

    /// Absent for text that is no URL: an empty one, or one whose port is no number.
    static std::optional<URLComponents> split(std::string_view text);

    /// The query's items in order; none without a query. "+" stands for itself, and so does a malformed "%".
    std::vector<URLQueryItem> queryItems() const;

    bool operator==(const URLComponents&) const = default;
};

/// A letter and then letters, digits, "+", "-" and ".".
bool isValidURLScheme(std::string_view scheme);

/// "name=value" pairs joined with "&", with every byte escaped that may not stand in a query item.
std::string urlQuery(const std::vector<URLQueryItem>& items);

}
