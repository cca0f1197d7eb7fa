#include "OrvelPlatform/Base/ResourceBundle.h"

#include <array>
#include <fmt/format.h>

#include "OrvelPlatform/Base/Precondition.h"

namespace orvel {

Bundle resourceBundle(std::string_view name, const void* address)
{
    const auto main = Bundle::main();
    const auto folderName = fmt::format("{}.bundle", name);
    for (const auto& folder : std::array { main.resources(), Bundle::holding(address).resources(), main.path() }) {
        if (auto bundle = Bundle::at(folder / folderName))
            return *std::move(bundle);
    }
    fatalError(fmt::format("unable to find bundle named {}", name));
}

}
