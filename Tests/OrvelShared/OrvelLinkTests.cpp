#include "OrvelShared/OrvelLink.h"

#include <gtest/gtest.h>

using namespace orvel;

TEST(OrvelLinks, formTheirURLs)
{
    const std::pair<OrvelLink, std::string_view> cases[] = {
        { OrvelLink::Focus {}, "orvel://focus" },
        { OrvelLink::Today {}, "orvel://today" },
        { OrvelLink::Settings {}, "orvel://settings" },
        { OrvelLink::Main {}, "orvel://main" },
        { OrvelLink::Breathe {}, "orvel://breathe" },
        { OrvelLink::Breathe { .style = "calm", .minutes = 3 }, "orvel://breathe?style=calm&minutes=3" },
        { OrvelLink::Breathe { .style = std::nullopt, .minutes = -5 }, "orvel://breathe?minutes=-5" },
        { OrvelLink::Breathe { .style = "", .minutes = std::nullopt }, "orvel://breathe?style=" },
        { OrvelLink::Breathe { .style = "a b&c=ü", .minutes = std::nullopt },
            "orvel://breathe?style=a%20b%26c%3D%C3%BC" },
    };
    for (const auto& [link, url] : cases) {
        EXPECT_EQ(link.url().text, url);
        for (const auto scheme : { "orvel", "x", "A1+-." })
            EXPECT_EQ(OrvelLink::fromURL(link.url(scheme)), link) << url;
    }
    for (const auto scheme : { "", "1x", "or vel", "orvel:", "ü" })
        EXPECT_EQ(OrvelLink(OrvelLink::Focus {}).url(scheme).text, "file:///") << scheme;
}

TEST(OrvelLinks, areReadFromAnyURL)
{
    const std::pair<std::string_view, OrvelLink> cases[] = {
        { "other://focus", OrvelLink::Focus {} },
        { "//focus", OrvelLink::Focus {} },
        { "orvel://user@focus:80/x?y#z", OrvelLink::Focus {} },
        { "orvel://today/", OrvelLink::Today {} },
        { "orvel://settings#a", OrvelLink::Settings {} },
        { "orvel://Focus", OrvelLink::Main {} },
        { "orvel://fo%63us", OrvelLink::Main {} },
        { "orvel:focus", OrvelLink::Main {} },
        { "orvel:///focus", OrvelLink::Main {} },
        { "focus", OrvelLink::Main {} },
        { "orvel://focus:port", OrvelLink::Main {} },
        { "", OrvelLink::Main {} },
        { "orvel://breathe?style=&minutes=+3", OrvelLink::Breathe { .style = "", .minutes = 3 } },
        { "orvel://breathe?style=calm&style=deep", OrvelLink::Breathe { .style = "calm", .minutes = std::nullopt } },
        { "orvel://breathe?style", OrvelLink::Breathe { .style = "", .minutes = std::nullopt } },
        { "orvel://breathe?minutes=1&minutes=2", OrvelLink::Breathe { .style = std::nullopt, .minutes = 1 } },
        { "orvel://breathe?Style=calm&minutes=007", OrvelLink::Breathe { .style = std::nullopt, .minutes = 7 } },
        { "orvel://breathe?minutes=-9223372036854775808",
            OrvelLink::Breathe { .style = std::nullopt, .minutes = std::numeric_limits<std::int64_t>::min() } },
    };
    for (const auto& [url, link] : cases)
        EXPECT_EQ(OrvelLink::fromURL({ std::string(url) }), link) << url;
    for (const std::string minutes :
        { "abc", "", "+", "-", "+-3", "-+3", "++3", "%203", "3%20", "3.0", "0x3", "9223372036854775808" })
        EXPECT_EQ(OrvelLink::fromURL({ "orvel://breathe?minutes=" + minutes }), OrvelLink(OrvelLink::Breathe {}))
            << minutes;
}
