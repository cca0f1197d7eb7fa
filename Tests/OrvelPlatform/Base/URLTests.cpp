#include "OrvelPlatform/Base/URL.h"

#include <gtest/gtest.h>

using namespace orvel;

TEST(URLs, splitIntoThePiecesThatAreWritten)
{
    struct Case {
        std::string_view text;
        std::optional<std::string> scheme, user, host, port;
        std::string path;
        std::optional<std::string> query, fragment;
    };
    const auto none = std::nullopt;
    const Case cases[] = {
        { "orvel://user@focus:80/x?y#z", "orvel", "user", "focus", "80", "/x", "y", "z" },
        { "orvel://focus", "orvel", none, "focus", none, "", none, none },
        { "OrVel+1.2-a://Focus/", "OrVel+1.2-a", none, "Focus", none, "/", none, none },
        { "//focus?", none, none, "focus", none, "", "", none },
        { "orvel:focus", "orvel", none, none, none, "focus", none, none },
        { "orvel:///focus", "orvel", none, "", none, "/focus", none, none },
        { "focus", none, none, none, none, "focus", none, none },
        { "1x://focus", none, none, none, none, "1x://focus", none, none },
        { "a://b@c@d:/", "a", "b@c", "d", "", "/", none, none },
        { "a://[::1]:8/", "a", none, "[::1]", "8", "/", none, none },
        { "a://[::1]", "a", none, "[::1]", none, "", none, none },
        { "a://b?c#d?e#f", "a", none, "b", none, "", "c", "d?e#f" },
        { "a://fo%63us", "a", none, "fo%63us", none, "", none, none },
    };
    for (const auto& c : cases) {
        const URLComponents expected { c.scheme, c.user, c.host, c.port, c.path, c.query, c.fragment };
        EXPECT_EQ(URLComponents::split(c.text), expected) << c.text;
    }
    EXPECT_FALSE(URLComponents::split(""));
    EXPECT_FALSE(URLComponents::split("orvel://focus:port"));
    EXPECT_FALSE(URLComponents::split("orvel://focus:8o"));
}

TEST(URLs, readQueryItemsAsTheyStand)
{
    const auto items = URLComponents::split("x:?a=1&b&=3&&c=%zz&d=a+b&e=%41%20=&f=%C3%BC&g=%FF&h=%4")->queryItems();
    const std::vector<URLQueryItem> expected { { "a", "1" }, { "b", std::nullopt }, { "", "3" }, { "", std::nullopt },
        { "c", "%zz" }, { "d", "a+b" }, { "e", "A =" }, { "f", "ü" }, { "g", std::nullopt }, { "h", "%4" } };
    EXPECT_EQ(items, expected);
    EXPECT_TRUE(URLComponents::split("x:y")->queryItems().empty());
}

TEST(URLs, writeQueriesThatReadBack)
{
    EXPECT_EQ(urlQuery({ { "a b", "+&=#%ü" }, { "c", std::nullopt }, { "", "" } }), "a%20b=+%26%3D%23%25%C3%BC&c&=");
    EXPECT_EQ(urlQuery({ { "k", "-._~!$'()*+,;:@/?" } }), "k=-._~!$'()*+,;:@/?");
    std::string every;
    for (auto byte = 1; byte < 0x80; ++byte)
        every += static_cast<char>(byte);
    const std::vector<URLQueryItem> items { { every, every }, { "", "ü\n🌙" } };
    EXPECT_EQ(URLComponents::split("x:?" + urlQuery(items))->queryItems(), items);
}
