#pragma once

#include "persistence/compound/Header.h"
#include "persistence/compound/SectorTable.h"

#include <optional>

namespace quillford::compound {

/// The table of all sectors, with the list of its own sectors (in the header, then in the DIFAT).
/// What `allocate` gives is nobody's until it is linked; every call that writes leaves the file
/// whole after each single write.
class Fat final : public SectorTable {
public:
    /// `header` outlives the table and is written by it when the table grows.
    Fat(const SectorFile& file, Header& header) : SectorTable(file), header_(header) {}

    /// Adds a sector of the table, or of the DIFAT, as found in the file.
    void addPlace(SectorId sector, Bytes bytes);

    void addDifatPlace(SectorId sector) { difat_.append(sector); }

    /// `count` free sectors. The table grows in memory where they do not suffice. Raises
    /// `DocumentTooLarge` where no number is left.
    [[nodiscard]] Chain allocate(quint32 count);

    /// Brings all changes to the file: what nobody reaches yet first, then the table sector in
    /// which the entry of `link` stands, so that this one write makes them reachable.
    void publish(std::optional<SectorId> link = std::nullopt);

    /// Puts `added`, whose bytes are written, behind `chain` in the file and in memory. A chain
    /// that was empty is reachable only when its owner has written the number of its first sector.
    void extend(Chain& chain, const Chain& added);

    void writeHeader();

private:
    [[nodiscard]] SectorId placeOf(quint32 tableSector) const override {
        return places_[tableSector];
    }

    [[nodiscard]] quint32 difatSectorsFor(std::size_t tableSectors) const;
    void grow(quint32 missing);
    void publishGrowth();
    void writeDifatSector(quint32 index);

    Header& header_;
    std::vector<SectorId> places_;
    Chain difat_;
    std::size_t publishedPlaces_ = 0;
    quint32 publishedDifat_ = 0;

    friend class Loader;
};

} // namespace quillford::compound
