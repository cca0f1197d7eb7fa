#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "OrvelCopy/Checks/TableCheck.h"
#include "OrvelCopy/Lookup/Listing.h"

namespace orvelctl {

/// A text of the catalogue in one language.
struct CopyText {
    std::optional<std::vector<std::string>> forms; // of a counted key, one for each kind of number
    bool isCounted;
    bool isTranslated; // else the text is the key; English always is
    std::string key;
    std::string member;
    std::string namespace_;
    std::string text; // the form for most numbers
};

/// The texts of a namespace in a language, or of all where it is empty.
std::vector<CopyText> copyTexts(const std::string& namespace_, const orvel::Locale& language);

/// For a terminal: each key beside its member, its translations below it where the language has some of its own.
std::string copyTextsAsLines(std::span<const CopyText> texts, bool isEnglish);

std::string copyTextsAsJson(const std::vector<CopyText>& texts);

/// What is wrong with one language's table.
struct CopyFault {
    std::optional<std::string> form; // the translation; absent where there is none
    std::optional<std::string> key; // absent where the table itself is wrong
    std::string language;
    std::vector<std::string> members;
    std::string what;
};

CopyFault copyFault(const std::string& language, const orvel::Copy::TableFault& fault);

/// One line for each: language, members, key, what.
std::string copyFaultsAsLines(std::span<const CopyFault> faults);

std::string copyFaultsAsJson(const std::vector<CopyFault>& faults);

}
