#pragma once

#include "persistence/compound/VBSTATSTG.h"

#include <vector>

namespace quillford {

/// The elements of a storage in the order of their names, as they were when they were listed. A
/// range-based loop goes over the items.
class StorageElements {
public:
    [[nodiscard]] qint32 Count() const { return static_cast<qint32>(items_.size()); }

    /// The item at the one-based position `index`. Raises number 9 for a position that there is
    /// not.
    [[nodiscard]] const VBSTATSTG& Item(qint32 index) const;

    /// Appends an item. For this layer alone.
    void AddElement(VBSTATSTG element);

    [[nodiscard]] auto begin() const { return items_.begin(); }

    [[nodiscard]] auto end() const { return items_.end(); }

private:
    std::vector<VBSTATSTG> items_;
};

} // namespace quillford
