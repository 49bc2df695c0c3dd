#pragma once

#include "persistence/compound/Directory.h"

namespace quillford::compound {

/// The mini stream: the container of mini sectors (the root entry's chain) and their table.
///
/// `allocate` makes room in memory; the caller writes the bytes of the new mini sectors, and
/// `publish` then brings the container, its size and the table to the file.
class MiniFat final : public SectorTable {
public:
    MiniFat(const SectorFile& file, Fat& fat, Directory& directory, Header& header)
        : SectorTable(file), fat_(fat), directory_(directory), header_(header) {}

    [[nodiscard]] const Chain& container() const { return container_; }

    /// The number of bytes that the container has room for.
    [[nodiscard]] quint64 capacity() const {
        return quint64{container_.length()} * file_.sectorSize();
    }

    /// `count` free mini sectors.
    [[nodiscard]] Chain allocate(quint32 count);

    /// The bytes of the container's new sectors that stand behind the last mini sector in use; they
    /// must be written too, so that the file holds whole sectors.
    [[nodiscard]] Extents unusedRest() const;

    /// Puts the mini sectors `added`, whose bytes are written, behind `chain`. A chain that was
    /// empty is reachable only when its owner has written the number of its first mini sector.
    void extend(Chain& chain, const Chain& added);

private:
    [[nodiscard]] SectorId placeOf(quint32 tableSector) const override {
        return tableSector < table_.length() ? table_.at(tableSector)
                                             : addedTable_.at(tableSector - table_.length());
    }

    void publishContainer();
    void publishTable();

    Fat& fat_;
    Directory& directory_;
    Header& header_;
    Chain container_;
    Chain table_;
    quint64 usedBytes_ = 0;          ///< the size of the container as the root entry tells it
    quint32 publishedContainer_ = 0; ///< in sectors
    Chain addedTable_;

    friend class Loader;
};

} // namespace quillford::compound
