#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// The folder that the application and its extension share.
namespace orvel::AppGroup {

/// The application group's identifier, from the main bundle's information dictionary; absent where that has none.
std::optional<std::string> identifier();

/// The group's container, found anew at each call. Without a usable identifier it is a private folder that is made on
/// the way; the group's own is made by the first writer, so that reader and writer never part.
std::filesystem::path container();

/// The container of a group: an identifier is usable when it is one component of a path.
std::optional<std::filesystem::path> containerURL(const std::string& forSecurityApplicationGroupIdentifier);

/// The container for an identifier that may be absent or unusable.
std::filesystem::path container(const std::optional<std::string>& forIdentifier);

}
