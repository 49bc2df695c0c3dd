#include "persistence/compound/Loader.h"

#include "base/ByteOrder.h"
#include "persistence/compound/NameTree.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/TreeWalk.h"

#include <algorithm>

namespace quillford::compound {

std::unique_ptr<Volume> loadVolume(ByteStore& store) {
    std::array<std::byte, HeaderSize> bytes{};
    const std::size_t count = store.read(0, bytes);
    auto volume = std::make_unique<Volume>(store, Header::parse(Bytes(bytes).first(count)));
    Loader(*volume).load();
    return volume;
}

namespace {

quint32 sectorsOf(ByteStore& store, quint32 sectorSize) {
    const quint64 size = store.size();
    if (size <= sectorSize)
        return 0;
    return static_cast<quint32>(
        std::min<quint64>((size - 1) / sectorSize, quint64{LargestSector} + 1));
}

} // namespace

Loader::Loader(Volume& volume)
    : volume_(volume), sectors_(sectorsOf(volume.file.store(), volume.file.sectorSize())) {}

void Loader::load() {
    loadFat();
    claimCovered();
    loadDirectory();
    loadMiniFat();
    loadStorages();
    for (SectorId sector = 0; sector < claimed_.size(); ++sector) {
        if (claimed_[sector])
            volume_.fat.setUsed(sector);
    }
}

void Loader::noteDamage(quint64 offset) {
    if (volume_.damage == Volume::NoDamage)
        volume_.damage = static_cast<qint64>(offset);
}

void Loader::noteDamagedEntry(EntryId id) {
    const quint32 inSector = volume_.directory.entriesInSector();
    const SectorId sector = volume_.directory.chain_.at(id / inSector);
    noteDamage(volume_.file.offsetOf(sector) + quint64{id % inSector} * EntrySize);
}

bool Loader::claimForFat(SectorId sector) {
    return sector < sectors_ && ofFat_.insert(sector).second;
}

void Loader::claimCovered() {
    claimed_.resize(std::min(sectors_, volume_.fat.size()));
    for (const SectorId sector : ofFat_) {
        // A sector of the table that the table itself does not cover could not be kept from others.
        if (!claim(sector))
            noteDamage(volume_.file.offsetOf(sector));
    }
}

bool Loader::claim(SectorId sector) {
    if (sector >= claimed_.size() || claimed_[sector])
        return false;
    claimed_[sector] = true;
    return true;
}

std::vector<std::byte> Loader::readSector(SectorId sector) {
    std::vector<std::byte> bytes(volume_.file.sectorSize());
    (void)volume_.file.store().read(volume_.file.offsetOf(sector), bytes);
    return bytes;
}

bool Loader::loadFatSector(SectorId sector) {
    if (!claimForFat(sector))
        return false;
    volume_.fat.addPlace(sector, readSector(sector));
    return true;
}

void Loader::loadFat() {
    const quint32 count = volume_.header.field(header::FatSectors);
    const std::size_t inHeader = std::min<std::size_t>(count, HeaderFatPlaces);
    for (std::size_t i = 0; i < inHeader; ++i) {
        if (!loadFatSector(volume_.header.fatPlace(i))) {
            noteDamage(header::FatPlaces + i * sizeof(SectorId));
            return;
        }
    }
    if (count > HeaderFatPlaces)
        loadFatFromDifat();
    volume_.fat.publishedDifat_ = volume_.fat.difat_.length();
}

void Loader::loadFatFromDifat() {
    std::size_t missing = volume_.header.field(header::FatSectors) - HeaderFatPlaces;
    quint64 linkPlace = header::FirstDifatSector;
    SectorId sector = volume_.header.field(header::FirstDifatSector);
    while (missing > 0) {
        if (!claimForFat(sector)) {
            noteDamage(linkPlace);
            return;
        }
        volume_.fat.addDifatPlace(sector);
        const std::vector<std::byte> bytes = readSector(sector);
        const std::size_t places = bytes.size() / sizeof(SectorId) - 1;
        for (std::size_t i = 0; i < places && missing > 0; ++i, --missing) {
            if (!loadFatSector(loadLittleEndian<SectorId>(bytes, i * sizeof(SectorId)))) {
                noteDamage(volume_.file.offsetOf(sector) + i * sizeof(SectorId));
                return;
            }
        }
        linkPlace = volume_.file.offsetOf(sector) + places * sizeof(SectorId);
        sector = loadLittleEndian<SectorId>(bytes, places * sizeof(SectorId));
    }
}

Chain Loader::claimChain(SectorId first) {
    Chain chain;
    SectorId sector = first;
    while (sector != EndOfChain) {
        if (!claim(sector)) {
            noteDamage(chain.isEmpty() ? 0 : volume_.file.offsetOf(chain.last()));
            break;
        }
        chain.append(sector);
        sector = volume_.fat.next(sector);
    }
    return chain;
}

Chain Loader::claimMiniChain(SectorId first) {
    Chain chain;
    SectorId sector = first;
    while (sector != EndOfChain) {
        if (sector >= miniSectors_ || volume_.mini.isUsed(sector)) {
            noteDamage(0);
            break;
        }
        volume_.mini.setUsed(sector);
        chain.append(sector);
        sector = volume_.mini.next(sector);
    }
    return chain;
}

void Loader::loadDirectory() {
    Directory& directory = volume_.directory;
    directory.chain_ = claimChain(volume_.header.field(header::FirstDirectorySector));
    for (const Chain::Run& run : directory.chain_.runs()) {
        for (quint32 i = 0; i < run.count; ++i)
            directory.appendSector(readSector(run.first + i));
    }
    if (directory.size() == 0 || directory.at(RootEntry).kind() != Kind::Root)
        throw storageError(StorageCode::DocumentCorrupt, {}, header::FirstDirectorySector);
    volume_.chains.resize(directory.size());
    directory.reached_[RootEntry] = true;
}

void Loader::loadMiniFat() {
    MiniFat& mini = volume_.mini;
    const SectorId firstOfTable = volume_.header.field(header::FirstMiniFatSector);
    // Some writers leave a zero or a free mark where there is no table.
    if (volume_.header.field(header::MiniFatSectors) > 0)
        mini.table_ = claimChain(firstOfTable);
    for (const Chain::Run& run : mini.table_.runs()) {
        for (quint32 i = 0; i < run.count; ++i)
            mini.appendTableSector(readSector(run.first + i));
    }
    const quint64 told = volume_.sizeOf(RootEntry);
    if (told > 0)
        mini.container_ = claimChain(volume_.directory.at(RootEntry).firstSector());
    mini.publishedContainer_ = mini.container_.length();
    if (told > mini.capacity())
        noteDamagedEntry(RootEntry);
    const quint64 whole = (std::min(told, mini.capacity()) + MiniSectorSize - 1) / MiniSectorSize;
    mini.usedBytes_ = whole * MiniSectorSize;
    miniSectors_ = static_cast<quint32>(std::min<quint64>(whole, mini.size()));
}

void Loader::loadStorages() {
    storages_.push_back(RootEntry);
    while (!storages_.empty()) {
        const EntryId storage = storages_.back();
        storages_.pop_back();
        loadStorage(storage);
    }
    volume_.directory.reachedOnDisk_ = volume_.directory.reached_;
}

void Loader::loadStorage(EntryId storage) {
    TreeWalk walk = walkTree(volume_.directory, volume_.directory.reached_, storage);
    for (const EntryId id : walk.inOrder)
        loadElement(id);
    if (walk.isCutOff)
        noteDamagedEntry(storage);
    if (walk.isWellFormed)
        return;
    const auto key = [this](EntryId id) {
        return NameKey(volume_.directory.at(id).name().value_or(QString()));
    };
    std::stable_sort(walk.inOrder.begin(), walk.inOrder.end(),
                     [&key](EntryId left, EntryId right) { return key(left) < key(right); });
    // Of two elements of one name nobody could tell which one a change is meant for.
    const auto twin =
        std::adjacent_find(walk.inOrder.begin(), walk.inOrder.end(),
                           [&key](EntryId left, EntryId right) { return key(left) == key(right); });
    if (twin != walk.inOrder.end())
        noteDamagedEntry(*twin);
    NameTree(volume_.directory, storage).rebuild(walk.inOrder);
}

void Loader::loadElement(EntryId id) {
    const DirectoryEntry& record = volume_.directory.at(id);
    const std::optional<Kind> kind = record.kind();
    if (!record.name() || (kind != Kind::Storage && kind != Kind::Stream))
        noteDamagedEntry(id);
    if (kind == Kind::Storage)
        storages_.push_back(id);
    if (kind == Kind::Stream)
        loadStream(id);
}

void Loader::loadStream(EntryId id) {
    // The first sector of an empty stream is told in several ways and means nothing.
    const quint64 size = volume_.sizeOf(id);
    if (size == 0)
        return;
    const SectorId first = volume_.directory.at(id).firstSector();
    Chain& chain = volume_.chains[id];
    quint64 room = 0;
    if (volume_.isMini(id)) {
        chain = claimMiniChain(first);
        room = quint64{chain.length()} * MiniSectorSize;
    } else {
        chain = claimChain(first);
        room = quint64{chain.length()} * volume_.file.sectorSize();
    }
    if (room < size)
        noteDamagedEntry(id);
}

} // namespace quillford::compound
