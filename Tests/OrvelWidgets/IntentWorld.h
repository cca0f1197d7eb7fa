#pragma once

#include <fmt/format.h>
#include <string>
#include <vector>

#include "OrvelShared/IntentHosting.h"
#include "OrvelWidgets/IntentSurroundings.h"
#include "Tests/Support/HandMovedClock.h"

/// All that intents can touch, written down in a journal as it happens.
struct IntentWorld {
    using Journal = std::vector<std::string>;

    struct Host : orvel::OrvelIntentHost {
        Host(Journal& itsJournal, std::string itsName) : journal(itsJournal), name(std::move(itsName)) { }
        void openBreathe(std::optional<std::string> style, std::optional<std::int64_t> minutes) override
        {
            const auto length = minutes ? fmt::to_string(*minutes) : "absent";
            journal.push_back(name + ": breathe " + style.value_or("absent") + " " + length);
        }
        void startFocus() override { journal.push_back(name + ": start"); }
        std::optional<std::string> runningFocusName() override { return running; }
        void endFocus() override { journal.push_back(name + ": end"); }

        Journal& journal;
        std::string name;
        std::optional<std::string> running;
    };

    struct RecordingWorkspace : orvel::Workspace {
        explicit RecordingWorkspace(Journal& itsJournal) : journal(itsJournal) { }
        void open(const orvel::URL& url, std::optional<std::string> activationToken) override
        {
            journal.push_back("open " + url.text + (activationToken ? " with " + *activationToken : ""));
        }
        Journal& journal;
    };

    /// Answers after a second.
    struct SlowForeground : orvel::Foreground {
        SlowForeground(Journal& itsJournal, orvel::Clock& itsClock) : journal(itsJournal), clock(itsClock) { }
        orvel::Task<std::expected<void, orvel::Fault>> request() override
        {
            journal.push_back("forward");
            auto asked = clock.sleep(std::chrono::seconds { 1 });
            co_await asked;
            if (isDeclined)
                co_return std::unexpected(orvel::Fault { .where = "", .why = "declined" });
            co_return {};
        }
        Journal& journal;
        orvel::Clock& clock;
        bool isDeclined = false;
    };

    Journal journal;
    HandMovedClock clock { orvel::Date {} };
    RecordingWorkspace workspace { journal };
    SlowForeground foreground { journal, clock };
    std::optional<std::string> activationToken;

    IntentWorld() = default;
    IntentWorld(const IntentWorld&) = delete;
    IntentWorld& operator=(const IntentWorld&) = delete;
    ~IntentWorld() { orvel::IntentHosting::host = nullptr; }

    std::shared_ptr<Host> host(std::string name) { return std::make_shared<Host>(journal, std::move(name)); }

    /// Runs an intent; its answer may still be to come.
    template <typename Intent>
    orvel::StartedTask begin(const Intent& intent)
    {
        return start(intent.perform({ .clock = clock,
                         .workspace = workspace,
                         .foreground = foreground,
                         .activationToken = activationToken }),
            [this](const auto&) { journal.push_back("done"); });
    }
};
