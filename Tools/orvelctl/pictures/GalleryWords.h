#pragma once

#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Locale.h"
#include "OrvelWidgetsUI/WidgetContent.h"

namespace orvelctl {

/// A content that puts a layout to the test.
struct WordsSample {
    std::string_view name; // for files
    std::string_view caption;
    orvel::WidgetContent content;
};

/// Long names, joined names, long spans and large numbers.
std::vector<WordsSample> longWords();

/// Words in scripts that there is no table of texts for.
std::vector<WordsSample> japaneseWords();
std::vector<WordsSample> arabicWords();

}
