#include "OrvelShared/AppGroup.h"

#include <system_error>

#include "OrvelPlatform/Base/ApplicationSupport.h"
#include "OrvelPlatform/Base/Bundle.h"

namespace orvel::AppGroup {

namespace {

constexpr std::size_t longestName = 255; // what file systems here allow

bool isOnePathComponent(const std::string& name)
{
    return !name.empty() && name.size() <= longestName && name != "." && name != ".."
        && name.find('/') == std::string::npos && name.find('\0') == std::string::npos;
}

}

std::optional<std::string> identifier()
{
    return Bundle::main().information("OrvelAppGroup");
}

std::optional<std::filesystem::path> containerURL(const std::string& forSecurityApplicationGroupIdentifier)
{
    if (!isOnePathComponent(forSecurityApplicationGroupIdentifier))
        return std::nullopt;
    return applicationSupport() / "Group Containers" / forSecurityApplicationGroupIdentifier;
}

std::filesystem::path container(const std::optional<std::string>& forIdentifier)
{
    if (auto group = forIdentifier.and_then(containerURL))
        return *group;
    auto fallback = applicationSupport() / "Orvel-NoGroup";
    std::error_code ignored;
    std::filesystem::create_directories(fallback, ignored);
    return fallback;
}

std::filesystem::path container()
{
    return container(identifier());
}

}
