#pragma once

#include <array>
#include <concepts>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "OrvelCopy/Lookup/Insertion.h"
#include "OrvelCopy/Lookup/Key.h"
#include "OrvelPlatform/Base/Locale.h"

/// Looking up the texts of the catalogue. The members of its namespaces are made of this; who asks for a text needs
/// none of it, except `inLanguage` to have the texts of a request in another language than the process's own.
namespace orvel::Copy {

class Language;

namespace Detail {

/// The key that stands at one place of the code, entered into the list of all before the program begins.
struct ListedKey {
    ListedKey(const Key& itsKey, bool itIsConstant);
    Key key;
    bool isConstant;
    const ListedKey* next;
};

enum class Role { constant, composed };

template <typename Written, Role role>
inline const ListedKey listed { Written {}(), role == Role::constant };

/// The language that the request on this thread names, if one does.
const Language* requestedLanguage();

/// What `key` says in a language, or in the process's own.
std::string_view constantText(const Key& key, const Language& language);
std::string_view constantText(const Key& key);

/// The same of a key with a value in it that never changes. Made once for each language and place where a key is
/// written, which the key's address tells apart, and kept.
std::string_view constantText(const Key& key, const Insertion& value, const Language& language);
std::string_view constantText(const Key& key, const Insertion& value);

/// The key's text in a language with the values put in; in English where the language has none that takes them.
std::string composedText(const Key& key, std::span<const Insertion> values, const Language& language);
std::string composedText(const Key& key, std::span<const Insertion> values);

template <WholeNumber Value>
constexpr Insertion insertion(Value value)
{
    return static_cast<std::int64_t>(value);
}

template <InsertedText Value>
constexpr Insertion insertion(const Value& value)
{
    return std::string_view(value);
}

/// Has the texts on this thread in one language until it ends.
class LanguageScope {
public:
    explicit LanguageScope(const std::optional<Locale>& locale);
    ~LanguageScope();
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;

private:
    const Language* m_before;
};

/// Work that is only begun when it returns, such as a coroutine.
template <typename Result>
concept Unfinished = requires(Result result)
{
    result.await_ready();
}
|| requires(Result result)
{
    result.operator co_await();
}
|| requires(Result result)
{
    operator co_await(result);
};

}

/// A text constant: looked up when it is first read, in the process's language, and kept from then on. In a request
/// that names a language it is that language's, and what is kept stays as it was.
template <typename Written>
std::string_view constant(Written)
{
    static_assert(isSound<>(Written {}()));
    const auto& key = Detail::listed<Written, Detail::Role::constant>.key;
    if (const auto* requested = Detail::requestedLanguage())
        return Detail::constantText(key, *requested);
    static const auto kept = Detail::constantText(key);
    return kept;
}

/// A text constant with a value in it that is the same for every call, such as the product's address on the web.
template <typename Written, Insertable Value>
std::string_view constant(Written, const Value& value)
{
    static_assert(isSound<Value>(Written {}()));
    const auto& key = Detail::listed<Written, Detail::Role::constant>.key;
    if (const auto* requested = Detail::requestedLanguage())
        return Detail::constantText(key, Detail::insertion(value), *requested);
    static const auto kept = Detail::constantText(key, Detail::insertion(value));
    return kept;
}

/// A text composed with `values`, looked up on each call. A key is checked against the values by the compiler.
template <typename Written, Insertable... Values>
std::string localized(Written, const Values&... values)
{
    static_assert(isSound<Values...>(Written {}()));
    const auto& key = Detail::listed<Written, Detail::Role::composed>.key;
    return Detail::composedText(key, std::array<Insertion, sizeof...(Values)> { Detail::insertion(values)... });
}

/// The same in one language, which may be of other tables than the catalogue's.
template <typename Written, Insertable... Values>
std::string localized(const Language& language, Written, const Values&... values)
{
    static_assert(isSound<Values...>(Written {}()));
    constexpr auto role = sizeof...(Values) == 0 ? Detail::Role::constant : Detail::Role::composed;
    const auto& key = Detail::listed<Written, role>.key;
    return Detail::composedText(
        key, std::array<Insertion, sizeof...(Values)> { Detail::insertion(values)... }, language);
}

/// Whether the words of this thread's request, or else the process's own, are written from right to left.
bool isRightToLeft();

/// Does `work` with every text that it asks for, constants too, in the language of `locale`; absent, it changes
/// nothing. Other threads and what the process keeps of its own language are not touched.
///
/// The language is not an argument of every text because the catalogue's members have the names and arguments that the
/// product gives them. It belongs to the thread for the length of this call, so that nobody can forget to put it back;
/// work that goes on after the call, as a coroutine does, would have lost it and does not compile.
template <std::invocable Work>
decltype(auto) inLanguage(const std::optional<Locale>& locale, Work&& work)
{
    static_assert(!Detail::Unfinished<std::invoke_result_t<Work>>, "the language would end before the work does");
    const Detail::LanguageScope scope(locale);
    return std::invoke(std::forward<Work>(work));
}

}
