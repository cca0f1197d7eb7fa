#include <benchmark/benchmark.h>
#include <exception>
#include <fmt/format.h>
#include <memory>

#include "Benchmarks/Contestants.h"
#include "Benchmarks/NlohmannDecoding.h"
#include "Benchmarks/SampleSnapshot.h"
#include "OrvelWidgets/OrvelProvider.h"

namespace {

using namespace orvel;
using namespace orvelbench;

/// Measures one call; what it returns is kept from being optimised away, and is destroyed within the measured time.
template <typename Work>
void measure(const std::string& name, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) {
        for (auto _ : state) {
            auto result = work();
            benchmark::DoNotOptimize(result);
        }
    })->Unit(benchmark::kMicrosecond);
}

void measureDates(const std::string& name, WidgetSnapshot snapshot, const Calendar& calendar)
{
    const auto shared = std::make_shared<const WidgetSnapshot>(std::move(snapshot));
    measure(name, [shared, calendar] {
        return shared->timelineDates(sampleNow(), calendar, OrvelProvider::countdownSpan, OrvelProvider::limit);
    });
}

void measureAll(Contestants& contestants)
{
    measure("decode/ours", [&] { return decodeJson<WidgetSnapshot>(contestants.json()); });
    measure("decode/peer", [&] { return decodeWithNlohmann(contestants.json()); });
    measure("entries/ours", [&] { return contestants.entries(); });
    measure("entries/peer", [&] { return contestants.entriesOfPeer(); });
    measure("file/ours", [&] { return contestants.entriesFromFile(); });
    measure("file/peer", [&] { return contestants.entriesFromFileOfPeer(); });
    measure("contents/ours", [&] { return contestants.contents(); });
    measure("contents/peer", [&] { return contestants.wordsOfPeer(); });
    measureDates("dates/year9999", farSnapshot(), contestants.calendar());
    for (const std::size_t count : { 1'000, 10'000, 100'000 })
        measureDates(fmt::format("dates/{}", count), overlappingSnapshot(count), contestants.calendar());
}

/// What a reader of the figures wants to know of the sample.
void describe(const Contestants& contestants)
{
    constexpr std::int64_t boundless = 1'000'000;
    const auto dates =
        sampleSnapshot().timelineDates(sampleNow(), contestants.calendar(), OrvelProvider::countdownSpan, boundless);
    benchmark::AddCustomContext("bytes", fmt::to_string(contestants.json().size()));
    benchmark::AddCustomContext("dates", fmt::to_string(dates.size()));
    benchmark::AddCustomContext("entries", fmt::to_string(contestants.entries().size()));
    benchmark::AddCustomContext("now", iso8601(sampleNow()).value());
    benchmark::AddCustomContext("zone", std::string(sampleZone));
}

int run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        fmt::print(stderr,
            "usage: OrvelBenchmarks [Google Benchmark's options] FILE\n"
            "FILE is where the sample snapshot is written.\n");
        return 2;
    }
    Contestants contestants(argv[1]);
    if (const auto why = contestants.disagreement()) {
        fmt::print(stderr, "OrvelBenchmarks: nothing is measured: {}\n", *why);
        return 1;
    }
    describe(contestants);
    measureAll(contestants);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        fmt::print(stderr, "OrvelBenchmarks: {}\n", error.what());
        return 1;
    }
}
