#pragma once

#include "persistence/compound/SectorFile.h"

#include <set>
#include <vector>

namespace quillford::compound {

/// A table of chains, the FAT or the mini FAT, held in memory whole: for each sector the number of
/// the next one. A sector is taken when some chain reaches it, whatever the table says about it: so
/// sectors that a stopped program left behind are used again.
///
/// Changes are made in memory; the owner decides in which order they reach the file.
class SectorTable {
public:
    explicit SectorTable(const SectorFile& file) : file_(file) {}

    SectorTable(const SectorTable&) = delete;
    SectorTable& operator=(const SectorTable&) = delete;
    virtual ~SectorTable() = default;

    /// The number of entries.
    [[nodiscard]] quint32 size() const { return static_cast<quint32>(next_.size()); }

    [[nodiscard]] SectorId next(SectorId sector) const { return next_[sector]; }

    [[nodiscard]] bool isUsed(SectorId sector) const { return used_[sector]; }

    void setUsed(SectorId sector) { used_[sector] = true; }

    /// Writes the numbers of a chain into the table; the last of its sectors is followed by `end`.
    void link(const Chain& chain, SectorId end = EndOfChain);
    void setNext(SectorId sector, SectorId next);

    /// Marks the sectors of a chain free.
    void setFree(const Chain& chain);

    /// Cuts a chain that stays to `length` sectors, at least one: its new end is written first,
    /// what is no longer reached is freed after it.
    void cut(Chain& chain, quint32 length);

    /// Frees a chain that nothing reaches any more.
    void release(const Chain& chain);

    /// Adds the entries of one more table sector, from its bytes.
    void appendTableSector(Bytes bytes);

protected:
    [[nodiscard]] quint32 entriesInSector() const {
        return file_.sectorSize() / quint32{sizeof(SectorId)};
    }

    [[nodiscard]] quint32 tableSectorOf(SectorId sector) const {
        return sector / entriesInSector();
    }

    /// Up to `count` free sectors, the lowest numbers first; from now on they are taken.
    [[nodiscard]] Chain takeFree(quint32 count);

    void appendFreeTableSector();

    [[nodiscard]] quint32 tableSectors() const { return size() / entriesInSector(); }

    /// Brings the changed table sectors from `from` up to, without, `to` to the file; neighbours
    /// in the file go together.
    void writeChanged(quint32 from, quint32 to);

    SectorFile file_;

private:
    /// The sector of the file in which a sector of the table stands.
    [[nodiscard]] virtual SectorId placeOf(quint32 tableSector) const = 0;

    void writeStretch(quint32 firstTableSector, quint32 count);

    std::vector<SectorId> next_;
    std::vector<bool> used_;
    std::set<quint32> changed_;
    SectorId lowestFree_ = 0; ///< no sector below it is free
};

} // namespace quillford::compound
