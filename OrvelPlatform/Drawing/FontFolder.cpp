#include "OrvelPlatform/Drawing/FontFolder.h"

#include <algorithm>
#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <string>
#include <system_error>
#include <vector>

namespace orvel {

namespace fs = std::filesystem;

void addFonts(FcConfig* configuration, const fs::path& folder)
{
    std::error_code error;
    std::vector<fs::path> files;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (entry->path().extension() == ".ttf")
            files.push_back(entry->path());
    }
    std::ranges::sort(files); // a folder's order is anyone's guess
    for (const auto& file : files)
        addFont(configuration, file);
}

void addFont(FcConfig* configuration, const fs::path& file)
{
    FcConfigAppFontAddFile(configuration, reinterpret_cast<const FcChar8*>(file.c_str()));
}

void addFontsToProcess(const fs::path& folder)
{
    addFonts(FcConfigGetCurrent(), folder);
    // Whatever was written before, the toolkit looks again for what it writes next.
    auto* const map = pango_cairo_font_map_get_default();
    if (PANGO_IS_FC_FONT_MAP(map) != FALSE)
        pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(map));
}

}
