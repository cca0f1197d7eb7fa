#include "OrvelCopy/Lookup/PluralRule.h"

#include <gtest/gtest.h>

using namespace orvel::Copy;

namespace {

std::optional<PluralRule> rule(std::string_view expression)
{
    return PluralRule::parse("nplurals=6; plural=" + std::string(expression) + ";");
}

std::string repeated(std::string_view text, int times)
{
    std::string result;
    for (; times > 0; --times)
        result += text;
    return result;
}

}

TEST(PluralRules, areExpressionsOfC)
{
    struct Case {
        std::string_view expression;
        std::uint64_t n;
        std::optional<std::size_t> form;
    };
    const Case cases[] = {
        { "0", 7, 0 },
        { "n != 1", 1, 0 },
        { "n != 1", 0, 1 },
        { "n>1", 1, 0 },
        { "1+2*2", 0, 5 },
        { "(1+1)*2", 0, 4 },
        { "7-2-1", 0, 4 },
        { "12/2/3", 0, 2 },
        { "17%10%4", 0, 3 },
        { "1||0&&0", 0, 1 },
        { "1<2==1", 0, 1 },
        { "!n+!n", 0, 2 },
        { "!!n", 5, 1 },
        { "n==1?0:n==2?1:2", 2, 1 },
        { "n ? n==1 ? 3 : 4 : 5", 2, 4 },
        { "n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && n%100<=10 ? 3 : n%100>=11 ? 4 : 5", 111, 4 },
        { "n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && n%100<=10 ? 3 : n%100>=11 ? 4 : 5", 102, 5 },
        { "n==0 ? 3 : 4/n", 0, 3 },
        { "n==0 ? 3 : 4/n", 2, 2 },
        { "n && 4/n", 0, 0 },
        { "n==0 || 4/n", 0, 1 },
        { "4/n", 0, std::nullopt },
        { "4%n", 0, std::nullopt },
        { "n-1", 0, std::nullopt }, // wraps around, as in C
        { "6", 0, std::nullopt },
    };
    for (const auto& c : cases)
        EXPECT_EQ(rule(c.expression).value().form(c.n), c.form) << c.expression << " for " << c.n;
}

TEST(PluralRules, thatAreNoneAreAbsent)
{
    const std::string malformed[] = { "", "n n", "n +", "(n", "n)", "n ? 1", "n ? 1 :", "n = 1", "n & 1", "x", "-1",
        "99999999999999999999", repeated("(", 1000), repeated("(", 100) + "n" + repeated(")", 100),
        repeated("n?1:", 200) + "1", repeated("1+", 600) + "1" };
    for (const auto& expression : malformed) {
        EXPECT_FALSE(rule(expression)) << expression;
    }
    for (const auto* statement : { "", "plural=n;", "nplurals=2;", "nplurals=0; plural=0;", "nplurals=x; plural=0;",
             "nplurals=-1; plural=0;", "nplurals=1000; plural=0;" })
        EXPECT_FALSE(PluralRule::parse(statement)) << statement;
}
