#include "persistence/compound/CompoundFile.h"

#include "persistence/compound/StorageError.h"

#include <array>
#include <utility>

namespace quillford::compound {

namespace {

constexpr std::size_t MostGathered = 65536;

} // namespace

CompoundFile::CompoundFile(std::unique_ptr<ByteStore> store) : store_(std::move(store)) {}

std::shared_ptr<OpenElement> CompoundFile::open(std::unique_ptr<ByteStore> store) {
    const std::shared_ptr<CompoundFile> file(new CompoundFile(std::move(store)));
    file->load();
    return file->openElement(RootEntry);
}

std::shared_ptr<OpenElement> CompoundFile::create(std::unique_ptr<ByteStore> store) {
    formatStore(*store);
    return open(std::move(store));
}

void CompoundFile::load() {
    volume_ = loadVolume(*store_);
    isStale_ = false;
}

Volume& CompoundFile::settled() {
    flush();
    if (isStale_) {
        load();
        revertLost();
    }
    return *volume_;
}

/// After a failed change an element may have gone from the file that was open.
void CompoundFile::revertLost() {
    std::vector<EntryId> lost;
    for (const auto& [id, element] : open_) {
        if (id >= volume_->directory.size() || !volume_->directory.isReached(id))
            lost.push_back(id);
    }
    revert(lost);
}

void CompoundFile::write(const OpenElement& stream, quint64 position, Bytes bytes) {
    const bool continues =
        gathered_.stream == stream.id() && gathered_.position + gathered_.bytes.size() == position;
    if (!continues)
        flush();
    if (gathered_.bytes.size() + bytes.size() < MostGathered) {
        if (!continues)
            gathered_ = {stream.id(), position, {}};
        gathered_.bytes.insert(gathered_.bytes.end(), bytes.begin(), bytes.end());
        return;
    }
    const Gathered before = std::exchange(gathered_, {});
    const std::array<Bytes, 2> parts = {Bytes(before.bytes), bytes};
    writeNow(stream.id(), continues ? before.position : position, parts);
}

void CompoundFile::flush() {
    if (gathered_.stream == NoEntry)
        return;
    const Gathered before = std::exchange(gathered_, {});
    const Bytes part(before.bytes);
    writeNow(before.stream, before.position, {&part, 1});
}

void CompoundFile::writeNow(EntryId stream, quint64 position, std::span<const Bytes> parts) {
    change([&](Volume& volume) {
        if (!isOpen(stream))
            throw storageError(StorageCode::Reverted);
        StreamContent(volume).write(stream, position, parts);
        return true;
    });
}

void CompoundFile::sync() {
    flush();
    store_->sync();
}

void CompoundFile::keep(const Error& failure) {
    if (!kept_)
        kept_ = failure;
}

void CompoundFile::raiseKept() {
    if (const std::optional<Error> failure = std::exchange(kept_, std::nullopt))
        throw Error(*failure);
}

std::shared_ptr<OpenElement> CompoundFile::openElement(EntryId id) {
    if (isOpen(id))
        throw storageError(StorageCode::AccessDenied);
    auto element = std::make_shared<OpenElement>(shared_from_this(), id);
    open_[id] = element;
    return element;
}

bool CompoundFile::isOpen(EntryId id) const {
    return open_.contains(id);
}

void CompoundFile::revert(const std::vector<EntryId>& ids) {
    for (const EntryId id : ids) {
        const auto found = open_.find(id);
        if (found == open_.end())
            continue;
        if (const auto element = found->second.lock())
            element->isReverted_ = true;
        open_.erase(found);
    }
}

void CompoundFile::released(const OpenElement& element) {
    if (element.isRoot() || gathered_.stream == element.id()) {
        try {
            flush();
        } catch (const Error& failure) {
            // A release has nobody to raise to; the next call on a storage of the file does it.
            keep(failure);
        }
    }
    if (element.isReverted_)
        return;
    open_.erase(element.id());
    if (!element.isRoot())
        return;
    std::vector<EntryId> left;
    for (const auto& [id, other] : open_)
        left.push_back(id);
    revert(left);
}

OpenElement::OpenElement(std::shared_ptr<CompoundFile> file, EntryId id)
    : file_(std::move(file)), id_(id) {}

OpenElement::~OpenElement() {
    file_->released(*this);
}

CompoundFile& OpenElement::file() const {
    if (isReverted_)
        throw storageError(StorageCode::Reverted);
    return *file_;
}

} // namespace quillford::compound
