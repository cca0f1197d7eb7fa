#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "WidgetHost/Style/StyleSheet.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel::tests {

/// How the host's windows are to be looked at: arguments are "dark", "contrast", "bigger", "warning" and names of
/// languages.
struct Demonstration {
    bool isDark = false;
    bool increasesContrast = false;
    bool hasWarning = false;
    bool reducesTransparency = false;
    int biggerText = 0;
    std::string language = "en";

    explicit Demonstration(std::span<char*> arguments)
    {
        for (const std::string_view argument : arguments) {
            if (argument == "dark")
                isDark = true;
            else if (argument == "contrast")
                increasesContrast = true;
            else if (argument == "bigger")
                biggerText = BiggerText::maxSteps;
            else if (argument == "warning")
                hasWarning = true;
            else
                language = argument;
        }
    }

    HostWords words() const { return HostWords(language); }

    StyleSettings style() const
    {
        return {
            .colors = { .dark = isDark,
                .increaseContrast = increasesContrast,
                .reduceTransparency = reducesTransparency },
            .biggerText = BiggerText(biggerText),
        };
    }

    HostEnvironment environment(std::string family, double scale) const
    {
        return {
            .family = std::move(family),
            .isPreview = true,
            .colorScheme = isDark ? "dark" : "light",
            .contrast = increasesContrast ? "increased" : "standard",
            .reduceTransparency = reducesTransparency,
            .biggerText = biggerText,
            .locale = Locale::named(language),
            .language = language,
            .scale = scale,
            .format = PictureFormat::pixels,
        };
    }
};

}
