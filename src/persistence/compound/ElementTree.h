#pragma once

#include "persistence/compound/NameTree.h"
#include "persistence/compound/Volume.h"

namespace quillford::compound {

/// Makes, names, moves and destroys the elements of a volume. Each call becomes visible in the file
/// by one write; after an `Error` from it the volume must be loaded anew. The callers have made
/// sure that names are valid and free.
class ElementTree {
public:
    explicit ElementTree(Volume& volume) : volume_(volume) {}

    [[nodiscard]] std::optional<EntryId> find(EntryId storage, const QString& name) const;

    /// The elements of a storage in the order of their names.
    [[nodiscard]] std::vector<EntryId> elements(EntryId storage) const;

    /// The element and all that stands below it.
    [[nodiscard]] std::vector<EntryId> withDescendants(EntryId element) const;

    EntryId create(EntryId storage, const QString& name, Kind kind);

    /// Takes the element with all below it out of the file and frees what they held.
    void destroy(EntryId storage, EntryId element);

    /// Puts the element under `newName` into the storage `to`, which is not below it and may be
    /// the storage that it stands in.
    void move(EntryId storage, EntryId element, EntryId to, const QString& newName);

private:
    Volume& volume_;
};

} // namespace quillford::compound
