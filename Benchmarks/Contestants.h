#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Benchmarks/IcuTimeline.h"
#include "Benchmarks/IcuWords.h"
#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgets/OrvelEntry.h"

namespace orvelbench {

/// One piece of work, done by our code and by its peer on the same input.
class Contestants {
public:
    /// Writes the sample to `file`. Throws where something fails.
    explicit Contestants(std::filesystem::path file);

    const orvel::Calendar& calendar() const { return m_calendar; }
    const std::string& json() const { return m_json; }

    std::vector<orvel::OrvelEntry> entries() const;
    std::vector<orvel::OrvelEntry> entriesOfPeer();
    std::vector<orvel::OrvelEntry> entriesFromFile() const;
    std::vector<orvel::OrvelEntry> entriesFromFileOfPeer();

    /// What the status widget says at each entry, in British English.
    std::vector<orvel::WidgetContent> contents() const;
    std::vector<LocalWords> wordsOfPeer() const;

    /// Why the peers' results differ from ours, on the sample and on damaged copies of it; absent when all agree.
    std::optional<std::string> disagreement();

private:
    std::filesystem::path m_file;
    orvel::WidgetSnapshot m_snapshot;
    orvel::Calendar m_calendar;
    IcuCalendar m_peerCalendar;
    std::string m_json;
    std::vector<orvel::OrvelEntry> m_entries;
    orvel::Locale m_locale;
};

}
