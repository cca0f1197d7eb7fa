#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// Whose process this is. In its own process the text system makes its few fonts the process's font configuration,
/// which spares loading the system's; in another program's it leaves that program's alone.
enum class FontScope { ownProcess, guest };

/// Which fonts there are to choose from. Each takes its time to be read, so that a text begins with as few as will do.
enum class FontSupply {
    rounded, // our rounded family in the design system's weights: nearly all that a widget says
    own, // all of ours
    all, // ours and the system's
};

/// The weights of the rounded family that are read first: each takes a third of a millisecond.
inline constexpr std::array roundedWeights { 300, 400, 600, 700 };

/// The fonts that text is shaped with, read when they are first wanted.
class FontMaps {
public:
    FontMaps(std::filesystem::path folder, FontScope scope) : m_folder(std::move(folder)), m_scope(scope) { }

    /// A context for shaping paragraphs of one direction and language (BCP 47; empty: not known). Layouts keep theirs;
    /// otherwise it is valid until the next call.
    _PangoContext* context(FontSupply supply, LayoutDirection direction, std::string_view language);

private:
    struct Set {
        Handle<_FcConfig> configuration;
        Handle<_PangoFontMap> map;
        // A context's change would undo its layouts, so that each direction and language has one of its own.
        std::map<std::pair<LayoutDirection, std::string>, Handle<_PangoContext>> contexts;
    };

    Set made(FontSupply supply) const;

    std::filesystem::path m_folder;
    FontScope m_scope;
    std::array<Set, 3> m_sets; // by supply
};

}
