#include "OrvelPlatform/Base/Locale.h"

#include <algorithm>
#include <cstdlib>
#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace orvel {

namespace {

constexpr std::size_t longestName = 120;

bool isLetterOrDigit(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
        || (character >= '0' && character <= '9');
}

bool consistsOf(std::string_view text, std::string_view marks)
{
    return std::ranges::all_of(
        text, [&](char character) { return isLetterOrDigit(character) || marks.contains(character); });
}

/// The parts of language_TERRITORY.codeset@modifier; a name in the other spelling is all language.
struct NameParts {
    std::string_view language;
    std::optional<std::string_view> codeset;
    std::optional<std::string_view> modifier;

    explicit NameParts(std::string_view name) : language(name)
    {
        modifier = takeAfter('@');
        codeset = takeAfter('.');
    }

    bool isWellFormed() const
    {
        return consistsOf(language, "-_") && (!codeset || (!codeset->empty() && consistsOf(*codeset, "-_:")))
            && (!modifier || (!modifier->empty() && consistsOf(*modifier, "-_=;,")));
    }

private:
    std::optional<std::string_view> takeAfter(char mark)
    {
        const auto at = language.find(mark);
        if (at == std::string_view::npos)
            return std::nullopt;
        const auto taken = language.substr(at + 1);
        language = language.substr(0, at);
        return taken;
    }
};

/// The scripts that a modifier can name. Others ("euro") say nothing of words and times.
std::string_view script(std::string_view modifier)
{
    constexpr std::pair<std::string_view, std::string_view> scripts[] {
        { "latin", "Latn" },
        { "cyrillic", "Cyrl" },
        { "devanagari", "Deva" },
        { "arabic", "Arab" },
    };
    const auto* found = std::ranges::find(scripts, modifier, &std::pair<std::string_view, std::string_view>::first);
    return found == std::end(scripts) ? std::string_view() : found->second;
}

/// The modifier's meaning put where the other spelling has it: "sr_RS" with "latin" is "sr-Latn-RS".
std::string languageTag(const NameParts& parts)
{
    std::string tag(parts.language);
    std::ranges::replace(tag, '_', '-');
    const auto added = parts.modifier.value_or("");
    if (const auto name = script(added); !name.empty()) {
        const auto afterLanguage = std::min(tag.find('-'), tag.size());
        tag.insert(afterLanguage, name).insert(afterLanguage, 1, '-');
    } else if (added == "valencia")
        tag += "-valencia";
    return tag;
}

bool isPlainC(std::string_view name)
{
    return name.empty() || name == "C" || name == "POSIX";
}

std::optional<std::string> identifierOf(std::string_view name)
{
    const NameParts parts(name);
    if (name.empty() || name.size() > longestName || !parts.isWellFormed())
        return std::nullopt;
    if (isPlainC(parts.language))
        return parts.language.empty() ? std::nullopt : std::optional<std::string>("en");

    const auto tag = languageTag(parts);
    char id[ULOC_FULLNAME_CAPACITY];
    std::int32_t understood = 0;
    auto status = U_ZERO_ERROR;
    uloc_forLanguageTag(tag.c_str(), id, sizeof id, &understood, &status);
    if (U_FAILURE(status) || status == U_STRING_NOT_TERMINATED_WARNING
        || static_cast<std::size_t>(understood) != tag.size())
        return std::nullopt;
    auto identifier = icu::Locale(id).toLanguageTag<std::string>(status);
    if (U_FAILURE(status))
        return std::nullopt;
    return identifier;
}

std::string firstThatIsSet(std::initializer_list<const char*> variables)
{
    for (const auto* variable : variables) {
        const auto* value = std::getenv(variable);
        if (value && *value)
            return value;
    }
    return {};
}

icu::Locale icuLocale(const std::string& identifier)
{
    auto status = U_ZERO_ERROR;
    return icu::Locale::forLanguageTag(identifier, status);
}

/// Language, script and region, those that are not empty, with hyphens between.
std::string joined(std::initializer_list<std::string_view> subtags)
{
    std::string text;
    for (const auto subtag : subtags) {
        if (!subtag.empty())
            text.append(text.empty() ? "" : "-").append(subtag);
    }
    return text;
}

icu::Locale withLikelySubtags(icu::Locale locale)
{
    auto status = U_ZERO_ERROR;
    locale.addLikelySubtags(status);
    return locale;
}

}

Locale::Locale(std::string identifier) : m_identifier(std::move(identifier)), m_formats(formats(m_identifier)) { }

std::optional<Locale> Locale::named(std::string_view name)
{
    auto identifier = identifierOf(name);
    if (!identifier)
        return std::nullopt;
    return Locale(*std::move(identifier));
}

Locale Locale::english()
{
    return Locale("en");
}

Locale Locale::current()
{
    return named(firstThatIsSet({ "LC_ALL", "LC_TIME", "LANG" })).value_or(english());
}

std::string Locale::wordsSetting()
{
    auto setting = firstThatIsSet({ "LC_ALL", "LC_MESSAGES", "LANG" });
    if (isPlainC(setting))
        return {};
    auto list = firstThatIsSet({ "LANGUAGE" });
    return list.empty() ? setting : std::move(list);
}

std::vector<Locale> Locale::preferred(std::string_view wordsSetting)
{
    std::vector<Locale> locales;
    for (std::size_t start = 0; start < wordsSetting.size();) {
        const auto end = std::min(wordsSetting.find(':', start), wordsSetting.size());
        if (auto locale = named(wordsSetting.substr(start, end - start)))
            locales.push_back(*std::move(locale));
        start = end + 1;
    }
    return locales;
}

bool Locale::isRightToLeft() const
{
    return icuLocale(m_identifier).isRightToLeft();
}

std::string Locale::uppercased(std::string_view text) const
{
    std::string capitals;
    const auto length = static_cast<std::int32_t>(text.size());
    icu::UnicodeString::fromUTF8({ text.data(), length }).toUpper(icuLocale(m_identifier)).toUTF8String(capitals);
    return capitals;
}

std::vector<std::string> Locale::languageAndParents(const std::string& identifier)
{
    const auto own = icuLocale(identifier);
    const auto full = withLikelySubtags(own);
    const std::string_view language = own.getLanguage();
    const std::string_view script = full.getScript();
    std::vector<std::string> names;
    const auto add = [&](std::string name) {
        if (!name.empty() && std::ranges::find(names, name) == names.end())
            names.push_back(std::move(name));
    };
    add(identifier.substr(0, std::min(identifier.find("-u-"), identifier.size())));
    add(joined({ language, own.getScript(), own.getCountry() }));
    add(joined({ language, script, full.getCountry() }));
    add(joined({ language, script }));
    if (withLikelySubtags(icu::Locale(own.getLanguage())).getScript() == script)
        add(std::string(language));
    return names;
}

}
