#pragma once

#include <QString>

#include <vector>

namespace quillford {

/// A block as it stands in the text of its parent.
struct FoundBlock {
    QString whole; ///< marks included
    QString body;  ///< what stands between them
};

/// Every place of the text that the block's regular expression finds, from the first begin mark to
/// the last end mark, whatever the case of their letters. The name is part of the expression and is
/// not escaped. Raises `Error` with the source `errorSource` for a name that makes no expression.
[[nodiscard]] std::vector<FoundBlock> findBlocks(const QString& text, const QString& name,
                                                 const QString& errorSource);

} // namespace quillford
