#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/compound/FieldValue.h"
#include "persistence/compound/StorableObject.h"
#include "persistence/compound/VBSTATSTG.h"

#include <QByteArray>

#include <memory>

namespace quillford {

namespace compound {
class CompoundFile;
struct ElementBinding;
} // namespace compound

/// A stream of a compound file, with a position from which it is read and written.
///
/// Copies of a `Stream` are the same wrapper and share its position; `Clone` gives another one. The
/// element is closed when the last wrapper goes. Use after the last wrapper of the file's root has
/// gone, or after the element was destroyed, raises `Reverted` (0x80030102). A stream opened for
/// reading alone raises `AccessDenied` when it is written, and the reverse.
///
/// Sizes and positions are plain 64-bit counts of bytes, and counts of the platform's interface in
/// currency become these. Writes may be gathered: see `Storage`.
class Stream {
public:
    /// Another wrapper of the same stream, at the same position.
    [[nodiscard]] Stream Clone() const;

    /// Brings all that was written to the file. `flags` make no difference.
    void Commit(qint32 flags);

    /// Copies up to `count` bytes from here to `dest`, both at their positions and both advancing,
    /// and gives the number of bytes read: fewer where this stream ends. Raises 0x80040000 without
    /// a text when not all of them could be written.
    [[nodiscard]] qint64 CopyTo(Stream& dest, qint64 count);

    /// Has no effect: a file that is worked on directly has nothing to go back to.
    void Revert();

    /// Cuts the stream, or lengthens it with zeros. The position stays.
    void SetSize(qint64 size);

    /// Makes `buffer` `count` bytes long, fills it from the position on, and gives the number of
    /// bytes read; the bytes that the stream does not have are zero. Raises number 9 for a negative
    /// count and `InsufficientMemory` when far more is asked for than there is.
    qint32 ReadBuf(QByteArray& buffer, qint32 count);

    /// Reads an object that `WriteObject` wrote; nothing when it wrote nothing. The object is made
    /// by `registry` and belongs to the caller. Raises the registry's error, and `NoInterface` when
    /// the object cannot be read.
    [[nodiscard]] std::shared_ptr<StorableObject> ReadObject(const ObjectRegistry& registry);

    /// Reads a value of the type `varType` (a `FieldType`). Past the end this is 0, false or the
    /// empty string; a string that is cut off has its full length, the rest of it zero characters.
    /// Raises `InsufficientMemory` when the length of a string is far more than there is. An
    /// unknown type reads nothing and gives the empty value.
    [[nodiscard]] FieldValue ReadData(qint32 varType);

    /// Sets the position, counted from the start; it may lie behind the end. Gives the position.
    /// Raises `InvalidFunction` for a negative one.
    qint64 SSeek(qint64 offset);

    /// What the stream was when the wrapper was bound: its size does not follow later writes.
    [[nodiscard]] const VBSTATSTG& Stat() const;

    /// Writes the whole array and gives the number of bytes written. A failed write gives 0 and is
    /// raised by the next call on a storage of the file. A null array, which has no bounds, raises
    /// number 9.
    qint32 WriteBuf(const QByteArray& buffer);

    /// Writes a value in its encoding (FieldEncoding.h) and gives the number of bytes of the last
    /// write, which for a string leaves out the count. An empty value writes nothing and gives 0.
    qint32 WriteData(const FieldValue& value);

    /// Writes an object, which may be nothing. Raises 0x80004002 when it cannot be stored.
    void WriteObject(const std::shared_ptr<StorableObject>& value);

    /// Reads into `into` and gives the number of bytes read, 0 at the end and behind it.
    [[nodiscard]] std::size_t read(MutableBytes into);

    /// Writes the bytes and gives their number.
    std::size_t write(Bytes bytes);

    /// Raises `InsufficientMemory` when `length` is over 32 MB more than the stream still holds:
    /// a damaged length must not take the memory of the machine.
    void requireMemoryFor(qint64 length) const;

private:
    struct State;

    explicit Stream(std::shared_ptr<const compound::ElementBinding> binding);

    [[nodiscard]] compound::CompoundFile& enterToRead() const;
    [[nodiscard]] compound::CompoundFile& enterToWrite() const;
    [[nodiscard]] quint64 sizeNow() const;

    std::shared_ptr<State> state_;

    friend class Storage;
};

} // namespace quillford
