#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvel::Copy {

/// What a translation does wrong with the values that its key puts in: each in a few words, none where it is sound.
///
/// Every value must be put in, as its own kind, in an order that is either the key's or numbered throughout; the one
/// whole number of a counted key may be left out where `mayLeaveNumberOut`. A key without values is not read as a
/// pattern at all, so that its translation may have none.
std::vector<std::string> valueFaults(std::string_view key, std::string_view translation, bool mayLeaveNumberOut);

/// The text without the values that are put in: what takes room whatever they are.
std::string withoutValues(std::string_view text);

/// How many values are put in.
std::size_t valueCount(std::string_view text);

}
