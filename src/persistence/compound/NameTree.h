#pragma once

#include "persistence/compound/Directory.h"

#include <optional>
#include <vector>

namespace quillford::compound {

/// The elements of one storage as the format keeps them: a red-black tree ordered by `NameKey`,
/// whose links and colours stand in the directory entries. Works on the directory in memory; the
/// caller commits. The tree is well formed: the loader has rebuilt it where another writer's was
/// not.
class NameTree {
public:
    NameTree(Directory& directory, EntryId storage) : directory_(directory), storage_(storage) {}

    [[nodiscard]] std::optional<EntryId> find(const QString& name) const;

    /// All elements in their order.
    [[nodiscard]] std::vector<EntryId> elements() const;

    /// Adds an entry whose name is not there yet.
    void insert(EntryId id);

    /// Takes an entry of this tree out of it.
    void erase(EntryId id);

    /// Links the entries, which come in their order, as a balanced tree; their old links are lost.
    void rebuild(const std::vector<EntryId>& ordered);

private:
    [[nodiscard]] EntryId root() const { return directory_.at(storage_).child(); }

    [[nodiscard]] EntryId parent(EntryId id) const { return directory_.parent(id); }

    [[nodiscard]] EntryId side(EntryId id, bool left) const;
    [[nodiscard]] bool isRed(EntryId id) const;

    [[nodiscard]] bool isLeft(EntryId id) const { return side(parent(id), true) == id; }

    [[nodiscard]] NameKey keyOf(EntryId id) const;
    [[nodiscard]] EntryId leftmost(EntryId id) const;

    void setSide(EntryId id, bool left, EntryId child);
    void setRed(EntryId id, bool red);
    /// Puts `by` (perhaps nothing) into the place of `id` under the parent of `id`.
    void replace(EntryId id, EntryId by);
    void rotate(EntryId id, bool left);
    void balanceAfterInsert(EntryId id);
    void balanceAfterErase(EntryId id, EntryId parentOfId);
    EntryId link(const std::vector<EntryId>& ordered, std::size_t from, std::size_t to,
                 int redLevel);

    Directory& directory_;
    EntryId storage_;
};

} // namespace quillford::compound
