#include "OrvelCopy/Lookup/Listing.h"

#include <algorithm>
#include <source_location>
#include <tuple>

#include "OrvelCopy/Lookup/KeyList.h"
#include "OrvelCopy/Lookup/StringTables.h"

namespace orvel::Copy {

namespace {

void eraseEach(std::string& text, std::string_view piece)
{
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece))
        text.erase(at, piece.size());
}

/// The function in which a key stands, taken from what compilers write: "orvel::Copy::Widgets::now()::<lambda()>", or
/// "auto orvel::Copy::Widgets::now()::(anonymous class)::operator()() const".
std::string qualifiedMember(std::string_view place)
{
    std::string name(place);
    for (const std::string_view noise : { "{anonymous}::", "(anonymous namespace)::", "auto " })
        eraseEach(name, noise);
    name.resize(std::min(name.find('('), name.size()));
    for (const std::string_view outer : { "orvel::", "Copy::" }) {
        if (name.starts_with(outer))
            name.erase(0, outer.size());
    }
    return name;
}

ListedText listedText(const Detail::ListedKey& listed)
{
    const auto name = qualifiedMember(listed.key.place);
    const auto colons = name.rfind("::");
    const auto isNested = colons != std::string::npos;
    return { .namespace_ = isNested ? name.substr(0, colons) : "Copy",
        .member = isNested ? name.substr(colons + 2) : name,
        .key = std::string(listed.key.text),
        .isConstant = listed.isConstant,
        .isCounted = listed.key.isCounted };
}

/// The areas of the product, as it names them; what is not among them comes last.
std::size_t rank(std::string_view name)
{
    constexpr std::string_view names[] = { "Copy", "Blocks", "Lists", "ReadyMade", "Blocking", "Guard", "Sheets",
        "BreatheWindow", "BreatheView", "Pause", "Today", "Insights", "Notifications", "Toasts", "Announce", "FirstRun",
        "Settings", "Menus", "KeyboardMap", "Popover", "Shortcuts", "TabPage", "Window", "FocusFilter", "Widgets",
        "Controls", "Format" };
    return static_cast<std::size_t>(std::ranges::find(names, name) - std::begin(names));
}

struct PlacedText {
    std::size_t rank;
    std::source_location where;
    ListedText text;

    auto order() const
    {
        return std::tuple(rank, std::string_view(text.namespace_), std::string_view(where.file_name()), where.line(),
            where.column(), std::string_view(text.key));
    }
};

}

std::vector<ListedText> listedTexts()
{
    std::vector<PlacedText> placed;
    for (const auto* listed = Detail::firstListedKey(); listed; listed = listed->next) {
        auto text = listedText(*listed);
        placed.push_back({ rank(text.namespace_), listed->key.where, std::move(text) });
    }
    std::ranges::sort(placed, {}, &PlacedText::order);
    std::vector<ListedText> texts;
    for (auto& text : placed)
        texts.push_back(std::move(text.text));
    return texts;
}

const std::filesystem::path& tableFile(const Locale& locale)
{
    return StringTables::ofCatalogue().language({ &locale, 1 }).file();
}

std::vector<std::string> translation(std::string_view key, const Locale& locale)
{
    const auto forms = StringTables::ofCatalogue().language({ &locale, 1 }).forms(key);
    return { forms.begin(), forms.end() };
}

std::vector<std::string> translatedLanguages()
{
    return StringTables::ofCatalogue().languages();
}

}
