#pragma once

#include <expected>
#include <optional>
#include <string>

#include "OrvelWidgets/OrvelProvider.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/calls/SnapshotSource.h"

namespace orvelctl {

/// What `timeline`, `content` and `control` are asked with, each option optional.
struct Request {
    std::string file;
    std::optional<orvel::Date> now;
    std::optional<orvel::TimeZone> zone;
    std::optional<orvel::Locale> locale;
    bool isSampleAllowed = false;
    bool isJson = false;

    /// Adds the options; the instant's is `--now` or `--at`.
    void addOptions(CLI::App* command, std::string_view instant);
};

/// A request with everything that it left open filled in.
struct Situation {
    FoundSnapshot found;
    orvel::Date now;
    orvel::Calendar calendar;
    orvel::Locale locale; // of formats
};

/// Finds the snapshot, and calls `show` with all words in the request's language.
Exit withSituation(const Request& request, const std::function<Exit(const Situation&)>& show);

}
