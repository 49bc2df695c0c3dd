#include "persistence/compound/Fat.h"

#include "base/ByteOrder.h"
#include "persistence/compound/StorageError.h"

#include <algorithm>

namespace quillford::compound {

void Fat::addPlace(SectorId sector, Bytes bytes) {
    places_.push_back(sector);
    publishedPlaces_ = places_.size();
    appendTableSector(bytes);
}

Chain Fat::allocate(quint32 count) {
    Chain taken = takeFree(count);
    if (taken.length() < count) {
        grow(count - taken.length());
        taken.append(takeFree(count - taken.length()));
    }
    return taken;
}

quint32 Fat::difatSectorsFor(std::size_t tableSectors) const {
    if (tableSectors <= HeaderFatPlaces)
        return 0;
    const std::size_t placesInSector = entriesInSector() - 1;
    return static_cast<quint32>((tableSectors - HeaderFatPlaces + placesInSector - 1) /
                                placesInSector);
}

/// The new sectors of the table and of the DIFAT are the first ones that the grown table covers:
/// so they stand together, and the table tells about them itself.
void Fat::grow(quint32 missing) {
    quint32 added = 0;
    quint32 addedDifat = 0;
    do {
        ++added;
        addedDifat = difatSectorsFor(places_.size() + added) - difat_.length();
    } while (quint64{added} * entriesInSector() < quint64{missing} + added + addedDifat);
    if (quint64{size()} + quint64{added} * entriesInSector() > LargestSector)
        throw storageError(StorageCode::DocumentTooLarge);
    SectorId sector = size();
    for (quint32 i = 0; i < added; ++i)
        appendFreeTableSector();
    for (quint32 i = 0; i < added; ++i, ++sector) {
        places_.push_back(sector);
        setNext(sector, FatSector);
        setUsed(sector);
    }
    for (quint32 i = 0; i < addedDifat; ++i, ++sector) {
        difat_.append(sector);
        setNext(sector, DifatSector);
        setUsed(sector);
    }
}

void Fat::publish(std::optional<SectorId> link) {
    publishGrowth();
    if (!link) {
        writeChanged(0, tableSectors());
        return;
    }
    const quint32 last = tableSectorOf(*link);
    writeChanged(0, last);
    writeChanged(last + 1, tableSectors());
    writeChanged(last, last + 1);
}

/// First the new sectors of the table, then those of the DIFAT that list them, and then the header:
/// its write, or that of the last old sector of the DIFAT, makes them reachable.
void Fat::publishGrowth() {
    if (publishedPlaces_ == places_.size())
        return;
    writeChanged(static_cast<quint32>(publishedPlaces_), tableSectors());
    for (quint32 i = difat_.length(); i > publishedDifat_; --i)
        writeDifatSector(i - 1);
    if (publishedDifat_ > 0)
        writeDifatSector(publishedDifat_ - 1);
    for (std::size_t i = publishedPlaces_; i < std::min(places_.size(), HeaderFatPlaces); ++i)
        header_.setFatPlace(i, places_[i]);
    header_.setField(header::FatSectors, static_cast<quint32>(places_.size()));
    header_.setField(header::FirstDifatSector, difat_.firstOrEnd());
    header_.setField(header::DifatSectors, difat_.length());
    writeHeader();
    publishedPlaces_ = places_.size();
    publishedDifat_ = difat_.length();
}

void Fat::writeDifatSector(quint32 index) {
    std::vector<std::byte> bytes(file_.sectorSize(), std::byte{0xFF});
    const std::size_t placesInSector = entriesInSector() - 1;
    const std::size_t first = HeaderFatPlaces + index * placesInSector;
    const std::size_t count = std::min(placesInSector, places_.size() - first);
    for (std::size_t i = 0; i < count; ++i)
        storeLittleEndian<SectorId>(bytes, i * sizeof(SectorId), places_[first + i]);
    const SectorId next = index + 1 < difat_.length() ? difat_.at(index + 1) : EndOfChain;
    storeLittleEndian<SectorId>(bytes, placesInSector * sizeof(SectorId), next);
    file_.writeSector(difat_.at(index), bytes);
}

void Fat::writeHeader() {
    const Bytes bytes = header_.bytes();
    file_.store().write(0, {&bytes, 1});
}

void Fat::extend(Chain& chain, const Chain& added) {
    if (added.isEmpty())
        return;
    link(added);
    if (chain.isEmpty()) {
        publish();
    } else {
        const SectorId tail = chain.last();
        setNext(tail, added.first());
        publish(tail);
    }
    chain.append(added);
}

} // namespace quillford::compound
