#pragma once

#include <cstddef>
#include <expected>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Base/JsonDecoding.h"
#include "OrvelPlatform/Base/JsonEncoding.h"

namespace orvel {

/// A longer shared file counts as absent, found by its size before it is read.
inline constexpr std::size_t largestSharedFile = std::size_t { 16 } << 20;

/// One JSON file of the shared container, with the record that it holds. There are no locks: a write replaces the file
/// in one step, so that a reader sees the old record or the new one. Safe from any thread.
template <typename Value>
struct SharedFile {
    std::filesystem::path url;

    explicit SharedFile(std::filesystem::path location) : url(std::move(location)) { }
    SharedFile(std::string_view name, const std::filesystem::path& in) : url(in / name) { }

    /// The record, complete or absent: a file that is missing, unreadable or wrong in any place has none.
    std::optional<Value> read() const
    {
        auto value = readOrFault();
        return value ? std::optional(*std::move(value)) : std::nullopt;
    }

    /// The same for a developer's tool, which wants to know where and why.
    std::expected<Value, Fault> readOrFault() const
    {
        const auto bytes = readFile(url, largestSharedFile);
        if (!bytes)
            return std::unexpected(bytes.error());
        auto value = decodeJson<Value>(*bytes);
        return value ? std::move(value) : std::unexpected(Fault { .where = url.string(), .why = value.error().text() });
    }

    /// Replaces the file durably. Nothing is written when the record has no JSON form.
    [[nodiscard]] std::expected<void, Fault> write(const Value& value) const
    {
        const auto bytes = encodeJson(value);
        if (!bytes)
            return std::unexpected(bytes.error());
        return replaceFile(url, *bytes);
    }

    /// Deletes the file; that there is none is a fault too.
    [[nodiscard]] std::expected<void, Fault> remove() const { return removeFile(url); }

    bool operator==(const SharedFile&) const = default;
};

}
