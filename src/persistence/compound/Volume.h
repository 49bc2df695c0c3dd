#pragma once

#include "persistence/compound/MiniFat.h"

#include <memory>
#include <vector>

namespace quillford::compound {

/// An open compound file in memory: its header, tables and directory, and the chain of each
/// stream. It holds what the file holds; after a failed write it no longer does and is loaded anew.
struct Volume {
    Volume(ByteStore& store, const Header& header);

    [[nodiscard]] bool isMini(EntryId id) const { return sizeOf(id) < MiniStreamCutoff; }

    /// The size as the directory tells it.
    [[nodiscard]] quint64 sizeOf(EntryId id) const {
        return directory.at(id).size(header.hasLargeSectors());
    }

    /// Raises `DocumentCorrupt` with the place of the damage, if there is any: a damaged file is
    /// read as far as it goes, but never changed.
    void requireSound() const;

    Header header;
    SectorFile file;
    Fat fat;
    Directory directory;
    MiniFat mini;
    std::vector<Chain> chains; ///< by entry; of sectors or mini sectors, by the stream's size
    qint64 damage = NoDamage;  ///< the first place in the file at which something is wrong

    static constexpr qint64 NoDamage = -1;
};

/// Writes a new, empty compound file over whatever is in the store: one write of header, table and
/// directory, after which the store is cut to that length.
void formatStore(ByteStore& store);

/// Reads the tables of the compound file in the store. Nothing in it is trusted: every number is
/// compared with the size of the file, and no sector and no entry is taken twice. Raises
/// `FileAlreadyExists`, `InvalidHeader` or `DocumentCorrupt` when not even the root can be read;
/// other damage is noted in the volume.
[[nodiscard]] std::unique_ptr<Volume> loadVolume(ByteStore& store);

} // namespace quillford::compound
