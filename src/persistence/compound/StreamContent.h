#pragma once

#include "persistence/compound/Volume.h"

namespace quillford::compound {

/// The bytes of the streams of a volume. Each call that writes goes to the file at once, in the
/// order that leaves the file whole after every single write: bytes, tables from the part that
/// nobody reaches yet to the link, the directory entry, and then what is freed.
///
/// After an `Error` from a write the volume in memory may differ from the file; load it anew.
class StreamContent {
public:
    explicit StreamContent(Volume& volume) : volume_(volume) {}

    /// The size of the stream; where a damaged file has less of it than it tells, what there is.
    [[nodiscard]] quint64 readableSize(EntryId stream) const;

    /// Fills `into` from `position` on and gives the number of bytes read; fewer, or none, at the
    /// end of the stream or where a damaged file has no more of it.
    [[nodiscard]] std::size_t read(EntryId stream, quint64 position, MutableBytes into) const;

    /// Writes the parts one behind the other from `position` on. The stream grows as needed; a gap
    /// behind its old end is filled with zeros. Raises `DocumentTooLarge`, `DocumentCorrupt` and
    /// what the byte store raises.
    void write(EntryId stream, quint64 position, std::span<const Bytes> parts);

    /// Cuts the stream or fills it up with zeros to `size` bytes; raises as `write`.
    void resize(EntryId stream, quint64 size);

private:
    void requireRoomFor(quint64 size) const;
    void fillWithZeros(EntryId stream, quint64 from, quint64 to);
    void writeMini(EntryId stream, quint64 position, std::span<const Bytes> parts, quint64 end);
    void writeSectors(EntryId stream, quint64 position, std::span<const Bytes> parts, quint64 end);
    void moveToSectors(EntryId stream, quint64 position, std::span<const Bytes> parts, quint64 end);
    void moveToMini(EntryId stream, quint64 size);
    void empty(EntryId stream);
    void cut(EntryId stream, quint64 size);
    void writePadded(const Extents& extents, std::span<const Bytes> parts);
    void commitEntry(EntryId stream, quint64 size);

    Volume& volume_;
};

} // namespace quillford::compound
