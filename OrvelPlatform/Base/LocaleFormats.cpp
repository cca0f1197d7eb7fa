#include "OrvelPlatform/Base/Locale.h"

#include <algorithm>
#include <mutex>
#include <tuple>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/listformatter.h>
#include <unicode/smpdtfmt.h>

#include "OrvelPlatform/Base/Precondition.h"

namespace orvel {

namespace {

using std::chrono::milliseconds;

std::string text(const icu::UnicodeString& characters)
{
    std::string bytes;
    characters.toUTF8String(bytes);
    return bytes;
}

/// A wall time as its reading in GMT, the zone that our formatters stand in. ICU's own zones are older than the
/// system's, so that they never decide what a clock shows.
UDate inGMT(WallTime wallTime)
{
    return static_cast<UDate>(std::chrono::floor<milliseconds>(wallTime.time_since_epoch()).count());
}

/// What ICU makes for a locale. Extensions can ask for what it does not have: then the locale without them counts,
/// then the one that all locales come from.
template <typename Make>
auto madeFor(const std::string& identifier, Make make)
{
    auto status = U_ZERO_ERROR;
    auto locale = icu::Locale::forLanguageTag(identifier, status);
    for (const auto& candidate : { locale, icu::Locale(locale.getBaseName()), icu::Locale::getRoot() }) {
        status = U_ZERO_ERROR;
        auto made = make(candidate, status);
        if (U_SUCCESS(status) && made)
            return made;
    }
    fatalError("the formats of a locale cannot be made: is ICU's data there?");
}

using Formatter = std::unique_ptr<icu::SimpleDateFormat>;

/// The formatters that come of a pattern generator know what a locale shows best, but nothing is slower to make.
Formatter bestFormatter(const icu::Locale& locale, const char16_t* skeleton, UErrorCode& status)
{
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_FAILURE(status))
        return nullptr;
    return std::make_unique<icu::SimpleDateFormat>(patterns->getBestPattern(skeleton, status), locale, status);
}

/// The short time that is written down for a locale. But for a few locales, which leave zeros away or name the part of
/// the day there, it is their best; of a locale that only resembles a known one it says nothing: its region or an
/// extension may want another clock.
Formatter writtenClock(const icu::Locale& locale)
{
    std::unique_ptr<icu::DateFormat> made(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, locale));
    auto* const clock = dynamic_cast<icu::SimpleDateFormat*>(made.get());
    auto status = U_ZERO_ERROR;
    icu::UnicodeString pattern;
    if (!clock || clock->getLocale(ULOC_VALID_LOCALE, status) != locale || U_FAILURE(status)
        || clock->toPattern(pattern).indexOf(u"mm", 2, 0) < 0 || pattern.indexOf(u'B') >= 0)
        return nullptr;
    std::ignore = made.release();
    return Formatter(clock);
}

std::string formatted(const icu::SimpleDateFormat& format, WallTime wallTime)
{
    icu::UnicodeString characters;
    return text(format.format(inGMT(wallTime), characters));
}

using Weekdays = std::array<std::string, 7>;

Formatter clock(const icu::Locale& locale, UErrorCode& status)
{
    auto made = writtenClock(locale);
    if (!made)
        made = bestFormatter(locale, u"jmm", status);
    if (made)
        made->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return made;
}

std::unique_ptr<Weekdays> abbreviatedWeekdays(const icu::Locale& locale, UErrorCode& status)
{
    const auto weekday = bestFormatter(locale, u"E", status);
    if (U_FAILURE(status))
        return nullptr;
    weekday->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    auto made = std::make_unique<Weekdays>();
    constexpr std::chrono::local_days aSunday { std::chrono::year { 2023 } / 1 / 1 };
    for (auto day = aSunday; auto& name : *made)
        name = formatted(*weekday, day++);
    return made;
}

std::unique_ptr<Weekdays> veryShortWeekdays(const icu::Locale& locale, UErrorCode& status)
{
    const icu::DateFormatSymbols symbols(locale, status);
    std::int32_t count = 0;
    const auto* names = symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::NARROW);
    auto made = std::make_unique<Weekdays>();
    if (U_FAILURE(status) || static_cast<std::size_t>(count) <= made->size())
        return nullptr;
    for (std::size_t day = 0; day < made->size(); ++day)
        (*made)[day] = text(names[day + 1]); // ICU counts Sunday as 1
    return made;
}

