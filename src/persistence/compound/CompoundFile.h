#pragma once

#include "base/Error.h"
#include "persistence/compound/ElementTree.h"
#include "persistence/compound/StreamContent.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quillford::compound {

class OpenElement;

/// One open compound file, shared by all wrappers of its elements; the file is closed when the last
/// of them goes. It knows which elements are open, gathers consecutive writes, and loads the tables
/// anew after a write has failed.
class CompoundFile : public std::enable_shared_from_this<CompoundFile> {
public:
    /// Opens the compound file in the store. Raises as `loadVolume`.
    [[nodiscard]] static std::shared_ptr<OpenElement> open(std::unique_ptr<ByteStore> store);

    /// Makes the store a new, empty compound file and opens it.
    [[nodiscard]] static std::shared_ptr<OpenElement> create(std::unique_ptr<ByteStore> store);

    /// The tables, to be looked at; what was gathered is written before.
    [[nodiscard]] Volume& settled();

    /// Runs `change` on the settled tables. An `Error` from it leaves them to be loaded anew.
    template <typename Change>
    auto change(Change change) {
        Volume& volume = settled();
        volume.requireSound();
        isStale_ = true;
        const auto made = change(volume);
        isStale_ = false;
        return made;
    }

    /// Writes `bytes` into a stream, perhaps later: consecutive writes are gathered up to 64 KB.
    void write(const OpenElement& stream, quint64 position, Bytes bytes);

    /// Writes what is gathered.
    void flush();

    void sync();

    /// Keeps a failure that could not be raised where it happened, unless one is kept already.
    void keep(const Error& failure);

    /// Raises the failure that was kept, once.
    void raiseKept();

    /// Opens an element. Raises `AccessDenied` when it is open already.
    [[nodiscard]] std::shared_ptr<OpenElement> openElement(EntryId id);

    [[nodiscard]] bool isOpen(EntryId id) const;

    /// From now on every use of the elements raises `Reverted`.
    void revert(const std::vector<EntryId>& ids);

private:
    struct Gathered {
        EntryId stream = NoEntry;
        quint64 position = 0;
        std::vector<std::byte> bytes;
    };

    explicit CompoundFile(std::unique_ptr<ByteStore> store);

    void load();
    void revertLost();
    void writeNow(EntryId stream, quint64 position, std::span<const Bytes> parts);
    void released(const OpenElement& element);

    std::unique_ptr<ByteStore> store_;
    std::unique_ptr<Volume> volume_;
    bool isStale_ = false;
    Gathered gathered_;
    std::optional<Error> kept_;
    std::map<EntryId, std::weak_ptr<OpenElement>> open_;

    friend class OpenElement;
};

/// An element that is open: shared by the wrappers that stand for it. When the root's goes, what is
/// still gathered is written and all other elements of the file are reverted.
class OpenElement {
public:
    OpenElement(std::shared_ptr<CompoundFile> file, EntryId id);
    OpenElement(const OpenElement&) = delete;
    OpenElement& operator=(const OpenElement&) = delete;
    ~OpenElement();

    /// The file. Raises `Reverted` when the element is no longer there.
    [[nodiscard]] CompoundFile& file() const;

    [[nodiscard]] EntryId id() const { return id_; }

    [[nodiscard]] bool isRoot() const { return id_ == RootEntry; }

    [[nodiscard]] bool isOfSameFile(const OpenElement& other) const { return file_ == other.file_; }

private:
    std::shared_ptr<CompoundFile> file_;
    EntryId id_;
    bool isReverted_ = false;

    friend class CompoundFile;
};

} // namespace quillford::compound
