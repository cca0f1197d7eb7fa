#include "OrvelPlatform/Drawing/FontFolder.h"

#include <algorithm>
#include <fontconfig/fontconfig.h>
#include <string>
#include <system_error>
#include <vector>

namespace orvel {

namespace fs = std::filesystem;

void addFonts(FcConfig* configuration, const fs::path& folder)
{
    std::error_code error;
    std::vector<std::string> files;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (entry->path().extension() == ".ttf")
            files.push_back(entry->path().string());
    }
    std::ranges::sort(files); // a folder's order is anyone's guess
    for (const auto& file : files)
        FcConfigAppFontAddFile(configuration, reinterpret_cast<const FcChar8*>(file.c_str()));
}

void addFontsToProcess(const fs::path& folder)
{
    addFonts(FcConfigGetCurrent(), folder);
}

}
