#pragma once

#include "persistence/compound/CompoundFile.h"
#include "persistence/compound/VBSTATSTG.h"

#include <memory>

namespace quillford::compound {

/// What a wrapper is bound to: the open element, how it may be used, and the snapshot that was
/// taken of it.
struct ElementBinding {
    std::shared_ptr<OpenElement> element;
    bool mayRead = true;
    bool mayWrite = true;
    VBSTATSTG stat;
};

/// The snapshot of an element as it is now. `rootName` is the name of the root.
[[nodiscard]] VBSTATSTG describe(const Volume& volume, EntryId id, const QString& rootName = {});

/// Raises `InvalidFlag` unless `mode` is an access with exclusive sharing and, beside it, no flag
/// but those in `allowed`.
void requireElementMode(qint32 mode, qint32 allowed);

/// Raises `InvalidName` unless `name` can be the name of an element: 1 to 31 code units, none of
/// them `/ \ : !` or 0.
void requireElementName(const QString& name);

} // namespace quillford::compound