std::unique_ptr<icu::ListFormatter> listFormatter(const icu::Locale& locale, UErrorCode& status)
{
    return std::unique_ptr<icu::ListFormatter>(
        icu::ListFormatter::createInstance(locale, ULISTFMT_TYPE_AND, ULISTFMT_WIDTH_WIDE, status));
}

}

/// What the formats of one locale need, and what its name means, each made when first asked for. ICU does not promise
/// that a formatter may be used from two threads at once, so that one lock covers making and using.
class Locale::Formats {
public:
    explicit Formats(std::string identifier) : m_identifier(std::move(identifier)) { }

    std::string time(WallTime wallTime)
    {
        const std::scoped_lock lock(m_mutex);
        return formatted(kept(m_clock, clock), wallTime);
    }

    std::string abbreviatedWeekday(unsigned sundayIsZero)
    {
        const std::scoped_lock lock(m_mutex);
        return kept(m_abbreviatedWeekdays, abbreviatedWeekdays)[sundayIsZero];
    }

    /// Never changed again once it is made.
    const Weekdays& veryShortWeekdaySymbols()
    {
        const std::scoped_lock lock(m_mutex);
        return kept(m_veryShortWeekdays, veryShortWeekdays);
    }

    /// Never changed again once they are made, and never empty then.
    const std::vector<std::string>& languageAndParents()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_languageAndParents.empty())
            m_languageAndParents = Locale::languageAndParents(m_identifier);
        return m_languageAndParents;
    }

    std::string list(const std::vector<icu::UnicodeString>& names)
    {
        const std::scoped_lock lock(m_mutex);
        icu::UnicodeString characters;
        auto status = U_ZERO_ERROR;
        kept(m_list, listFormatter).format(names.data(), static_cast<std::int32_t>(names.size()), characters, status);
        return text(characters);
    }

private:
    template <typename Kept, typename Make>
    const Kept& kept(std::unique_ptr<Kept>& slot, Make make)
    {
        if (!slot)
            slot = madeFor(m_identifier, make);
        return *slot;
    }

    std::string m_identifier;
    std::mutex m_mutex;
    Formatter m_clock;
    std::unique_ptr<Weekdays> m_abbreviatedWeekdays;
    std::unique_ptr<Weekdays> m_veryShortWeekdays;
    std::unique_ptr<icu::ListFormatter> m_list;
    std::vector<std::string> m_languageAndParents;
};

/// Requests name locales again and again, so that the last few stay. The number is bounded, because anyone on the
/// bus may name new ones.
std::shared_ptr<Locale::Formats> Locale::formats(const std::string& identifier)
{
    constexpr std::size_t mostKept = 16;
    struct Store {
        std::mutex mutex;
        std::vector<std::pair<std::string, std::shared_ptr<Formats>>> lastUsedFirst;
    };
    // Never destroyed: threads may still ask while a process ends.
    static auto& store = *std::make_unique<Store>().release();

    const std::scoped_lock lock(store.mutex);
    auto& entries = store.lastUsedFirst;
    auto found = std::ranges::find(
        entries, identifier, [](const auto& entry) -> auto& { return entry.first; });
    if (found == entries.end()) {
        if (entries.size() == mostKept)
            entries.pop_back();
        entries.emplace_back(identifier, std::make_shared<Formats>(identifier));
        found = entries.end() - 1;
    }
    std::rotate(entries.begin(), found, found + 1);
    return entries.front().second;
}

const std::vector<std::string>& Locale::languageAndParents() const
{
    return m_formats->languageAndParents();
}

std::string Locale::time(WallTime wallTime) const
{
    return m_formats->time(wallTime);
}

std::string Locale::abbreviatedWeekday(std::chrono::weekday weekday) const
{
    precondition(weekday.ok(), "a weekday is one of seven");
    return m_formats->abbreviatedWeekday(weekday.c_encoding());
}

const std::array<std::string, 7>& Locale::veryShortWeekdaySymbols() const
{
    return m_formats->veryShortWeekdaySymbols();
}

std::string Locale::list(std::span<const std::string> names) const
{
    if (names.empty())
        return {};
    if (names.size() == 1)
        return names.front();
    std::vector<icu::UnicodeString> characters;
    characters.reserve(names.size());
    for (const auto& name : names)
        characters.push_back(icu::UnicodeString::fromUTF8(name));
    return m_formats->list(characters);
}

}
