#include "Benchmarks/Contestants.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "Benchmarks/NlohmannDecoding.h"
#include "Benchmarks/SampleSnapshot.h"
#include "OrvelShared/WidgetMoments.h"
#include "OrvelWidgets/OrvelProvider.h"

namespace orvelbench {

namespace {

using namespace orvel;

Calendar sampleCalendar()
{
    const auto zone = TimeZone::named(sampleZone);
    if (!zone)
        throw std::runtime_error("the zone database has no " + std::string(sampleZone));
    return Calendar(*zone);
}

std::string bytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return { std::istreambuf_iterator<char>(stream), {} };
}

/// `text` with the first `what` replaced.
std::string damaged(std::string text, std::string_view what, std::string_view by)
{
    const auto found = text.find(what);
    if (found == std::string::npos)
        throw std::logic_error("the sample has no " + std::string(what));
    return text.replace(found, what.size(), by);
}

bool bothReject(const std::string& json)
{
    return !decodeJson<WidgetSnapshot>(json) && !decodeWithNlohmann(json);
}

}

Contestants::Contestants(std::filesystem::path file)
    : m_file(std::move(file))
    , m_snapshot(sampleSnapshot())
    , m_calendar(sampleCalendar())
    , m_peerCalendar(sampleZone)
    , m_locale(Locale::named("en-GB").value())
{
    if (const auto written = SharedFile<WidgetSnapshot>(m_file).write(m_snapshot); !written)
        throw std::runtime_error(written.error().text());
    m_json = bytes(m_file);
    m_entries = entries();
}

std::vector<OrvelEntry> Contestants::entries() const
{
    const auto dates =
        m_snapshot.timelineDates(sampleNow(), m_calendar, OrvelProvider::countdownSpan, OrvelProvider::limit);
    std::vector<OrvelEntry> entries;
    entries.reserve(dates.size());
    WidgetMoments moments(m_snapshot, m_calendar);
    for (const auto date : dates)
        entries.push_back({ .date = date, .moment = moments.moment(date) });
    return entries;
}

std::vector<OrvelEntry> Contestants::entriesOfPeer()
{
    return entriesWithIcu(m_snapshot, sampleNow(), m_peerCalendar, OrvelProvider::countdownSpan, OrvelProvider::limit);
}

std::vector<OrvelEntry> Contestants::entriesFromFile() const
{
    const OrvelProvider provider({ .now = sampleNow,
        .calendar = [&] { return m_calendar; },
        .snapshot = [&] { return SharedFile<WidgetSnapshot>(m_file).read(); } });
    return provider.getTimeline({ .isPreview = false }).entries;
}

std::vector<OrvelEntry> Contestants::entriesFromFileOfPeer()
{
    const auto snapshot = decodeWithNlohmann(bytes(m_file));
    if (!snapshot)
        return {};
    return entriesWithIcu(*snapshot, sampleNow(), m_peerCalendar, OrvelProvider::countdownSpan, OrvelProvider::limit);
}

std::vector<WidgetContent> Contestants::contents() const
{
    std::vector<WidgetContent> contents;
    contents.reserve(m_entries.size());
    for (const auto& entry : m_entries)
        contents.push_back(WidgetContent::status(entry.moment, m_locale, m_calendar));
    return contents;
}

std::vector<LocalWords> Contestants::wordsOfPeer() const
{
    std::vector<LocalWords> words;
    words.reserve(m_entries.size());
    for (const auto& entry : m_entries)
        words.push_back(wordsWithIcu(entry, m_calendar));
    return words;
}

std::optional<std::string> Contestants::disagreement()
{
    if (decodeJson<WidgetSnapshot>(m_json) != m_snapshot)
        return "our decoding does not give the sample back";
    if (decodeWithNlohmann(m_json) != m_snapshot)
        return "nlohmann-json's decoding does not give the sample back";
    if (entries() != entriesOfPeer())
        return "the ICU calendar's entries differ from ours";
    if (entriesFromFile() != entries() || entriesFromFileOfPeer() != entries())
        return "the entries from the file differ";
    if (!std::ranges::equal(wordsOfPeer(), contents(), standIn))
        return "ICU's words do not stand in ours";
    const std::string damages[] = {
        damaged(m_json, R"(Z","level")", R"(.5Z","level")"),
        damaged(m_json, R"("firm")", R"("Firm")"),
        damaged(m_json, R"({"block":)", R"({"noBlocks":{},"block":)"),
        damaged(m_json, R"({"block":)", R"({"later":)"),
        damaged(m_json, R"("listNames")", R"("listnames")"),
    };
    for (const auto& json : damages) {
        if (!bothReject(json))
            return "damage is not rejected by both";
    }
    return std::nullopt;
}

}
