#include "support/MemoryByteStore.h"

#include "persistence/compound/StorageError.h"

#include <algorithm>

using namespace quillford;

std::size_t MemoryByteStore::read(quint64 offset, MutableBytes into) {
    const std::vector<std::byte>& bytes = file_->bytes;
    if (offset >= bytes.size())
        return 0;
    const std::size_t count = std::min<std::size_t>(into.size(), bytes.size() - offset);
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
    return count;
}

void MemoryByteStore::write(quint64 offset, std::span<const Bytes> parts) {
    const std::size_t number = file_->writes++;
    if (number == file_->failingWrite || (file_->failsForEver && number > file_->failingWrite)) {
        put(offset, parts, file_->writtenBeforeFail);
        throw storageError(StorageCode::WriteFault);
    }
    std::size_t total = 0;
    for (const Bytes part : parts)
        total += part.size();
    if (offset + total > file_->sizeLimit) {
        put(offset, parts, file_->sizeLimit - std::min<std::size_t>(offset, file_->sizeLimit));
        throw storageError(StorageCode::MediumFull);
    }
    put(offset, parts, total);
    file_->bytesWritten += total;
    if (file_->afterWrite)
        file_->afterWrite();
}

void MemoryByteStore::put(quint64 offset, std::span<const Bytes> parts, std::size_t most) {
    for (const Bytes part : parts) {
        const std::size_t count = std::min(most, part.size());
        if (count == 0)
            continue;
        if (file_->bytes.size() < offset + count)
            file_->bytes.resize(offset + count);
        std::copy_n(part.begin(), count,
                    file_->bytes.begin() + static_cast<std::ptrdiff_t>(offset));
        offset += count;
        most -= count;
    }
}
