#pragma once

#include "persistence/compound/DirectoryEntry.h"
#include "persistence/compound/Fat.h"

#include <set>
#include <vector>

namespace quillford::compound {

/// The records of all elements, held in memory, and the one way in which changes of them reach the
/// file: `commit` makes everything that was changed since the last one visible in a single write.
///
/// Changes within one sector are that write. Where several sectors are touched, the stretch of the
/// directory's chain that holds them is written anew into free sectors and linked in by one write
/// of a table entry or of the header; the old sectors are freed after it. Records that nobody
/// reached before go out first, and records that nobody reaches any more go out last.
class Directory {
public:
    Directory(const SectorFile& file, Fat& fat, Header& header)
        : file_(file), fat_(fat), header_(header) {}

    [[nodiscard]] EntryId size() const { return static_cast<EntryId>(entries_.size()); }

    [[nodiscard]] const DirectoryEntry& at(EntryId id) const { return entries_[id]; }

    /// The record, to be changed. The reference is good until the next `allocate`.
    [[nodiscard]] DirectoryEntry& change(EntryId id);

    /// The entry above `id` in its tree, for the tree's own use; not kept in the file.
    [[nodiscard]] EntryId parent(EntryId id) const { return parents_[id]; }

    void setParent(EntryId id, EntryId parent) { parents_[id] = parent; }

    /// True when some storage reaches the entry.
    [[nodiscard]] bool isReached(EntryId id) const { return reached_[id]; }

    /// A record that nobody uses; from now on it counts as reached. Where there is none the
    /// directory is given one more sector, in the file too.
    [[nodiscard]] EntryId allocate();

    /// Empties a record that has been taken out of its tree.
    void release(EntryId id);

    void commit();

private:
    using Ids = std::set<EntryId>;

    [[nodiscard]] quint32 entriesInSector() const {
        return file_.sectorSize() / static_cast<quint32>(EntrySize);
    }

    [[nodiscard]] quint32 chainPlaceOf(EntryId id) const { return id / entriesInSector(); }

    void appendSector(Bytes bytes);
    void growByOneSector();
    void noteGrowth();
    void writeInPlace(quint32 chainPlace, const Ids& ids);
    void writeSectorsInPlace(const Ids& ids);
    void writeAnew(quint32 firstPlace, quint32 lastPlace);

    void bringToImage(EntryId id) { onDisk_[id] = entries_[id]; }

    SectorFile file_;
    Fat& fat_;
    Header& header_;
    Chain chain_;
    std::vector<DirectoryEntry> entries_;
    std::vector<DirectoryEntry> onDisk_;
    std::vector<EntryId> parents_;
    std::vector<bool> reached_;
    std::vector<bool> reachedOnDisk_;
    Ids changed_;
    EntryId lowestFree_ = 0; ///< no record below it is free

    friend class Loader;
};

} // namespace quillford::compound
