#pragma once

#include "persistence/compound/Volume.h"

#include <set>
#include <vector>

namespace quillford::compound {

/// Fills a `Volume` from its file: see `loadVolume`.
class Loader {
public:
    explicit Loader(Volume& volume);

    void load();

private:
    void loadFat();
    /// Reads the sector of the FAT at `sector`; false when it cannot be one.
    bool loadFatSector(SectorId sector);
    void loadFatFromDifat();
    void loadDirectory();
    void loadMiniFat();
    void loadStorages();
    void loadStorage(EntryId storage);
    void loadElement(EntryId id);
    void loadStream(EntryId id);

    /// The same as `claim` for a sector of the FAT or the DIFAT, before the FAT is known.
    [[nodiscard]] bool claimForFat(SectorId sector);

    /// Takes the sectors of the FAT and the DIFAT among those that the FAT covers.
    void claimCovered();

    /// True when `sector` lies in the file and is covered by the FAT, and no chain has taken it
    /// yet; it is taken now.
    [[nodiscard]] bool claim(SectorId sector);

    /// The chain that begins at `first`, up to its end or to what cannot be right (noted then).
    [[nodiscard]] Chain claimChain(SectorId first);
    [[nodiscard]] Chain claimMiniChain(SectorId first);

    void noteDamage(quint64 offset);
    void noteDamagedEntry(EntryId id);
    [[nodiscard]] std::vector<std::byte> readSector(SectorId sector);

    Volume& volume_;
    quint32 sectors_; ///< the number of sectors in the file, the last perhaps cut off
    quint32 miniSectors_ = 0;
    std::set<SectorId> ofFat_;
    /// By sector, as far as the FAT covers them: a file may be far longer than what it tells of.
    std::vector<bool> claimed_;
    std::vector<EntryId> storages_; ///< still to be loaded
};

} // namespace quillford::compound
