#pragma once

#include "base/Error.h"
#include "persistence/compound/Storage.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"
#include "support/MemoryByteStore.h"

#include <QByteArray>

#include <gtest/gtest.h>

/// What the tests of compound files say again and again.

/// The number of the `Error` that `call` raises; 0 when it raises none.
template <typename Call>
qint64 errorOf(Call call) {
    try {
        call();
    } catch (const quillford::Error& error) {
        return error.number();
    }
    return 0;
}

/// A compound file in memory.
struct MemoryCompound {
    std::shared_ptr<MemoryFile> file = std::make_shared<MemoryFile>();

    /// A file of its own that holds `bytes`.
    [[nodiscard]] static MemoryCompound of(const std::vector<std::byte>& bytes) {
        MemoryCompound compound;
        compound.file->bytes = bytes;
        return compound;
    }

    [[nodiscard]] quillford::Storage create() const {
        return quillford::Storage::createRoot(std::make_unique<MemoryByteStore>(file),
                                              QStringLiteral("memory"));
    }

    [[nodiscard]] quillford::Storage open() const {
        return quillford::Storage::openRoot(std::make_unique<MemoryByteStore>(file),
                                            QStringLiteral("memory"));
    }
};

/// `length` bytes that differ for each `seed`.
[[nodiscard]] QByteArray testBytes(qsizetype length, int seed);

/// Makes or opens the stream and writes `bytes` from its start.
void writeStream(quillford::Storage& storage, const QString& name, const QByteArray& bytes);

/// The whole stream, which is closed before and after.
[[nodiscard]] QByteArray readStream(quillford::Storage& storage, const QString& name);

constexpr qint32 Mode = quillford::StorageMode::Exclusive;
