#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "OrvelCopy/Lookup/Listing.h"

namespace orvel::Copy {

/// How far a translation may outgrow its key where it stands, from the least room to the most.
enum class Room {
    tight, // labels in widgets, controls and the popover, spans of time: 8 columns or 40 %, whichever is more
    menu, // a menu is as wide as its widest item: 16 columns or 100 %
    label, // labels elsewhere, such as the words on a button: 10 columns or 60 %
    sentence, // broken into lines where it has to be: 10 columns or 80 %
    spoken, // read aloud only: takes no room
};

/// The room of a text, by its namespace, its member's name and its shape.
Room roomOf(const ListedText& text);

/// That a translation is longer than its room, in a few words. Lengths are columns without the values that are put in.
std::optional<std::string> lengthFault(std::string_view key, std::string_view translation, Room room);

}
