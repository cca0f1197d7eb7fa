#include "OrvelPlatform/Base/TextColumns.h"

#include <gtest/gtest.h>
#include <string_view>

TEST(TextColumns, countWhatATerminalShows)
{
    const std::pair<std::string_view, std::size_t> cases[] = { { "", 0 }, { "abc", 3 }, { "äöü’·–—", 7 },
        { "e\u0301", 1 }, { "日本", 4 }, { "🌙", 2 }, { "☁\uFE0F", 2 }, { "👩\u200D🚀", 2 }, { "👍🏽", 2 }, { "🇩", 1 },
        { "שלום", 4 }, { "a\u2068b\u2069", 2 }, { "█░", 2 } };
    for (const auto& [text, columns] : cases)
        EXPECT_EQ(orvel::columns(text), columns) << text;
}
