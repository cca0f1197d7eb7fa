#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel {

/// A text of the catalogue in English, and what it must be. The English texts are the tables' keys and the product's
/// words: a changed character loses every translation.
struct EnglishText {
    std::string text, expected;
};

/// `make` gives the texts; it is called in English.
template <typename Make>
void expectInEnglish(Make make)
{
    const std::vector<EnglishText> texts = Copy::inLanguage(Locale::english(), make);
    for (const auto& [text, expected] : texts)
        EXPECT_EQ(text, expected);
}

}
