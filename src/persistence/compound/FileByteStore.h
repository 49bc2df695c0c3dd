#pragma once

#include "persistence/compound/ByteStore.h"

#include <QString>

#include <memory>

namespace quillford {

/// A file, open for reading and writing and locked exclusively. The lock belongs to the open file
/// and not to the process, so that a second open is refused within the same process as well.
class FileByteStore final : public ByteStore {
public:
    /// Opens the existing regular file `path`, which keeps its name for as long as it is open where
    /// all who replace it hold its lock meanwhile. Raises `FileNotFound`, `PathNotFound`,
    /// `AccessDenied` or `ShareViolation`.
    [[nodiscard]] static std::unique_ptr<FileByteStore> open(const QString& path);

    /// Makes an empty file for the free place `path` (`FileAlreadyExists` otherwise). Nobody finds
    /// it there before `giveName`: so a program that is stopped in between leaves nothing that is
    /// no compound file and blocks the name. On a file system that has no files without a name it
    /// stands there at once and is taken away again unless `giveName` is called.
    [[nodiscard]] static std::unique_ptr<FileByteStore> create(const QString& path);

    /// Puts a file that `create` made into its place. Raises `FileAlreadyExists` when somebody else
    /// was faster.
    void giveName();

    FileByteStore(const FileByteStore&) = delete;
    FileByteStore& operator=(const FileByteStore&) = delete;
    ~FileByteStore() override;

    [[nodiscard]] quint64 size() override;
    [[nodiscard]] std::size_t read(quint64 offset, MutableBytes into) override;
    void write(quint64 offset, std::span<const Bytes> parts) override;
    void truncate(quint64 size) override;
    void sync() override;

private:
    enum class Place { Named, Unnamed, Provisional };

    FileByteStore(QString path, int descriptor, Place place);

    void lockRegularFile();
    [[nodiscard]] bool standsInPlace() const;

    QString path_;
    int descriptor_;
    Place place_;
};

} // namespace quillford
