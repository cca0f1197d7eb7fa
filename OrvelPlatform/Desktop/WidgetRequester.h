#pragma once

#include <chrono>
#include <expected>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/BusCall.h"
#include "OrvelPlatform/Desktop/BusConnection.h"
#include "OrvelPlatform/Desktop/HostPicture.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

struct RequestDeadlines {
    std::chrono::milliseconds answer { 5'000 }; // also time for the bus to start the extension
    std::chrono::milliseconds performed { 30'000 }; // an intent may wait for the application to start
};

/// Environments as the bus has them: a host asks in the same few for as long as nothing is set.
class EnvironmentValues {
public:
    /// The value stays for the caller to take a share of until the next call.
    _GVariant* of(const HostEnvironment& environment);

private:
    static constexpr std::size_t most = 16; // a size and a scale each

    struct Kept {
        HostEnvironment environment;
        VariantHandle value;
    };
    std::vector<Kept> m_kept; // the oldest first
};

/// A host's side: asks the extension, which the bus starts when it does not run. Every reply is checked as a
/// stranger's, and every request has an end. Tasks run on the loop, several at once where the host likes; each has to
/// be over, or destroyed, before the requester is.
class WidgetRequester {
public:
    /// Nothing is done before the first request. A bus that went away is looked for anew by the next one.
    explicit WidgetRequester(const EventLoop& loop, const RequestDeadlines& deadlines = {});

    /// Questions. When the extension goes before it answers, it is asked once more.
    Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment);
    Task<Answer<ExtensionEntry>> placeholder(std::string kind, HostEnvironment environment);
    Task<Answer<ExtensionEntry>> snapshot(std::string kind, HostEnvironment environment);
    Task<Answer<ExtensionTimeline>> timeline(std::string kind, HostEnvironment environment);
    Task<Answer<HostPicture>> render(std::string kind, ExtensionEntry entry, HostEnvironment environment);
    Task<Answer<ControlValue>> controlValue(std::string kind, HostEnvironment environment);

    /// Runs an intent: in the application if it runs and takes intents (it is never started for this), in the extension
    /// otherwise. Two clicks are two calls. It is never asked twice: when an answer is lost, it may have been done.
    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform);

private:
    VariantHandle ofKind(const std::string& kind, const HostEnvironment& environment);
    template <typename T>
    Task<Answer<T>> ask(const char* method, VariantHandle arguments, const char* replyType);
    Task<BusCall::Result> call(BusCall::Target target, const char* method, VariantHandle arguments,
        const char* replyType, std::chrono::milliseconds deadline);
    Task<std::optional<std::string>> ownerOfApplication();
    std::expected<void, RequestFault> connect();

    const EventLoop& m_loop;
    RequestDeadlines m_deadlines;
    std::optional<BusConnection> m_connection;
    EnvironmentValues m_environments;
};

}
