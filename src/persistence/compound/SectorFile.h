#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/compound/Chain.h"

#include <vector>

namespace quillford::compound {

/// Consecutive bytes of the file.
struct Extent {
    quint64 offset;
    quint64 length;
};

using Extents = std::vector<Extent>;

/// A byte store seen as sectors: turns places in a chain into places in the file, and reads and
/// writes them with one call for each stretch of consecutive bytes.
class SectorFile {
public:
    SectorFile(ByteStore& store, int sectorShift) : store_(&store), shift_(sectorShift) {}

    [[nodiscard]] ByteStore& store() const { return *store_; }

    [[nodiscard]] quint32 sectorSize() const { return 1U << shift_; }

    /// The number of sectors that `bytes` bytes need.
    [[nodiscard]] quint32 sectorsFor(quint64 bytes) const;

    [[nodiscard]] quint64 offsetOf(SectorId sector) const;

    /// Where `length` bytes from `position` on in `chain` lie in the file. What lies behind the end
    /// of the chain is left out.
    [[nodiscard]] Extents extents(const Chain& chain, quint64 position, quint64 length) const;

    /// The same for a chain of mini sectors, which lie in the chain `container`.
    [[nodiscard]] Extents miniExtents(const Chain& container, const Chain& chain, quint64 position,
                                      quint64 length) const;

    /// Fills `into` and gives the number of bytes read: fewer when the extents or the file end.
    [[nodiscard]] std::size_t read(const Extents& extents, MutableBytes into) const;

    /// Writes `parts`, which hold exactly the bytes of `extents`, one write an extent.
    void write(const Extents& extents, std::span<const Bytes> parts);

    void writeSector(SectorId sector, Bytes bytes);

private:
    ByteStore* store_;
    int shift_;
};

/// Adds an extent; one that continues the last is joined to it.
void addExtent(Extents& extents, const Extent& extent);

} // namespace quillford::compound
