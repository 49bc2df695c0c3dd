#pragma once

#include "persistence/compound/Directory.h"

#include <vector>

namespace quillford::compound {

/// What a walk over one storage's tree, as it stands in the file, has found.
struct TreeWalk {
    std::vector<EntryId> inOrder; ///< every entry that can be reached, each once
    bool isCutOff = false;        ///< a link led out of the directory or to an entry met before
    bool isWellFormed = true;     ///< names ascend, no red under red, equal blacks on every way
};

/// Walks the tree under `storage`, marks its entries in `reached` and notes for each of them the
/// entry above it. An entry that is marked already is not entered again, so that loops end.
[[nodiscard]] TreeWalk walkTree(Directory& directory, std::vector<bool>& reached, EntryId storage);

} // namespace quillford::compound
