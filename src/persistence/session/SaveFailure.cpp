#include "persistence/session/SaveFailure.h"

#include "persistence/compound/StorageError.h"

namespace quillford {

QString briefReason(const Error& failure) {
    if (failure.number() == FileAlreadyExistsNumber)
        return QStringLiteral("file damaged");
    switch (static_cast<StorageCode>(failure.number())) {
    case StorageCode::MediumFull:
        return QStringLiteral("disk full");
    case StorageCode::AccessDenied:
        return QStringLiteral("no access");
    case StorageCode::ShareViolation:
        return QStringLiteral("file in use");
    case StorageCode::PathNotFound:
        return QStringLiteral("no folder");
    case StorageCode::InvalidHeader:
    case StorageCode::DocumentCorrupt:
        return QStringLiteral("file damaged");
    default:
        return failure.description();
    }
}

} // namespace quillford
