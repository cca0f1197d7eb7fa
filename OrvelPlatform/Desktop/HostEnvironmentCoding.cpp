#include "OrvelPlatform/Desktop/HostEnvironmentCoding.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <gio/gio.h>
#include <span>

#include "OrvelPlatform/Base/PosixRule.h"
#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"

namespace orvel {

namespace {

constexpr std::array<std::string_view, 3> renderingModes { "fullColor", "vibrant", "accented" };
constexpr std::array<std::string_view, 2> colorSchemes { "light", "dark" };
constexpr std::array<std::string_view, 2> contrasts { "standard", "increased" };

/// Names of locales, languages and zones are shorter than this, in whatever spelling.
constexpr std::size_t longestName = 255;

std::string quotedList(std::span<const std::string_view> texts)
{
    return fmt::format("\"{}\"", fmt::join(texts, "\", \""));
}

std::optional<Locale> localeNamed(const std::string& name)
{
    return name.size() > longestName ? std::nullopt : Locale::named(name);
}

/// Every language of the list has to be well formed.
std::optional<std::string> languageList(std::string list)
{
    std::string_view rest = list;
    while (!rest.empty()) {
        const auto end = std::min(rest.find(':'), rest.size());
        if (!localeNamed(std::string(rest.substr(0, end))))
            return std::nullopt;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return list.size() > longestName ? std::nullopt : std::optional(std::move(list));
}

/// A zone of the database, or a rule. What is no name never reaches the file system.
std::optional<TimeZone> zoneNamed(const std::string& name)
{
    if (name.size() > longestName || name.empty())
        return std::nullopt;
    if (auto zone = TimeZone::named(name))
        return zone;
    return posixRule(name) ? std::optional(TimeZone::forSetting(name.c_str())) : std::nullopt;
}

/// Reads key by key and keeps the first fault.
class EnvironmentReader {
public:
    explicit EnvironmentReader(_GVariant* dictionary) : m_dictionary(dictionary) { }

    template <typename Read>
    auto value(const char* key, std::string_view expected, Read read) -> decltype(read(nullptr))
    {
        const auto found = lookUp(m_dictionary, key);
        if (!found)
            return std::nullopt;
        auto result = read(found.get());
        if (!result)
            refuse(key, expected);
        return result;
    }

    std::optional<bool> truth(const char* key) { return value(key, "a truth value", &orvel::truth); }

    std::optional<double> number(const char* key, double least, double most)
    {
        return value(key, fmt::format("a number from {} to {}", least, most), [=](_GVariant* found) {
            const auto read = orvel::number(found);
            return read && *read >= least && *read <= most ? read : std::nullopt;
        });
    }

    std::optional<int> steps(const char* key, int most)
    {
        return value(key, fmt::format("a whole number from 0 to {}", most), [=](_GVariant* found) {
            const auto read = wholeNumber(found);
            return read && *read >= 0 && *read <= most ? std::optional(static_cast<int>(*read)) : std::nullopt;
        });
    }

    std::optional<std::string> choice(const char* key, std::span<const std::string_view> allowed)
    {
        return value(key, "one of " + quotedList(allowed), [=](_GVariant* found) {
            auto read = text(found);
            return read && std::ranges::find(allowed, *read) != allowed.end() ? read : std::nullopt;
        });
    }

    /// A text that `make` turns into something, or not.
    template <typename Make>
    auto made(const char* key, std::string_view expected, Make make)
    {
        return value(key, expected, [&](_GVariant* found) -> decltype(make(std::string())) {
            auto read = text(found);
            return read ? make(*std::move(read)) : std::nullopt;
        });
    }

    const std::optional<RequestFault>& fault() const { return m_fault; }

private:
    void refuse(const char* key, std::string_view expected)
    {
        if (!m_fault)
            m_fault = requestFault(RequestFault::Kind::badArgument, fmt::format("\"{}\" has to be {}.", key, expected));
    }

    _GVariant* m_dictionary;
    std::optional<RequestFault> m_fault;
};

}

Answer<HostEnvironment> hostEnvironment(_GVariant* dictionary)
{
    EnvironmentReader reader(dictionary);
    HostEnvironment environment {
        .family = reader.made("family", "a text", [](std::string name) { return std::optional(boundedText(name)); }),
        .isPreview = reader.truth("isPreview"),
        .renderingMode = reader.choice("renderingMode", renderingModes),
        .colorScheme = reader.choice("colorScheme", colorSchemes),
        .contrast = reader.choice("contrast", contrasts),
        .reduceMotion = reader.truth("reduceMotion"),
        .reduceTransparency = reader.truth("reduceTransparency"),
        .personalAccent = reader.truth("personalAccent"),
        .textScale = reader.number("textScale", HostEnvironment::smallestTextScale, HostEnvironment::largestTextScale),
        .biggerText = reader.steps("biggerText", HostEnvironment::mostBiggerText),
        .locale = reader.made("locale", "the name of a locale", &localeNamed),
        .language = reader.made("language", "names of languages with colons between them", &languageList),
        .timeZone = reader.made("timeZone", "a time zone's name or rule", &zoneNamed),
        .scale = reader.number("scale", 1, HostEnvironment::largestScale),
        .background = reader.truth("background"),
        .format = reader.made("format", "one of " + quotedList(rawValues<PictureFormat>),
            [](const std::string& name) { return fromRawValue<PictureFormat>(name); }),
    };
    if (reader.fault())
        return std::unexpected(*reader.fault());
    return environment;
}

_GVariant* environmentValue(const HostEnvironment& environment)
{
    DictionaryWriter writer;
    writer.add("family", environment.family);
    writer.add("isPreview", environment.isPreview);
    writer.add("renderingMode", environment.renderingMode);
    writer.add("colorScheme", environment.colorScheme);
    writer.add("contrast", environment.contrast);
    writer.add("reduceMotion", environment.reduceMotion);
    writer.add("reduceTransparency", environment.reduceTransparency);
    writer.add("personalAccent", environment.personalAccent);
    writer.add("textScale", environment.textScale);
    writer.add("biggerText", environment.biggerText);
    if (environment.locale)
        writer.add("locale", environment.locale->identifier());
    writer.add("language", environment.language);
    if (environment.timeZone)
        writer.add("timeZone", environment.timeZone->name());
    writer.add("scale", environment.scale);
    writer.add("background", environment.background);
    if (environment.format)
        writer.add("format", rawValue(*environment.format));
    return writer.end();
}

}
