#include "persistence/project/PropertyBytes.h"

#include "persistence/compound/StorageError.h"

namespace quillford::propertyset {

void raiseDamaged(const QString& fault, std::size_t offset) {
    throw Error(static_cast<qint64>(StorageCode::DocumentCorrupt),
                QStringLiteral("The property set is damaged: %1.").arg(fault), {},
                static_cast<qint64>(offset));
}

} // namespace quillford::propertyset
