#include "PairedTimes.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace quillford {

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr std::size_t MostUncountedRuns = 5;
constexpr std::chrono::seconds Duration{2};

double microsecondsOf(const std::function<void()>& run) {
    const Clock::time_point start = Clock::now();
    run();
    return Microseconds(Clock::now() - start).count();
}

double median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

PairedTimes measuredInTurns(const std::function<void()>& ours, const std::function<void()>& peer,
                            std::size_t fewestRuns) {
    const std::size_t uncounted = std::min(MostUncountedRuns, fewestRuns / 5);
    for (std::size_t i = 0; i < uncounted; ++i) {
        ours();
        peer();
    }
    std::vector<double> ourTimes;
    std::vector<double> peerTimes;
    const Clock::time_point end = Clock::now() + Duration;
    while (Clock::now() < end || ourTimes.size() < fewestRuns) {
        ourTimes.push_back(microsecondsOf(ours));
        peerTimes.push_back(microsecondsOf(peer));
    }
    return {median(ourTimes), median(peerTimes), static_cast<int>(ourTimes.size())};
}

} // namespace quillford
