#include "persistence/compound/Volume.h"

#include "base/ByteOrder.h"
#include "persistence/compound/StorageError.h"

#include <array>
#include <vector>

namespace quillford::compound {

Volume::Volume(ByteStore& store, const Header& readHeader)
    : header(readHeader),
      file(store, readHeader.sectorShift()),
      fat(file, header),
      directory(file, fat, header),
      mini(file, fat, directory, header) {}

void Volume::requireSound() const {
    if (damage != NoDamage)
        throw storageError(StorageCode::DocumentCorrupt, {}, damage);
}

void formatStore(ByteStore& store) {
    constexpr SectorId TableSector = 0;
    constexpr SectorId DirectorySector = 1;
    Header header;
    header.setField(header::FatSectors, 1);
    header.setFatPlace(0, TableSector);
    header.setField(header::FirstDirectorySector, DirectorySector);

    std::vector<std::byte> table(header.sectorSize(), std::byte{0xFF});
    storeLittleEndian<SectorId>(table, TableSector * sizeof(SectorId), FatSector);
    storeLittleEndian<SectorId>(table, DirectorySector * sizeof(SectorId), EndOfChain);

    std::vector<std::byte> directory;
    for (std::size_t i = 0; i < header.sectorSize() / EntrySize; ++i) {
        const auto record = i == RootEntry
                                ? DirectoryEntry::make(Kind::Root, QStringLiteral("Root Entry"))
                                : DirectoryEntry();
        directory.insert(directory.end(), record.bytes().begin(), record.bytes().end());
    }

    const std::array<Bytes, 3> parts = {header.bytes(), table, directory};
    store.write(0, parts);
    store.truncate(header.bytes().size() + table.size() + directory.size());
}

} // namespace quillford::compound
