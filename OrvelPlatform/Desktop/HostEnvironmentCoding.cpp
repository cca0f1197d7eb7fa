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

/// The values of the keys that are known, found in one go: every request has an environment. Of a key that is repeated
/// the first counts.
class KnownValues {
public:
    explicit KnownValues(_GVariant* dictionary)
    {
        GVariantIter iterator;
        g_variant_iter_init(&iterator, dictionary);
        while (const VariantHandle entry { g_variant_iter_next_value(&iterator) }) {
            const VariantHandle key(g_variant_get_child_value(entry.get(), 0));
            const auto index = indexOf(g_variant_get_string(key.get(), nullptr));
            if (index == keys.size() || m_values.at(index))
                continue;
            const VariantHandle boxed(g_variant_get_child_value(entry.get(), 1));
            m_values.at(index).reset(g_variant_get_variant(boxed.get()));
        }
    }

    /// Null where there is none.
    _GVariant* find(std::string_view key) const { return m_values.at(indexOf(key)).get(); }

private:
    static constexpr std::array<std::string_view, 16> keys { "family", "isPreview", "renderingMode", "colorScheme",
        "contrast", "reduceMotion", "reduceTransparency", "personalAccent", "textScale", "biggerText", "locale",
        "language", "timeZone", "scale", "background", "format" };

    static std::size_t indexOf(std::string_view key)
    {
        return static_cast<std::size_t>(std::ranges::find(keys, key) - keys.begin());
    }

    std::array<VariantHandle, keys.size()> m_values;
};

/// Reads key by key and keeps the first fault.
class EnvironmentReader {
public:
    explicit EnvironmentReader(_GVariant* dictionary) : m_values(dictionary) { }

    /// `expected` says what the value has to be; it is asked only when the value is something else.
    template <typename Expected, typename Read>
    auto value(std::string_view key, Expected expected, Read read) -> decltype(read(nullptr))
    {
        auto* const found = m_values.find(key);
        if (!found)
            return std::nullopt;
        auto result = read(found);
        if (!result)
            refuse(key, expected());
        return result;
    }

    std::optional<bool> truth(std::string_view key)
    {
        return value(
            key, [] { return "a truth value"; }, &orvel::truth);
    }

    std::optional<double> number(std::string_view key, double least, double most)
    {
        const auto expected = [=] { return fmt::format("a number from {} to {}", least, most); };
        return value(key, expected, [=](_GVariant* found) {
            const auto read = orvel::number(found);
            return read && *read >= least && *read <= most ? read : std::nullopt;
        });
    }

    std::optional<int> steps(std::string_view key, int most)
    {
        const auto expected = [=] { return fmt::format("a whole number from 0 to {}", most); };
        return value(key, expected, [=](_GVariant* found) {
            const auto read = wholeNumber(found);
            return read && *read >= 0 && *read <= most ? std::optional(static_cast<int>(*read)) : std::nullopt;
        });
    }

    std::optional<std::string> choice(std::string_view key, std::span<const std::string_view> allowed)
    {
        const auto expected = [=] { return "one of " + quotedList(allowed); };
        return value(key, expected, [=](_GVariant* found) {
            auto read = text(found);
            return read && std::ranges::find(allowed, *read) != allowed.end() ? read : std::nullopt;
        });
    }

    /// A text that `make` turns into something, or not.
    template <typename Make>
    auto made(std::string_view key, std::string_view expected, Make make)
    {
        return value(
            key, [=] { return expected; },
            [&](_GVariant* found) -> decltype(make(std::string())) {
                auto read = text(found);
                return read ? make(*std::move(read)) : std::nullopt;
            });
    }

    const std::optional<RequestFault>& fault() const { return m_fault; }

private:
    void refuse(std::string_view key, std::string_view expected)
    {
        if (!m_fault)
            m_fault = requestFault(RequestFault::Kind::badArgument, fmt::format("\"{}\" has to be {}.", key, expected));
    }

    KnownValues m_values;
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
        .format = reader.choice("format", rawValues<PictureFormat>).and_then(&fromRawValue<PictureFormat>),
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
