#pragma once

#include <cstddef>
#include <functional>

namespace quillford {

/// What one run of ours and one of its peer take, each the median of its runs.
struct PairedTimes {
    double ours; ///< microseconds
    double peer; ///< microseconds
    int runs;    ///< of each

    [[nodiscard]] double ratio() const { return ours / peer; }
};

/// Runs the two in turns, ours, peer, ours, peer, so that whatever else the machine does falls on
/// both alike. The first runs, which fill caches, are not counted; the others go on for two seconds
/// and are `fewestRuns` of each at the least.
[[nodiscard]] PairedTimes measuredInTurns(const std::function<void()>& ours,
                                          const std::function<void()>& peer,
                                          std::size_t fewestRuns = 100);

} // namespace quillford
