#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <source_location>
#include <string_view>

#include "OrvelCopy/Lookup/TextPattern.h"

namespace orvel::Copy {

/// An English text as it stands in the code, which is its own key in the string tables.
struct Key {
    std::string_view text;
    std::string_view place; // the function it stands in, as the compiler spells it
    bool isCounted; // has exactly one %lld, so that a table may inflect it
    std::source_location where {}; // for a listing in the order of the sources
};

/// KEY("…") and COUNTED("…") write a key where it is used: a callable of a new type at each place, which the compiler
/// checks against the values that are inserted. COUNTED is for texts with exactly one whole number: the template gives
/// them plural forms. Elsewhere a text that is counted in code has two keys, KEY("1 app") and COUNTED("%lld apps").
#define KEY(text) ORVEL_KEY(text, false)
#define COUNTED(text) ORVEL_KEY(text, true)
#define ORVEL_KEY(text, isCounted)                                                                                     \
    [] { return ::orvel::Copy::Key { text, __PRETTY_FUNCTION__, isCounted, ::std::source_location::current() }; }

template <typename T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && sizeof(T) <= sizeof(std::int64_t);

template <typename T>
concept InsertedText = std::convertible_to<const T&, std::string_view>;

template <typename T>
concept Insertable = WholeNumber<T> || InsertedText<T>;

/// What a key does wrong, as the compiler's message. None of these exists: to call one ends the check.
void anEmptyKeyIsTheHeaderOfATable();
void aPercentSignMeansNothingHere();
void aPercentSignIsDoubledOnlyBesideInsertions();
void theInsertionsOfAKeyStandInOrder();
void thePlaceholdersAndTheArgumentsDiffer();
void aKeyIsCountedWhenItHasExactlyOneWholeNumber();

template <Insertable Value>
consteval TextPiece::Kind kindOf()
{
    return WholeNumber<Value> ? TextPiece::Kind::integer : TextPiece::Kind::text;
}

/// The check of a key that stands for itself: nothing in it is read, so that a percent sign is only that.
consteval bool isSoundAlone(const Key& key)
{
    TextPatternReader reader(key.text);
    for (auto piece = reader.next(); piece.kind != TextPiece::Kind::end; piece = reader.next()) {
        if (piece.isInsertion())
            thePlaceholdersAndTheArgumentsDiffer();
    }
    if (key.text.contains("%%"))
        aPercentSignIsDoubledOnlyBesideInsertions();
    if (key.isCounted)
        aKeyIsCountedWhenItHasExactlyOneWholeNumber();
    return true;
}

template <Insertable... Values>
consteval bool isSoundWithInsertions(const Key& key)
{
    constexpr std::array given { kindOf<Values>()... };
    std::size_t insertions = 0;
    std::size_t wholeNumbers = 0;
    TextPatternReader reader(key.text);
    for (auto piece = reader.next(); piece.kind != TextPiece::Kind::end; piece = reader.next()) {
        if (piece.kind == TextPiece::Kind::fault)
            aPercentSignMeansNothingHere();
        if (!piece.isInsertion())
            continue;
        if (piece.hasPosition)
            theInsertionsOfAKeyStandInOrder();
        if (insertions == given.size() || given[insertions] != piece.kind)
            thePlaceholdersAndTheArgumentsDiffer();
        ++insertions;
        wholeNumbers += piece.kind == TextPiece::Kind::integer;
    }
    if (insertions != given.size())
        thePlaceholdersAndTheArgumentsDiffer();
    if (key.isCounted != (wholeNumbers == 1))
        aKeyIsCountedWhenItHasExactlyOneWholeNumber();
    return true;
}

template <Insertable... Values>
consteval bool isSound(const Key& key)
{
    if (key.text.empty())
        anEmptyKeyIsTheHeaderOfATable();
    if constexpr (sizeof...(Values) == 0)
        return isSoundAlone(key);
    else
        return isSoundWithInsertions<Values...>(key);
}

}
