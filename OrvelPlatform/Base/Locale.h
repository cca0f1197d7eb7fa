#pragma once

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Date.h"

namespace orvel {

/// A language and the habits of a place: how times, weekdays and lists of names are written there.
///
/// A cheap, immutable value, safe from any thread. What its formats need is made at the first use, which is slow, and
/// kept for the locales that were asked for last, whoever asks for them again. The C library's locale is never read
/// nor set: nothing need be installed for a locale to work.
class Locale {
public:
    /// A locale by its name, in the spelling of BCP 47 ("en-GB-u-hc-h12") or of POSIX ("de_DE.UTF-8", "sr_RS@latin").
    /// "C" and "POSIX" are English. A name that nobody knows is a locale too, with the formats that are common to all;
    /// one that is not well formed is absent.
    static std::optional<Locale> named(std::string_view name);

    static Locale english();

    /// The user's locale for times, weekdays and lists now: the first of LC_ALL, LC_TIME and LANG that is set and not
    /// empty; English where none is and where the name is not well formed.
    static Locale current();

    /// What the environment says now of the language of words, as one text: the names of the languages in the order
    /// of preference, colons between them; empty for English. The first of LC_ALL, LC_MESSAGES and LANG that is set
    /// and not empty counts, and the list in LANGUAGE goes before it unless it is C or POSIX.
    static std::string wordsSetting();

    /// The locales that such a text names, without those that are not well formed.
    static std::vector<Locale> preferred(std::string_view wordsSetting);

    /// The name in the spelling of BCP 47, such as "de-DE"; equal for equal locales.
    const std::string& identifier() const { return m_identifier; }

    /// Whether the locale's script is written from right to left.
    bool isRightToLeft() const;

    /// The identifiers under which words of this locale may be kept, the closest first: the locale itself without
    /// extensions, then its parents. Of de-AT the last is de; of zh-TW it is zh-Hant and never zh, another script.
    const std::vector<std::string>& languageAndParents() const;

    /// The time of day in the short style, without a date: "09:05", "9:05 AM" (there with U+202F before AM).
    std::string time(WallTime wallTime) const;

    /// The abbreviated name of a weekday that stands alone: "Wed", "Mi", "水". The weekday must be valid.
    std::string abbreviatedWeekday(std::chrono::weekday weekday) const;

    /// One letter or so for each weekday, Sunday first.
    const std::array<std::string, 7>& veryShortWeekdaySymbols() const;

    /// Names joined as in a sentence: "A, B and C". One name is itself, none are an empty text.
    std::string list(std::span<const std::string> names) const;

    /// A text in capitals, as the language has them: of "ß" two, in Turkish a dot on that of "i". What is not UTF-8
    /// becomes replacement characters.
    std::string uppercased(std::string_view text) const;

    bool operator==(const Locale& other) const { return m_identifier == other.m_identifier; }

private:
    class Formats;

    explicit Locale(std::string identifier);
    static std::shared_ptr<Formats> formats(const std::string& identifier);
    static std::vector<std::string> languageAndParents(const std::string& identifier);

    std::string m_identifier;
    std::shared_ptr<Formats> m_formats;
};

}
