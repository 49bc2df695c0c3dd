#include "persistence/compound/Stream.h"

#include "persistence/compound/ElementBinding.h"
#include "persistence/compound/FieldEncoding.h"
#include "persistence/compound/StorageError.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillford {

using compound::CompoundFile;
using compound::ElementBinding;
using compound::StreamContent;
using compound::Volume;

namespace {

constexpr qint64 UnequalCounts = 0x80040000;
constexpr qint64 MemoryForWhatIsMissing = 32LL * 1024 * 1024;
constexpr qint64 CopiedAtOnce = 65536;

} // namespace

struct Stream::State {
    std::shared_ptr<const ElementBinding> binding;
    quint64 position = 0;
};

Stream::Stream(std::shared_ptr<const ElementBinding> binding)
    : state_(std::make_shared<State>(State{std::move(binding)})) {}

CompoundFile& Stream::enterToRead() const {
    CompoundFile& file = state_->binding->element->file();
    if (!state_->binding->mayRead)
        throw storageError(StorageCode::AccessDenied);
    return file;
}

CompoundFile& Stream::enterToWrite() const {
    CompoundFile& file = state_->binding->element->file();
    if (!state_->binding->mayWrite)
        throw storageError(StorageCode::AccessDenied);
    return file;
}

quint64 Stream::sizeNow() const {
    Volume& volume = state_->binding->element->file().settled();
    return StreamContent(volume).readableSize(state_->binding->element->id());
}

Stream Stream::Clone() const {
    (void)state_->binding->element->file();
    Stream clone(state_->binding);
    clone.state_->position = state_->position;
    return clone;
}

void Stream::Commit(qint32 /*flags*/) {
    CompoundFile& file = state_->binding->element->file();
    file.raiseKept();
    file.flush();
}

void Stream::Revert() {
    state_->binding->element->file().flush();
}

const VBSTATSTG& Stream::Stat() const {
    return state_->binding->stat;
}

qint64 Stream::SSeek(qint64 offset) {
    CompoundFile& file = state_->binding->element->file();
    if (offset < 0)
        throw storageError(StorageCode::InvalidFunction);
    file.flush();
    state_->position = static_cast<quint64>(offset);
    return offset;
}

void Stream::SetSize(qint64 size) {
    CompoundFile& file = enterToWrite();
    if (size < 0)
        throw storageError(StorageCode::InvalidFunction);
    const compound::EntryId id = state_->binding->element->id();
    file.change([&](Volume& volume) {
        StreamContent(volume).resize(id, static_cast<quint64>(size));
        return true;
    });
}

std::size_t Stream::read(MutableBytes into) {
    Volume& volume = enterToRead().settled();
    const std::size_t count =
        StreamContent(volume).read(state_->binding->element->id(), state_->position, into);
    state_->position += count;
    return count;
}

std::size_t Stream::write(Bytes bytes) {
    CompoundFile& file = enterToWrite();
    if (bytes.empty())
        return 0;
    file.write(*state_->binding->element, state_->position, bytes);
    state_->position += bytes.size();
    return bytes.size();
}

void Stream::requireMemoryFor(qint64 length) const {
    const quint64 size = sizeNow();
    const quint64 left = size > state_->position ? size - state_->position : 0;
    if (static_cast<quint64>(length) > left + MemoryForWhatIsMissing)
        throw storageError(StorageCode::InsufficientMemory);
}

qint32 Stream::ReadBuf(QByteArray& buffer, qint32 count) {
    (void)enterToRead();
    if (count < 0)
        throw Error(SubscriptNumber, QStringLiteral("Subscript out of range"));
    requireMemoryFor(count);
    // An array that is long enough and nobody else's is used again: fresh memory costs as much as
    // the reading itself.
    if (buffer.isDetached() && buffer.capacity() >= count)
        buffer.resize(count);
    else
        buffer = QByteArray(count, Qt::Uninitialized);
    const std::size_t done = read(std::as_writable_bytes(std::span(buffer)));
    std::fill(buffer.begin() + static_cast<qsizetype>(done), buffer.end(), '\0');
    return static_cast<qint32>(done);
}

qint32 Stream::WriteBuf(const QByteArray& buffer) {
    CompoundFile& file = enterToWrite();
    if (buffer.isNull())
        throw Error(SubscriptNumber, QStringLiteral("Subscript out of range"));
    try {
        return static_cast<qint32>(write(std::as_bytes(std::span(buffer))));
    } catch (const Error& failure) {
        file.keep(failure);
        return 0;
    }
}

qint64 Stream::CopyTo(Stream& dest, qint64 count) {
    const quint64 size = sizeNow();
    const quint64 left = size > state_->position ? size - state_->position : 0;
    const quint64 wanted = count < 0 ? 0 : static_cast<quint64>(count);
    auto missing = static_cast<qint64>(std::min(left, wanted));
    qint64 copied = 0;
    std::vector<std::byte> block(static_cast<std::size_t>(std::min(missing, CopiedAtOnce)));
    while (missing > 0) {
        const std::size_t got = read(MutableBytes(block).first(
            static_cast<std::size_t>(std::min<qint64>(missing, CopiedAtOnce))));
        const std::size_t written = dest.write(Bytes(block).first(got));
        copied += static_cast<qint64>(got);
        missing -= static_cast<qint64>(got);
        if (written != got)
            throw Error(UnequalCounts, QString());
        if (got == 0)
            break;
    }
    return copied;
}

FieldValue Stream::ReadData(qint32 varType) {
    return readField(*this, varType);
}

qint32 Stream::WriteData(const FieldValue& value) {
    return writeField(*this, value);
}

std::shared_ptr<StorableObject> Stream::ReadObject(const ObjectRegistry& registry) {
    return readObject(*this, registry);
}

void Stream::WriteObject(const std::shared_ptr<StorableObject>& value) {
    writeObject(*this, value);
}

} // namespace quillford
