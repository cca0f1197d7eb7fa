#include "OrvelCopy/Lookup/Insertion.h"

#include <array>
#include <gtest/gtest.h>

using namespace orvel::Copy;

namespace {

constexpr std::array<Insertion, 3> values { std::string_view("50%@"), std::int64_t { -7 }, std::string_view("אב") };

}

TEST(Insertions, followThePattern)
{
    struct Case {
        std::string_view pattern;
        std::optional<std::string_view> text;
    };
    const Case cases[] = {
        { "plain", "plain" },
        { "", "" },
        { "%@, %lld, %@", "50%@, -7, אב" },
        { "%3$@ %2$lld %1$@ %3$@", "אב -7 50%@ אב" },
        { "%2$lld%%, %@", "-7%, 50%@" },
        { "%%@ %%", "%@ %" },
        { "only %1$@", "only 50%@" },
        { "%lld", std::nullopt },
        { "%1$lld", std::nullopt },
        { "%4$@", std::nullopt },
        { "%0$@", std::nullopt },
        { "%12$@", std::nullopt },
        { "%@ %lld %@ %@", std::nullopt },
        { "%s", std::nullopt },
        { "%n", std::nullopt },
        { "100%", std::nullopt },
        { "%1$", std::nullopt },
        { "%ll", std::nullopt },
    };
    for (const auto& c : cases)
        EXPECT_EQ(withInsertions(c.pattern, values, Isolation::none), c.text) << c.pattern;
}

TEST(Insertions, areBounded)
{
    std::string pattern;
    for (auto insertion = 0; insertion < 32; ++insertion)
        pattern += "%1$@";
    EXPECT_TRUE(withInsertions(pattern, values, Isolation::none));
    EXPECT_FALSE(withInsertions(pattern + "%1$@", values, Isolation::none));
}

TEST(Insertions, ofTextsAreIsolatedOnce)
{
    struct Case {
        std::string_view name, inserted, text;
    };
    const Case cases[] = {
        { "a name", "Mail", "[\u2068Mail\u2069]" },
        { "no text", "", "[]" },
        { "isolated already", "\u2068Mail\u2069", "[\u2068Mail\u2069]" },
        { "isolated, with another inside", "\u2068a \u2067b\u2069\u2069", "[\u2068a \u2067b\u2069\u2069]" },
        { "two isolates beside each other", "\u2068a\u2069 \u2068b\u2069",
            "[\u2068\u2068a\u2069 \u2068b\u2069\u2069]" },
        { "never closed", "\u2068Mail", "[\u2068\u2068Mail\u2069]" },
    };
    for (const auto& c : cases) {
        const std::array<Insertion, 1> inserted { c.inserted };
        EXPECT_EQ(withInsertions("[%@]", inserted, Isolation::firstStrongIsolates), c.text) << c.name;
    }
    EXPECT_EQ(withInsertions("%2$lld", values, Isolation::firstStrongIsolates), "-7");
}
