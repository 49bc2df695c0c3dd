#pragma once

#include "persistence/compound/ByteStore.h"

#include <functional>
#include <memory>
#include <vector>

/// The memory twin of a file: its bytes, which outlive the stores that stand for it. It counts
/// writes, can fail at one of them, and tells a listener about each.
struct MemoryFile {
    static constexpr std::size_t Never = ~std::size_t{0};

    std::vector<std::byte> bytes;
    std::size_t writes = 0;            ///< number of writes so far
    std::size_t bytesWritten = 0;      ///< in all of them together
    std::size_t failingWrite = Never;  ///< the write with this number (from 0) fails
    bool failsForEver = false;         ///< so do all after it: a full disk
    std::size_t writtenBeforeFail = 0; ///< bytes of the failing write that still arrive
    std::size_t sizeLimit = Never;     ///< a write beyond this size finds the disk full
    std::function<void()> afterWrite;  ///< called after each write that succeeded
};

/// A store on a `MemoryFile`, which is locked for as long as the store lives.
class MemoryByteStore final : public quillford::ByteStore {
public:
    explicit MemoryByteStore(std::shared_ptr<MemoryFile> file) : file_(std::move(file)) {}

    [[nodiscard]] quint64 size() override { return file_->bytes.size(); }

    [[nodiscard]] std::size_t read(quint64 offset, quillford::MutableBytes into) override;
    void write(quint64 offset, std::span<const quillford::Bytes> parts) override;

    void truncate(quint64 size) override { file_->bytes.resize(size); }

    void sync() override {}

private:
    void put(quint64 offset, std::span<const quillford::Bytes> parts, std::size_t most);

    std::shared_ptr<MemoryFile> file_;
};
