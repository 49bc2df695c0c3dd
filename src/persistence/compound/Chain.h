#pragma once

#include "persistence/compound/CompoundFormat.h"

#include <vector>

namespace quillford::compound {

/// The sectors of one chain in their order, kept as runs of consecutive numbers.
class Chain {
public:
    struct Run {
        quint32 position; ///< where in the chain the run begins
        SectorId first;
        quint32 count;
    };

    [[nodiscard]] bool isEmpty() const { return runs_.empty(); }

    [[nodiscard]] quint32 length() const;

    /// The number of the first and of the last sector; of a chain that is not empty.
    [[nodiscard]] SectorId first() const { return runs_.front().first; }

    [[nodiscard]] SectorId last() const { return runs_.back().first + runs_.back().count - 1; }

    /// The first sector, or the mark that a chain without one has in its place.
    [[nodiscard]] SectorId firstOrEnd() const { return isEmpty() ? EndOfChain : first(); }

    /// The sector at `position`, which is less than the length.
    [[nodiscard]] SectorId at(quint32 position) const;

    [[nodiscard]] const std::vector<Run>& runs() const { return runs_; }

    /// The index of the run in which `position` lies; the number of runs when it lies behind all.
    [[nodiscard]] std::size_t runAt(quint32 position) const;

    void append(SectorId sector) { append(sector, 1); }

    void append(SectorId first, quint32 count);
    void append(const Chain& other);

    /// Keeps the first `length` sectors and gives the others.
    [[nodiscard]] Chain cutTo(quint32 length);

    /// The `count` sectors from `position` on, as a chain of their own.
    [[nodiscard]] Chain part(quint32 position, quint32 count) const;

private:
    std::vector<Run> runs_;
};

} // namespace quillford::compound
