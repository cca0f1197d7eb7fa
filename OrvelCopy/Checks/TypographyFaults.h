#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvel::Copy {

/// What a language asks of its texts, as far as a program can see it.
struct Typography {
    bool hasSpacesBetweenWords = true; // else a number stands beside its unit without one
    bool hasSpacesBeforeMarks = false; // no-break ones before ; : ? ! » and after «
    bool opensQuestions = false; // ¿ and ¡
    std::string_view foreignMarks {}; // marks of Latin script for which the language has its own

    /// By the language's name in either spelling of a locale; a language that is not known has no habits.
    static Typography of(std::string_view language);
};

/// What is wrong with a translation as a piece of text beside its key, each in a few words: spaces and marks at its
/// ends that are lost, no-break spaces, typewriter's quotation marks, direction marks, and the language's own habits.
std::vector<std::string> typographyFaults(
    std::string_view key, std::string_view translation, const Typography& typography);

}
