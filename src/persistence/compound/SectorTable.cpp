#include "persistence/compound/SectorTable.h"

#include "base/ByteOrder.h"

#include <algorithm>

namespace quillford::compound {

namespace {

/// A bound on the memory that one write of neighbouring table sectors takes.
constexpr quint32 MostTogether = 128;

} // namespace

void SectorTable::setNext(SectorId sector, SectorId next) {
    next_[sector] = next;
    changed_.insert(tableSectorOf(sector));
}

void SectorTable::link(const Chain& chain, SectorId end) {
    SectorId before = FreeSector;
    for (const Chain::Run& run : chain.runs()) {
        if (before != FreeSector)
            setNext(before, run.first);
        for (quint32 i = 0; i + 1 < run.count; ++i)
            setNext(run.first + i, run.first + i + 1);
        before = run.first + run.count - 1;
    }
    if (before != FreeSector)
        setNext(before, end);
}

void SectorTable::setFree(const Chain& chain) {
    for (const Chain::Run& run : chain.runs()) {
        for (quint32 i = 0; i < run.count; ++i) {
            setNext(run.first + i, FreeSector);
            used_[run.first + i] = false;
        }
        lowestFree_ = std::min(lowestFree_, run.first);
    }
}

void SectorTable::cut(Chain& chain, quint32 length) {
    const Chain gone = chain.cutTo(length);
    if (gone.isEmpty())
        return;
    setNext(chain.last(), EndOfChain);
    const quint32 first = tableSectorOf(chain.last());
    setFree(gone);
    writeChanged(first, first + 1);
    writeChanged(0, tableSectors());
}

void SectorTable::release(const Chain& chain) {
    setFree(chain);
    writeChanged(0, tableSectors());
}

void SectorTable::appendTableSector(Bytes bytes) {
    for (std::size_t place = 0; place < bytes.size(); place += sizeof(SectorId))
        next_.push_back(loadLittleEndian<SectorId>(bytes, place));
    used_.resize(next_.size());
}

void SectorTable::appendFreeTableSector() {
    changed_.insert(size() / entriesInSector());
    next_.resize(next_.size() + entriesInSector(), FreeSector);
    used_.resize(next_.size());
}

Chain SectorTable::takeFree(quint32 count) {
    Chain taken;
    quint32 missing = count;
    for (; missing > 0 && lowestFree_ < size(); ++lowestFree_) {
        if (used_[lowestFree_])
            continue;
        used_[lowestFree_] = true;
        taken.append(lowestFree_);
        --missing;
    }
    return taken;
}

void SectorTable::writeChanged(quint32 from, quint32 to) {
    for (auto next = changed_.lower_bound(from); next != changed_.end() && *next < to;) {
        const quint32 first = *next;
        quint32 count = 0;
        do {
            next = changed_.erase(next);
            ++count;
        } while (next != changed_.end() && *next < to && *next == first + count &&
                 placeOf(*next) == placeOf(first) + count && count < MostTogether);
        writeStretch(first, count);
    }
}

void SectorTable::writeStretch(quint32 firstTableSector, quint32 count) {
    std::vector<std::byte> bytes(std::size_t{count} * file_.sectorSize());
    const SectorId firstEntry = firstTableSector * entriesInSector();
    for (quint32 i = 0; i < count * entriesInSector(); ++i)
        storeLittleEndian<SectorId>(bytes, std::size_t{i} * sizeof(SectorId),
                                    next_[firstEntry + i]);
    file_.writeSector(placeOf(firstTableSector), bytes);
}

} // namespace quillford::compound
