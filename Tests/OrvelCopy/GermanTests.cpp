#include <algorithm>
#include <gtest/gtest.h>

#include "OrvelCopy/Blocks.h"
#include "OrvelCopy/Format.h"
#include "OrvelCopy/Lookup/Listing.h"
#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelCopy/Widgets.h"

using namespace orvel;

namespace {

/// Texts without a word in them, and names, are the same in every language.
bool hasWords(std::string_view key)
{
    constexpr std::string_view alike[] = { "Orvel", "%lld h", "Orvel. %@: %@, %@. %@", "Orvel. %@, %@. %@", "Widget",
        "Websites", "Optional", "Name", "VoiceOver", "esc", "Apps", "Symbol", "%lld\u00A0min", "%lld\u00A0min · %@" };
    return std::ranges::find(alike, key) == std::end(alike) && std::ranges::any_of(key, [](char letter) {
        return letter >= 'a' && letter <= 'z' && letter != 'l' && letter != 'd';
    });
}

}

TEST(German, hasEveryTextInAllItsForms)
{
    const auto german = Locale::named("de").value();
    const auto texts = Copy::listedTexts();
    ASSERT_FALSE(texts.empty());
    for (const auto& text : texts)
        EXPECT_EQ(Copy::translation(text.key, german).size(), text.isCounted ? 2U : 1U)
            << text.member << ": " << text.key;
}

TEST(German, leavesNoEnglishStanding)
{
    const auto german = Locale::named("de").value();
    for (const auto& text : Copy::listedTexts()) {
        for (const auto& form : Copy::translation(text.key, german)) {
            EXPECT_TRUE(form != text.key || !hasWords(text.key)) << form;
            EXPECT_EQ(form.find_first_of("\"'"), std::string::npos) << form << ": typewriter's quotes";
        }
    }
}

TEST(German, inflectsAndReorders)
{
    Copy::inLanguage(Locale::named("de_DE.UTF-8"), [] {
        EXPECT_EQ(Copy::Widgets::pausedDetail(1), "Dein Block ist gespeichert.");
        EXPECT_EQ(Copy::Widgets::pausedDetail(2), "Deine 2 Blöcke sind gespeichert.");
        EXPECT_EQ(Copy::Widgets::breatheSentence(1), "Orvel, Jetzt atmen, 1 Minute. Öffnet eine Atempause.");
        EXPECT_EQ(Copy::Blocks::blocksSummary(0, 1, true),
            "Blockiert 0 Apps und 1 Website. Fertige Listen nehmen neue Apps auf, die du installierst.");
        EXPECT_EQ(Format::remaining(Seconds { 3660 }), "1 h 1 min");
    });
}
