#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <gio/gio.h>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Benchmarks/Extension/Service.h"
#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"

namespace {

using namespace orvel;
using namespace orvelbench;

constexpr auto statusWidget = "app.orvel.widget.status";
constexpr auto focusControl = "app.orvel.control.focus";
constexpr int callsInARow = 100;

/// Long enough for what the extension does when nobody asks.
constexpr std::chrono::milliseconds pause { 150 };

/// What a desktop says with each request.
_GVariant* environment()
{
    DictionaryWriter writer;
    writer.add("family", "systemMedium");
    writer.add("renderingMode", "fullColor");
    writer.add("colorScheme", "dark");
    writer.add("contrast", "standard");
    writer.add("locale", "en-GB");
    writer.add("language", "en");
    writer.add("timeZone", "Europe/Berlin");
    writer.add("scale", 2.0);
    writer.add("format", "pixels");
    return writer.end();
}

_GVariant* ofKind(const char* kind)
{
    return g_variant_new("(s@a{sv})", kind, environment());
}

/// The first entry of a timeline.
struct Entry {
    gint64 date = 0;
    VariantHandle moment;
};

Entry firstEntry(_GVariant* timeline)
{
    Entry entry;
    guint32 index = 0;
    g_variant_get_child(VariantHandle(g_variant_get_child_value(timeline, 0)).get(), 0, "(xu)", &entry.date, &index);
    entry.moment.reset(g_variant_get_child_value(VariantHandle(g_variant_get_child_value(timeline, 1)).get(), index));
    return entry;
}

_GVariant* drawing(const Entry& entry)
{
    return g_variant_new("(sx@ay@a{sv})", statusWidget, entry.date, entry.moment.get(), environment());
}

double median(std::vector<double>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Samples of many figures, by name.
class Figures {
public:
    void add(const std::string& name, double value) { m_samples[name].push_back(value); }

    std::string medians()
    {
        std::string text;
        for (auto& [name, samples] : m_samples)
            text += fmt::format("{}\"{}\": {}", text.empty() ? "" : ", ", name, median(samples));
        return "{" + text + "}";
    }

private:
    std::map<std::string, std::vector<double>> m_samples;
};

class Comparison {
public:
    explicit Comparison(const BusConnection& bus)
        : m_empty(
            bus, { "app.orvel.Peer.EmptyService", "/app/orvel/Peer/EmptyService", "app.orvel.Peer.EmptyService1" })
        , m_extension(bus, { BusName::extension, BusPath::extension, BusInterface::widgetExtension })
        , m_entry(firstEntry(m_extension.call("Timeline", ofKind(statusWidget)).get()))
    {
        m_empty.call("Nothing", nullptr);
    }

    /// Every process is started anew for its answer.
    void cold()
    {
        started("cold empty", m_empty, [&] { return m_empty.time("Nothing", nullptr); });
        started("cold timeline", m_extension, [&] { return m_extension.time("Timeline", ofKind(statusWidget)); });
        std::this_thread::sleep_for(pause);
        m_figures.add("memory before drawing", static_cast<double>(m_extension.residentMemory()));
        m_extension.call("Render", drawing(m_entry));
        std::this_thread::sleep_for(pause);
        m_figures.add("memory after drawing", static_cast<double>(m_extension.residentMemory()));
        started("cold picture", m_extension, [&] { return m_extension.time("Render", drawing(m_entry)); });
    }

    /// Both have been asked before.
    void warm()
    {
        for (int i = 0; i < callsInARow; ++i)
            m_figures.add("empty", m_empty.time("Nothing", nullptr).count());
        for (int i = 0; i < callsInARow; ++i)
            m_figures.add("control value", m_extension.time("ControlValue", ofKind(focusControl)).count());
    }

    std::string medians() { return m_figures.medians(); }

private:
    template <typename Ask>
    void started(const std::string& name, const Service& service, Ask ask)
    {
        service.end();
        m_figures.add(name, ask().count());
        m_figures.add(name + ", processor", service.processorTime().count());
    }

    Service m_empty;
    Service m_extension;
    Entry m_entry;
    Figures m_figures;
};

int run(int argc, char** argv)
{
    int rounds = 0;
    if (argc == 2)
        std::from_chars(argv[1], argv[1] + std::string_view(argv[1]).size(), rounds);
    if (rounds < 1) {
        fmt::print(stderr,
            "usage: OrvelExtensionBenchmarks ROUNDS\n"
            "Runs on a bus that starts the extension and EmptyService; prints medians in microseconds and KiB.\n");
        return 2;
    }
    const EventLoop loop;
    const auto bus = BusConnection::connect(loop);
    if (!bus)
        throw std::runtime_error(bus.error().text());
    Comparison comparison(*bus);
    for (int round = 0; round < rounds; ++round)
        comparison.cold();
    for (int round = 0; round < rounds; ++round)
        comparison.warm();
    fmt::print("{}\n", comparison.medians());
    return 0;
}

}

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        fmt::print(stderr, "OrvelExtensionBenchmarks: {}\n", error.what());
        return 1;
    }
}
