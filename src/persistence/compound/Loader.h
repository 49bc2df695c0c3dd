#pragma once

#include "persistence/compound/Volume.h"

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

    /// True when `sector` lies in the file and no chain has taken it yet; it is taken now.
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
    std::vector<bool> claimed_;
    std::vector<EntryId> storages_; ///< still to be loaded
};

} // namespace quillford::compound
