#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/compound/CompoundFormat.h"

#include <array>

namespace quillford::compound {

/// The first 512 bytes of a compound file. What this layer has no name for is kept as it was read.
class Header {
public:
    /// The header of a new file: sectors of 512 bytes, no table yet.
    Header();

    /// Reads a header. Raises `FileAlreadyExists` for bytes that are no compound file and
    /// `InvalidHeader` for one that is cut off or tells impossible sizes.
    [[nodiscard]] static Header parse(Bytes bytes);

    [[nodiscard]] Bytes bytes() const { return raw_; }

    [[nodiscard]] int sectorShift() const;

    [[nodiscard]] quint32 sectorSize() const { return 1U << sectorShift(); }

    /// True for files with large sectors, where sizes have 64 bits and the directory is counted.
    [[nodiscard]] bool hasLargeSectors() const { return sectorShift() == LargeSectorShift; }

    [[nodiscard]] quint32 field(std::size_t place) const;
    void setField(std::size_t place, quint32 value);

    [[nodiscard]] SectorId fatPlace(std::size_t index) const;
    void setFatPlace(std::size_t index, SectorId sector);

private:
    std::array<std::byte, HeaderSize> raw_{};
};

} // namespace quillford::compound
