#include "persistence/compound/Header.h"

#include "base/ByteOrder.h"
#include "persistence/compound/StorageError.h"

#include <algorithm>

namespace quillford::compound {

namespace {

void require(bool condition, std::size_t place) {
    if (!condition)
        throw storageError(StorageCode::InvalidHeader, {}, static_cast<qint64>(place));
}

} // namespace

Header::Header() {
    std::copy(Signature.begin(), Signature.end(), raw_.begin());
    const MutableBytes raw(raw_);
    storeLittleEndian<quint16>(raw, header::MinorVersion, header::MinorVersionWritten);
    storeLittleEndian<quint16>(raw, header::MajorVersion, header::MajorVersionWritten);
    storeLittleEndian<quint16>(raw, header::ByteOrder, header::LittleEndianMark);
    storeLittleEndian<quint16>(raw, header::SectorShift, SectorShiftWritten);
    storeLittleEndian<quint16>(raw, header::MiniShift, MiniSectorShift);
    setField(header::FirstDirectorySector, EndOfChain);
    setField(header::Cutoff, MiniStreamCutoff);
    setField(header::FirstMiniFatSector, EndOfChain);
    setField(header::FirstDifatSector, EndOfChain);
    for (std::size_t i = 0; i < HeaderFatPlaces; ++i)
        setFatPlace(i, FreeSector);
}

Header Header::parse(Bytes bytes) {
    if (bytes.size() < Signature.size() ||
        !std::equal(Signature.begin(), Signature.end(), bytes.begin()))
        throw storageError(StorageCode::FileAlreadyExists, {}, 0);
    require(bytes.size() >= HeaderSize, bytes.size());
    Header parsed;
    std::copy_n(bytes.begin(), HeaderSize, parsed.raw_.begin());
    require(loadLittleEndian<quint16>(bytes, header::ByteOrder) == header::LittleEndianMark,
            header::ByteOrder);
    const int shift = parsed.sectorShift();
    require(shift == SectorShiftWritten || shift == LargeSectorShift, header::SectorShift);
    require(loadLittleEndian<quint16>(bytes, header::MiniShift) == MiniSectorShift,
            header::MiniShift);
    require(parsed.field(header::Cutoff) == MiniStreamCutoff, header::Cutoff);
    return parsed;
}

int Header::sectorShift() const {
    return loadLittleEndian<quint16>(raw_, header::SectorShift);
}

quint32 Header::field(std::size_t place) const {
    return loadLittleEndian<quint32>(raw_, place);
}

void Header::setField(std::size_t place, quint32 value) {
    storeLittleEndian<quint32>(raw_, place, value);
}

SectorId Header::fatPlace(std::size_t index) const {
    return field(header::FatPlaces + index * sizeof(SectorId));
}

void Header::setFatPlace(std::size_t index, SectorId sector) {
    setField(header::FatPlaces + index * sizeof(SectorId), sector);
}

} // namespace quillford::compound
