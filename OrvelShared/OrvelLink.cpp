#include "OrvelShared/OrvelLink.h"

#include <charconv>
#include <fmt/format.h>

#include "OrvelPlatform/Base/Bundle.h"
#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

// Each host and item name serves both directions.
constexpr std::string_view breatheHost = "breathe";
constexpr std::string_view focusHost = "focus";
constexpr std::string_view todayHost = "today";
constexpr std::string_view settingsHost = "settings";
constexpr std::string_view mainHost = "main";
constexpr std::string_view styleItem = "style";
constexpr std::string_view minutesItem = "minutes";

/// The value of the first item of that name; an item without a value has an empty one.
std::optional<std::string> firstValue(const std::vector<URLQueryItem>& items, std::string_view name)
{
    for (const auto& item : items) {
        if (item.name == name)
            return item.value.value_or("");
    }
    return std::nullopt;
}

/// A sign at most and then digits, within 64 bits.
std::optional<std::int64_t> decimalInteger(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    std::int64_t value = 0;
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc {} || stop != end)
        return std::nullopt;
    return value;
}

OrvelLink breatheLink(const URLComponents& components)
{
    const auto items = components.queryItems();
    return OrvelLink::Breathe {
        .style = firstValue(items, styleItem),
        .minutes = firstValue(items, minutesItem).and_then(decimalInteger),
    };
}

std::string breatheQuery(const OrvelLink::Breathe& breathe)
{
    std::vector<URLQueryItem> items;
    if (breathe.style)
        items.push_back({ .name = std::string(styleItem), .value = breathe.style });
    if (breathe.minutes)
        items.push_back({ .name = std::string(minutesItem), .value = fmt::to_string(*breathe.minutes) });
    return items.empty() ? "" : "?" + urlQuery(items);
}

}

OrvelLink OrvelLink::fromURL(const URL& url)
{
    const auto components = URLComponents::split(url.text);
    const auto host = components ? components->host : std::nullopt;
    if (host == breatheHost)
        return breatheLink(*components);
    if (host == focusHost)
        return Focus {};
    if (host == todayHost)
        return Today {};
    if (host == settingsHost)
        return Settings {};
    return Main {};
}

std::string OrvelLink::scheme()
{
    return Bundle::main().information("OrvelURLScheme").value_or("orvel");
}

URL OrvelLink::url() const
{
    return url(scheme());
}

URL OrvelLink::url(std::string_view scheme) const
{
    if (!isValidURLScheme(scheme))
        return { "file:///" };
    const auto* breathe = std::get_if<Breathe>(this);
    return { fmt::format("{}://{}{}", scheme, name(), breathe ? breatheQuery(*breathe) : "") };
}

std::string_view OrvelLink::name() const
{
    return std::visit(Match {
                          [](const Breathe&) { return breatheHost; },
                          [](Focus) { return focusHost; },
                          [](Today) { return todayHost; },
                          [](Settings) { return settingsHost; },
                          [](Main) { return mainHost; },
                      },
        *this);
}

}
