// A widget extension for tests, started by the bus. What it does depends on the kind that it is asked for.

#include <chrono>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <unistd.h>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "OrvelPlatform/Desktop/ExtensionRunner.h"

namespace {

using namespace orvel;
using Kind = RequestFault::Kind;

std::chrono::milliseconds setting(const char* name, int otherwise)
{
    const char* value = std::getenv(name);
    return std::chrono::milliseconds { value ? std::atoi(value) : otherwise };
}

std::unexpected<RequestFault> fault(Kind kind, std::string sentence)
{
    return std::unexpected(RequestFault { .kind = kind, .sentence = std::move(sentence) });
}

[[noreturn]] void die()
{
    std::ofstream(std::getenv("FAKE_LOG"), std::ios::app) << "died\n" << std::flush;
    ::_exit(3);
}

class FakeExtension : public WidgetExtension {
public:
    explicit FakeExtension(const EventLoop& loop) : m_clock(loop) { }

    Answer<std::vector<ExtensionMember>> members(const HostEnvironment& environment) override
    {
        const ExtensionIntent intent { .name = "OpenBreathe",
            .title = "Breathe",
            .parameters = { { .name = "minutes",
                .title = "Minutes",
                .type = ExtensionIntent::Type::integer,
                .isOptional = true } } };
        const ExtensionIntent focus { .name = "FocusNow",
            .title = "Focus",
            .parameters = {
                { .name = "value", .title = "Focus", .type = ExtensionIntent::Type::truth, .isOptional = false } } };
        return std::vector<ExtensionMember> { { .kind = "plain",
                                                  .role = ExtensionMember::Role::widget,
                                                  .displayName = environment.language.value_or("no language"),
                                                  .description = std::string(5000, 'x'),
                                                  .families = { "systemSmall" },
                                                  .intents = { intent } },
            { .kind = "state",
                .role = ExtensionMember::Role::toggle,
                .displayName = "",
                .description = "",
                .families = {},
                .intents = { focus } } };
    }

    Answer<ExtensionEntry> placeholder(std::string_view kind, const HostEnvironment&) override { return entry(kind); }
    Answer<ExtensionEntry> snapshot(std::string_view kind, const HostEnvironment&) override { return entry(kind); }

    Answer<ExtensionTimeline> timeline(std::string_view kind, const HostEnvironment&) override
    {
        if (kind == "ticking" || kind == "brittle")
            return ticking();
        const std::size_t size = kind == "huge" ? 1U << 20U : 8;
        ExtensionTimeline timeline { .entries = {}, .moments = {}, .reload = Date { std::chrono::hours { 1 } } };
        for (std::uint32_t index = 0; index < 10; ++index) {
            timeline.entries.push_back({ .date = Date { std::chrono::minutes { index } }, .moment = index / 2 });
            if (index % 2 == 0)
                timeline.moments.emplace_back(size, static_cast<char>('a' + index / 2));
        }
        return timeline;
    }

    Answer<ExtensionPicture> render(
        std::string_view kind, const ExtensionEntry& entry, const HostEnvironment& environment) override
    {
        if (entry.moment != "moment")
            return fault(Kind::badEntry, "Not one of mine.");
        if (kind == "slow")
            std::this_thread::sleep_for(std::chrono::milliseconds { 100 });
        if (kind == "brittle" && !std::ifstream(std::getenv("FAKE_LOG")))
            die();
        const std::uint32_t side = kind == "large" ? 4096 : 3;
        ExtensionPicture::Layer layer { .name = "whole",
            .content = ExtensionPicture::Pixels(std::size_t { side } * side, 0x80402010U) };
        if (environment.format == PictureFormat::png)
            layer.content = ExtensionPicture::Png { "\x89PNG\r\n\x1a\n and so on" };
        return ExtensionPicture { .width = side,
            .height = side,
            .layers = { layer },
            .link = "orvel://today",
            .elements = { { .role = "text", .label = "Ä" + std::string(5000, 'y'), .frame = { 0, 0, 1.5, 1 } } },
            .actions = { { .label = "Breathe",
                .frame = { 1, 1, 1, 1 },
                .intent = "OpenBreathe",
                .parameters = { { "minutes", std::int64_t { 3 } }, { "style", "calm" } } } } };
    }

    /// "state" tells of the process: its number, the intents that it ran, and whether it prepared for pictures.
    Answer<ControlValue> controlValue(std::string_view kind, const HostEnvironment&) override
    {
        if (kind == "throws")
            throw std::runtime_error("on purpose");
        if (kind == "dies")
            die();
        if (kind == "slow")
            std::this_thread::sleep_for(std::chrono::milliseconds { 300 });
        if (kind != "state" && kind != "slow")
            return fault(Kind::unknownKind, fmt::format("There is no \"{}\".", kind));
        ControlValue value {};
        value.title = std::to_string(::getpid());
        value.value = m_performed;
        value.isOn = m_isPrepared;
        value.tint = ControlValue::Color { 0, 0.25, 0.5, 1 };
        value.changes = Date { std::chrono::seconds { 5 } };
        return value;
    }

    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override
    {
        if (intent == "Die")
            die();
        if (intent != "OpenBreathe" && intent != "FocusNow")
            co_return fault(Kind::unknownIntent, "There is no such intent.");
        m_performed += intent + platform.activationToken.value_or("") + ";";
        if (const auto minutes = parameters.find("minutes"); minutes != parameters.end()) {
            auto waiting = m_clock.sleep(std::chrono::milliseconds { std::get<std::int64_t>(minutes->second) });
            co_await waiting;
        }
        co_return Answer<void>();
    }

    void prepareForPictures() override { m_isPrepared = true; }

private:
    /// Two seconds of entries.
    ExtensionTimeline ticking() const
    {
        constexpr std::chrono::milliseconds tick { 200 };
        const auto now = m_clock.now();
        ExtensionTimeline timeline { .entries = {}, .moments = { "moment" }, .reload = now + 10 * tick };
        for (auto index = 0; index < 10; ++index)
            timeline.entries.push_back({ .date = now + index * tick, .moment = 0 });
        return timeline;
    }

    static Answer<ExtensionEntry> entry(std::string_view kind)
    {
        if (kind != "plain")
            return fault(Kind::unknownKind, fmt::format("There is no \"{}\".", kind));
        return ExtensionEntry { .date = Date { std::chrono::seconds { 1 } }, .moment = std::string("\x01\x00\xff", 3) };
    }

    DesktopClock m_clock;
    std::string m_performed;
    bool m_isPrepared = false;
};

}

int main()
{
    EventLoop loop;
    FakeExtension extension(loop);
    return runExtension(
        loop, extension, { .idleTime = setting("FAKE_IDLE", 30'000), .farewell = setting("FAKE_FAREWELL", 50) });
}
