#pragma once

#include "base/Error.h"
#include "persistence/compound/StorageElements.h"
#include "persistence/compound/Stream.h"

#include <memory>
#include <optional>

namespace quillford {

class ByteStore;

/// A storage of a compound file: its root, or a named storage within it.
///
/// Copies of a `Storage` are the same wrapper; the element is closed when the last one goes, and
/// with the last wrapper of any element the file. When the last wrapper of the root goes, all other
/// elements of the file raise `Reverted` (0x80030102) from then on.
///
/// The file is worked on directly: nothing is undone. Bytes written to streams may be gathered for
/// a while; they have reached the file when another element is made or opened, when a stream is
/// read or its position set, on `Commit`, or on release. A failure that had nobody to go to (a
/// release, `Stream::WriteBuf`) is raised by the next call on a storage of the same file.
///
/// Modes are `StorageMode` flags; an element's has exclusive sharing (`InvalidFlag` otherwise).
/// Names are compared without case and have 1 to 31 code units without `/ \ : !` (`InvalidName`).
/// Every call raises `Error`s of the file (disk full 0x80030070, failed write 0x8003001D, damaged
/// file 0x80030109), and on a storage bound to nothing the error that left it so.
class Storage {
public:
    /// Bound to nothing; every use raises `reason`.
    Storage();
    explicit Storage(Error reason);

    /// Brings all that was written to the file. `flags` make no difference.
    void Commit(qint32 flags);

    /// Makes a storage, or opens the one that is there. Raises `AccessDenied` when it is open, and
    /// `FileNotFound` when the name is that of a stream. With `StorageMode::Create` what is there
    /// is replaced.
    [[nodiscard]] Storage CreateStorage(const QString& name, qint32 mode);

    /// The same for a stream. An old stream keeps its bytes and is positioned at 0.
    [[nodiscard]] Stream CreateStream(const QString& name, qint32 mode);

    /// Takes the element, with all below it, out of the file; wrappers of it raise `Reverted`.
    /// Raises `FileNotFound`.
    void DestroyElement(const QString& name);

    [[nodiscard]] StorageElements Elements();

    /// Moves the element (flags `StorageMode::Move`) or copies it (`Copy`) into `dest`, which may
    /// be of another file, under `newName`. Raises `FileNotFound`, `FileAlreadyExists` when the new
    /// name is taken, and `AccessDenied` when the element is open or `dest` lies within it.
    void MoveElementTo(const QString& name, Storage& dest, const QString& newName, qint32 flags);

    /// Open what is there. Raise `FileNotFound` when there is no such element or it is of the other
    /// kind, and `AccessDenied` when it is open.
    [[nodiscard]] Storage OpenStorage(const QString& name, qint32 mode);
    [[nodiscard]] Stream OpenStream(const QString& name, qint32 mode);

    /// Raises `FileNotFound`, `FileAlreadyExists` when the new name is taken, and `AccessDenied`
    /// when the element is open.
    void RenameElement(const QString& oldName, const QString& newName);

    /// Has no effect: a file that is worked on directly has nothing to go back to.
    void Revert();

    /// What the storage was when the wrapper was bound.
    [[nodiscard]] const VBSTATSTG& Stat() const;

    /// Brings all that was written to the disk itself and returns when it stands there. For a save
    /// that the user asked for; far slower than `Commit`.
    void Sync();

    /// The root of the compound file in `store`; `name` is what its `Stat` tells. Raise as
    /// `mdlStorage`'s functions.
    [[nodiscard]] static Storage openRoot(std::unique_ptr<ByteStore> store, const QString& name);
    [[nodiscard]] static Storage createRoot(std::unique_ptr<ByteStore> store, const QString& name);

private:
    explicit Storage(std::shared_ptr<const compound::ElementBinding> binding);

    [[nodiscard]] const compound::ElementBinding& binding() const;
    [[nodiscard]] compound::CompoundFile& enter() const;
    [[nodiscard]] quint32 idOf(const QString& name) const;
    void requireWritable() const;
    void requireFree(const QString& name) const;
    void requireClosed(quint32 element) const;

    [[nodiscard]] std::shared_ptr<compound::ElementBinding> openElement(const QString& name,
                                                                        qint32 mode, bool stream);
    [[nodiscard]] std::shared_ptr<compound::ElementBinding> createOrOpen(const QString& name,
                                                                         qint32 mode, bool stream);

    std::shared_ptr<const compound::ElementBinding> binding_;
    std::optional<Error> reason_;
};

} // namespace quillford
