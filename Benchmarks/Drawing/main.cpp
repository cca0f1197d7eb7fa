#include <algorithm>
#include <charconv>
#include <ctime>
#include <exception>
#include <fmt/format.h>
#include <functional>
#include <string_view>
#include <vector>

#include "Benchmarks/Drawing/DrawnDay.h"

namespace {

/// Processor time of this thread in microseconds.
double now()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

double median(int frames, const std::function<void()>& frame)
{
    frame(); // what is kept from frame to frame is made
    std::vector<double> times;
    for (int i = 0; i < frames; ++i) {
        const double start = now();
        frame();
        times.push_back(now() - start);
    }
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

int run(int argc, char** argv)
{
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    int frames = 0;
    if (arguments.size() == 2 && arguments[0] == "repaint")
        std::from_chars(arguments[1].data(), arguments[1].data() + arguments[1].size(), frames);
    const bool isForPeers = arguments.size() == 1 && arguments[0] == "for-peers";
    if (frames < 1 && !isForPeers) {
        fmt::print(stderr, "usage: OrvelDrawingBenchmarks for-peers | repaint FRAMES\n");
        return 2;
    }
    orvelbench::DrawnDay day;
    if (isForPeers) {
        fmt::print("{}\n", day.forPeers());
        return 0;
    }
    for (std::size_t i = 0; i < day.contentCount(); ++i)
        day.again();
    const double again = median(frames, [&] { day.again(); });
    const double newWords = median(frames, [&] { day.withNewWords(); });
    fmt::print("{{\"again\": {}, \"newWords\": {}}}\n", again, newWords);
    return 0;
}

}

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        fmt::print(stderr, "OrvelDrawingBenchmarks: {}\n", error.what());
        return 1;
    }
}
