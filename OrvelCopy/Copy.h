#pragma once

#include <string_view>

/// Every text that people see, asked for by name: `Copy::Widgets::untilLeft(time, left)`.
///
/// A member without arguments is a constant: it is looked up when it is first read and kept for the life of the
/// process. A member with arguments is looked up on each call. Names, times and spans are passed in as text that is
/// already formatted, counts as whole numbers. Where the language of the user has no translation, or none of a text,
/// the English text stands. All of it may be called from any thread.
namespace orvel::Copy {

/// Where the product is found on the web, as people read it. It is put into the texts, so that no translation has it.
inline constexpr std::string_view webAddress = "orvel.app";

/// "Focus"
std::string_view focusName();

}
