#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Locale.h"

namespace orvel::Copy {

/// One text of the code: a member that picks between several has several.
struct ListedText {
    std::string namespace_; // "Widgets"; "Copy" for what stands in no namespace of it
    std::string member; // "untilLeft"
    std::string key; // the English text
    bool isConstant;
    bool isCounted; // a table may inflect it

    bool operator==(const ListedText&) const = default;
};

/// Every text that is linked into this program: the namespaces in the product's order, their texts in the sources'. The
/// code itself is the list: a program that wants the whole catalogue links all of it.
std::vector<ListedText> listedTexts();

/// The translation of a key in the best table for a locale, as it stands there: one text or its plural forms, none
/// where the key is not translated.
std::vector<std::string> translation(std::string_view key, const Locale& locale);

/// The table from which words in a locale are read; empty where they are English without a table.
const std::filesystem::path& tableFile(const Locale& locale);

/// The identifiers of the languages that have a table beside English and can be offered to a person.
std::vector<std::string> translatedLanguages();

}
