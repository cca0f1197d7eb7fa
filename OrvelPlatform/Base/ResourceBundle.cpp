#include "OrvelPlatform/Base/ResourceBundle.h"

#include <fmt/format.h>

#include "OrvelPlatform/Base/Precondition.h"

namespace orvel {

Bundle resourceBundle(std::string_view name, const void* address)
{
    const auto folderName = fmt::format("{}.bundle", name);
    const auto main = Bundle::main();
    if (auto bundle = Bundle::at(main.resources() / folderName))
        return *std::move(bundle);
    if (auto bundle = Bundle::at(Bundle::holding(address).resources() / folderName))
        return *std::move(bundle);
    if (auto bundle = Bundle::at(main.path() / folderName))
        return *std::move(bundle);
    fatalError(fmt::format("unable to find bundle named {}", name));
}

}
