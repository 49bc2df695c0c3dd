#include "persistence/compound/StorageElements.h"

#include "persistence/compound/StorageError.h"

#include <utility>

namespace quillford {

const VBSTATSTG& StorageElements::Item(qint32 index) const {
    if (index < 1 || index > Count())
        throw Error(SubscriptNumber, QStringLiteral("Subscript out of range"));
    return items_[static_cast<std::size_t>(index - 1)];
}

void StorageElements::AddElement(VBSTATSTG element) {
    items_.push_back(std::move(element));
}

} // namespace quillford
