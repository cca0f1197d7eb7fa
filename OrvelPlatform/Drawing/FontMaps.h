#pragma once

#include <array>
#include <filesystem>

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// Whose process this is. In its own process the text system makes its few fonts the process's font configuration,
/// which spares loading the system's; in another program's it leaves that program's alone.
enum class FontScope { ownProcess, guest };

/// The fonts that text is shaped with: first our own alone; together with all of the system's only once a text asks for
/// letters that ours do not have.
class FontMaps {
public:
    FontMaps(std::filesystem::path folder, FontScope scope);

    /// A context for shaping with our fonts. Lives as long as this.
    _PangoContext* own(LayoutDirection direction);
    /// The same with the system's fonts for what is missing.
    _PangoContext* withSystem(LayoutDirection direction);

private:
    struct Set {
        Handle<_FcConfig> configuration;
        Handle<_PangoFontMap> map;
        std::array<Handle<_PangoContext>, 2> contexts; // one for each direction: a context's change undoes its layouts
    };

    static void fill(Set& set, Handle<_FcConfig> configuration, const std::filesystem::path& folder);
    static _PangoContext* context(const Set& set, LayoutDirection direction);

    std::filesystem::path m_folder;
    Set m_own;
    Set m_all;
};

}
