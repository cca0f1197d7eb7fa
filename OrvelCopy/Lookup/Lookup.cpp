#include "OrvelCopy/Lookup/Lookup.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>

#include "OrvelCopy/Lookup/KeyList.h"
#include "OrvelCopy/Lookup/StringTables.h"

namespace orvel::Copy {

namespace {

/// Set only by a scope that lives within one call, so that it never outlasts a request.
thread_local const Language* requested = nullptr;

/// The language that the environment names. The variables are read at each look-up, since they may change while a
/// process lives; what they mean is worked out anew only when they have.
const Language& languageOfProcess()
{
    struct Known {
        std::mutex mutex;
        std::string setting;
        const Language* language = &Language::english();
    };
    static auto& known = *std::make_unique<Known>().release();

    const auto& tables = StringTables::ofCatalogue();
    auto setting = Locale::wordsSetting();
    const std::scoped_lock lock(known.mutex);
    if (setting != known.setting) {
        known.language = &tables.language(Locale::preferred(setting));
        known.setting = std::move(setting);
    }
    return *known.language;
}

std::int64_t count(std::span<const Insertion> values)
{
    for (const auto& value : values) {
        if (const auto* number = std::get_if<std::int64_t>(&value))
            return *number;
    }
    return 0;
}

}

namespace Detail {

namespace {

/// Keys are entered while programs and libraries are loaded, which may be on any thread.
constinit std::atomic<const ListedKey*> lastListed = nullptr;

}

ListedKey::ListedKey(const Key& itsKey, bool itIsConstant)
    : key(itsKey), isConstant(itIsConstant), next(lastListed.load())
{
    while (!lastListed.compare_exchange_weak(next, this)) { }
}

const ListedKey* firstListedKey()
{
    return lastListed.load();
}

const Language* requestedLanguage()
{
    return requested;
}

std::string_view constantText(const Key& key, const Language& language)
{
    return language.text(key, 0).value_or(key.text);
}

std::string_view constantText(const Key& key)
{
    return constantText(key, languageOfProcess());
}

std::string_view constantText(const Key& key, const Insertion& value, const Language& language)
{
    struct Kept {
        std::mutex mutex;
        std::map<std::pair<const Key*, const Language*>, std::string> texts;
    };
    static auto& kept = *std::make_unique<Kept>().release();

    const std::scoped_lock lock(kept.mutex);
    const auto [text, isNew] = kept.texts.try_emplace({ &key, &language });
    if (isNew)
        text->second = composedText(key, { &value, 1 }, language);
    return text->second;
}

std::string_view constantText(const Key& key, const Insertion& value)
{
    return constantText(key, value, languageOfProcess());
}

std::string composedText(const Key& key, std::span<const Insertion> values)
{
    return composedText(key, values, requested ? *requested : languageOfProcess());
}

std::string composedText(const Key& key, std::span<const Insertion> values, const Language& language)
{
    const auto translated = language.text(key, count(values));
    if (values.empty())
        return std::string(translated.value_or(key.text));
    const auto isolation = language.isRightToLeft() ? Isolation::firstStrongIsolates : Isolation::none;
    auto text = translated ? withInsertions(*translated, values, isolation) : std::nullopt;
    return text ? *std::move(text) : withInsertions(key.text, values, Isolation::none).value_or(std::string(key.text));
}

LanguageScope::LanguageScope(const std::optional<Locale>& locale) : m_before(requested)
{
    if (locale)
        requested = &StringTables::ofCatalogue().language({ &*locale, 1 });
}

LanguageScope::~LanguageScope()
{
    requested = m_before;
}

}

bool isRightToLeft()
{
    const auto* named = Detail::requestedLanguage();
    return (named ? *named : languageOfProcess()).isRightToLeft();
}

}
