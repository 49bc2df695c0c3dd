#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// What a check of a compound file has found. Written from the published format alone: it shares no
/// code with the layer that it judges.
struct CompoundCheck {
    std::vector<std::string> complaints;
    std::size_t leakedSectors = 0; ///< neither free nor reached by any chain
    std::size_t leakedMiniSectors = 0;

    [[nodiscard]] std::string text() const;
};

enum class CheckMode {
    /// After a completed operation: every sector in exactly one chain or free, all sizes and counts
    /// agree, names ascend, no red under red and equally many blacks on every way.
    Strict,
    /// The same for a file of another writer, whose trees need not be balanced.
    OtherWriter,
    /// After a stop at any write: no sector in two chains, nothing reached is marked free, every
    /// chain at least as long as its stream says, names ascend. Leaked sectors are counted.
    AfterStop,
};

[[nodiscard]] CompoundCheck checkCompoundFile(std::span<const std::byte> bytes, CheckMode mode);
