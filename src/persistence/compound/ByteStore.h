#pragma once

#include <QtGlobal>

#include <cstddef>
#include <span>

namespace quillford {

using Bytes = std::span<const std::byte>;
using MutableBytes = std::span<std::byte>;

/// The bytes under a compound file: a file on disk, or in tests a block of memory. One store has
/// one user; it is locked against everybody else for as long as it lives. Offsets and sizes are in
/// bytes. Every failure is raised as an `Error` of this layer.
class ByteStore {
public:
    virtual ~ByteStore() = default;

    /// The number of bytes there are now.
    [[nodiscard]] virtual quint64 size() = 0;

    /// Fills `into` from `offset` on and gives the number of bytes read, which is less than asked
    /// for only at the end of the store.
    [[nodiscard]] virtual std::size_t read(quint64 offset, MutableBytes into) = 0;

    /// Writes the parts one behind the other from `offset` on, as one write. Bytes between the old
    /// end and `offset` become zero. After a failure any first part of the bytes may be written.
    virtual void write(quint64 offset, std::span<const Bytes> parts) = 0;

    /// Cuts the store down to `size` bytes.
    virtual void truncate(quint64 size) = 0;

    /// Returns when what was written stands on the disk.
    virtual void sync() = 0;
};

} // namespace quillford
