#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelCopy/Lookup/Listing.h"
#include "OrvelCopy/Lookup/MoTable.h"

namespace orvel::Copy {

/// One thing that is wrong with a table: a sentence whose subject is the translation, or the table itself.
struct TableFault {
    std::vector<std::string> members; // "Widgets.until", all that have the key; none where the table itself is wrong
    std::string key;
    std::string form; // the translation as it stands in the table; empty where there is none
    std::string what;

    bool operator==(const TableFault&) const = default;
};

/// Everything that is wrong with a table for these texts, in their order, each key once: as strict as the member asks
/// that has the least room for it. `language` is a locale's name; it says what the language's typography wants.
std::vector<TableFault> tableFaults(const MoTable& table, std::span<const ListedText> texts, std::string_view language);

}
