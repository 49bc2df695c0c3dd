#include "persistence/compound/StreamContent.h"

#include "persistence/compound/StorageError.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillford::compound {

namespace {

constexpr std::size_t ZeroBlock = 65536;
constexpr std::size_t ZeroBlocksAtOnce = 16;

Bytes zeros() {
    static const std::array<std::byte, ZeroBlock> block{};
    return block;
}

quint64 totalOf(std::span<const Bytes> parts) {
    quint64 total = 0;
    for (const Bytes part : parts)
        total += part.size();
    return total;
}

quint32 miniSectorsFor(quint64 bytes) {
    return static_cast<quint32>((bytes + MiniSectorSize - 1) / MiniSectorSize);
}

} // namespace

quint64 StreamContent::readableSize(EntryId stream) const {
    const quint64 unit = volume_.isMini(stream) ? MiniSectorSize : volume_.file.sectorSize();
    return std::min(volume_.sizeOf(stream), volume_.chains[stream].length() * unit);
}

std::size_t StreamContent::read(EntryId stream, quint64 position, MutableBytes into) const {
    const quint64 size = readableSize(stream);
    if (position >= size)
        return 0;
    into = into.first(std::min<quint64>(into.size(), size - position));
    const Chain& chain = volume_.chains[stream];
    const SectorFile& file = volume_.file;
    return file.read(volume_.isMini(stream)
                         ? file.miniExtents(volume_.mini.container(), chain, position, into.size())
                         : file.extents(chain, position, into.size()),
                     into);
}

void StreamContent::requireRoomFor(quint64 size) const {
    volume_.requireSound();
    const quint64 most = volume_.header.hasLargeSectors()
                             ? quint64{LargestSector} << LargeSectorShift
                             : LargestSmallSectorStream;
    if (size > most)
        throw storageError(StorageCode::DocumentTooLarge);
}

void StreamContent::write(EntryId stream, quint64 position, std::span<const Bytes> parts) {
    const quint64 length = totalOf(parts);
    if (length == 0)
        return;
    const quint64 size = volume_.sizeOf(stream);
    requireRoomFor(position + length);
    if (position > size)
        fillWithZeros(stream, size, position);
    const quint64 end = std::max(size, position + length);
    if (end < MiniStreamCutoff)
        writeMini(stream, position, parts, end);
    else if (volume_.isMini(stream))
        moveToSectors(stream, position, parts, end);
    else
        writeSectors(stream, position, parts, end);
}

void StreamContent::fillWithZeros(EntryId stream, quint64 from, quint64 to) {
    while (from < to) {
        std::vector<Bytes> parts;
        for (std::size_t i = 0; i < ZeroBlocksAtOnce && from < to; ++i) {
            parts.push_back(zeros().first(std::min<quint64>(ZeroBlock, to - from)));
            from += parts.back().size();
        }
        write(stream, from - totalOf(parts), parts);
    }
}

/// Writes `parts` and fills what the extents hold beyond them with zeros, so that no sector taken
/// anew shows what stood in it before.
void StreamContent::writePadded(const Extents& extents, std::span<const Bytes> parts) {
    quint64 room = 0;
    for (const Extent& extent : extents)
        room += extent.length;
    std::vector<Bytes> padded(parts.begin(), parts.end());
    for (quint64 rest = room - totalOf(parts); rest > 0; rest -= padded.back().size())
        padded.push_back(zeros().first(std::min<quint64>(ZeroBlock, rest)));
    volume_.file.write(extents, padded);
}

void StreamContent::writeMini(EntryId stream, quint64 position, std::span<const Bytes> parts,
                              quint64 end) {
    Chain& chain = volume_.chains[stream];
    const quint32 needed = miniSectorsFor(end);
    Chain added;
    if (needed > chain.length())
        added = volume_.mini.allocate(needed - chain.length());
    Chain whole = chain;
    whole.append(added);
    const quint64 room =
        added.isEmpty() ? totalOf(parts) : quint64{needed} * MiniSectorSize - position;
    Extents extents = volume_.file.miniExtents(volume_.mini.container(), whole, position, room);
    for (const Extent& rest : volume_.mini.unusedRest())
        addExtent(extents, rest);
    writePadded(extents, parts);
    volume_.mini.extend(chain, added);
    commitEntry(stream, end);
}

void StreamContent::writeSectors(EntryId stream, quint64 position, std::span<const Bytes> parts,
                                 quint64 end) {
    Chain& chain = volume_.chains[stream];
    const quint32 needed = volume_.file.sectorsFor(end);
    Chain added;
    if (needed > chain.length())
        added = volume_.fat.allocate(needed - chain.length());
    Chain whole = chain;
    whole.append(added);
    const quint64 room =
        added.isEmpty() ? totalOf(parts) : quint64{needed} * volume_.file.sectorSize() - position;
    writePadded(volume_.file.extents(whole, position, room), parts);
    volume_.fat.extend(chain, added);
    commitEntry(stream, end);
}

void StreamContent::moveToSectors(EntryId stream, quint64 position, std::span<const Bytes> parts,
                                  quint64 end) {
    std::vector<std::byte> before(position);
    before.resize(read(stream, 0, before));
    std::vector<Bytes> whole{before};
    whole.insert(whole.end(), parts.begin(), parts.end());
    const Chain old = std::exchange(volume_.chains[stream], {});
    writeSectors(stream, 0, whole, end);
    volume_.mini.release(old);
}

void StreamContent::moveToMini(EntryId stream, quint64 size) {
    std::vector<std::byte> kept(size);
    kept.resize(read(stream, 0, kept));
    const Bytes whole(kept);
    const Chain old = std::exchange(volume_.chains[stream], {});
    writeMini(stream, 0, {&whole, 1}, size);
    volume_.fat.release(old);
}

void StreamContent::resize(EntryId stream, quint64 size) {
    requireRoomFor(size);
    const quint64 old = volume_.sizeOf(stream);
    if (size > old)
        fillWithZeros(stream, old, size);
    else if (size == 0 && old > 0)
        empty(stream);
    else if (size < MiniStreamCutoff && !volume_.isMini(stream))
        moveToMini(stream, size);
    else if (size < old)
        cut(stream, size);
}

void StreamContent::empty(EntryId stream) {
    const bool wasMini = volume_.isMini(stream);
    const Chain old = std::exchange(volume_.chains[stream], {});
    commitEntry(stream, 0);
    if (wasMini)
        volume_.mini.release(old);
    else
        volume_.fat.release(old);
}

void StreamContent::cut(EntryId stream, quint64 size) {
    commitEntry(stream, size);
    if (volume_.isMini(stream))
        volume_.mini.cut(volume_.chains[stream], miniSectorsFor(size));
    else
        volume_.fat.cut(volume_.chains[stream], volume_.file.sectorsFor(size));
}

/// Makes the directory tell the stream's chain and size as they are now.
void StreamContent::commitEntry(EntryId stream, quint64 size) {
    const SectorId first = volume_.chains[stream].firstOrEnd();
    const DirectoryEntry& record = volume_.directory.at(stream);
    if (record.firstSector() == first && volume_.sizeOf(stream) == size)
        return;
    DirectoryEntry& changed = volume_.directory.change(stream);
    changed.setFirstSector(first);
    changed.setSize(size);
    volume_.directory.commit();
}

} // namespace quillford::compound
