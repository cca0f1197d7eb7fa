#include "OrvelWidgets/OpaqueMoment.h"

#include "OrvelPlatform/Base/Checksum.h"
#include "OrvelPlatform/Base/JsonDecoding.h"
#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Base/UTF8.h"
#include "OrvelShared/WidgetMomentForm.h"

namespace orvel {

namespace {

using State = WidgetSnapshot::State;

/// Raised with every change to the moment's JSON that older readers would misunderstand.
constexpr char version = 1;

constexpr std::size_t checksumSize = 4;

std::string checksumBytes(std::string_view bytes)
{
    const auto checksum = crc32(bytes);
    std::string text(checksumSize, '\0');
    for (std::size_t index = 0; index < checksumSize; ++index)
        text[index] = static_cast<char>(checksum >> (24 - 8 * index) & 0xFF);
    return text;
}

void cut(std::string& text, std::size_t mostBytes = longestMomentText)
{
    text.resize(cutAtCharacter(text, mostBytes).size());
}

void cut(std::vector<std::string>& texts)
{
    std::size_t size = 0;
    std::size_t kept = 0;
    for (; kept < texts.size(); ++kept) {
        cut(texts[kept]);
        size += texts[kept].size() + 1; // empty texts are not for nothing
        if (size > longestMomentList)
            break;
    }
    texts.resize(kept);
}

void cut(std::optional<WidgetSnapshot::Look>& look)
{
    if (look) {
        cut(look->color);
        cut(look->symbol);
    }
}

void cut(WidgetSnapshot::Running& running)
{
    cut(running.name);
    cut(running.names);
    cut(running.look);
    cut(running.listNames);
    if (running.unlock)
        cut(running.unlock->name);
}

void cut(WidgetSnapshot::Upcoming& upcoming)
{
    cut(upcoming.name);
    cut(upcoming.look);
}

}

WidgetMoment bounded(WidgetMoment moment)
{
    cut(moment.breathe.style, longestMomentStyle);
    std::visit(Match {
                   [](State::Block& block) { cut(block.running); },
                   [](State::Focus& focus) { cut(focus.running); },
                   [](State::FocusFilter& filter) { cut(filter.running); },
                   [](State::Next& next) { cut(next.upcoming); },
                   [](State::NothingScheduled) {},
                   [](State::NoBlocks) {},
               },
        static_cast<State::Any&>(moment.state));
    return moment;
}

std::expected<std::string, Fault> opaqueMoment(const WidgetMoment& moment)
{
    auto timeless = bounded(moment);
    timeless.date = {};
    const auto json = encodeJson(timeless);
    if (!json)
        return std::unexpected(json.error());
    return std::string(1, version) + checksumBytes(*json) + *json;
}

std::optional<WidgetMoment> momentFromOpaque(std::string_view bytes, Date date)
{
    if (bytes.size() < 1 + checksumSize || bytes.front() != version)
        return std::nullopt;
    const auto json = bytes.substr(1 + checksumSize);
    if (bytes.substr(1, checksumSize) != checksumBytes(json))
        return std::nullopt;
    auto moment = decodeJson<WidgetMoment>(json);
    if (!moment)
        return std::nullopt;
    moment->date = date;
    return *std::move(moment);
}

}
