#pragma once

#include "persistence/compound/ByteStore.h"

#include <QString>

#include <memory>

namespace quillford {

/// A file, open for reading and writing and locked exclusively. The lock belongs to the open file
/// and not to the process, so that a second open is refused within the same process as well.
class FileByteStore final : public ByteStore {
public:
    /// Opens the existing regular file `path`. Raises `FileNotFound`, `PathNotFound`,
    /// `AccessDenied` or `ShareViolation`.
    [[nodiscard]] static std::unique_ptr<FileByteStore> open(const QString& path);

    /// Makes the file `path`, which must not exist (`FileAlreadyExists`); it is empty.
    [[nodiscard]] static std::unique_ptr<FileByteStore> create(const QString& path);

    FileByteStore(const FileByteStore&) = delete;
    FileByteStore& operator=(const FileByteStore&) = delete;
    ~FileByteStore() override;

    [[nodiscard]] quint64 size() override;
    [[nodiscard]] std::size_t read(quint64 offset, MutableBytes into) override;
    void write(quint64 offset, std::span<const Bytes> parts) override;
    void truncate(quint64 size) override;
    void sync() override;

private:
    FileByteStore(QString path, int flags);

    void lockRegularFile();

    QString path_;
    int descriptor_;
};

} // namespace quillford
