#include "persistence/session/ReasonNotSaved.h"

#include "base/Files.h"
#include "persistence/compound/StorageError.h"

namespace quillford {

QString reasonNotSaved(const QString& path, const Error& failure) {
    if (failure.number() == FileAlreadyExistsNumber)
        return QStringLiteral("file damaged");
    switch (static_cast<StorageCode>(failure.number())) {
    case StorageCode::MediumFull:
        return QStringLiteral("disk full");
    case StorageCode::ShareViolation:
        return QStringLiteral("file in use");
    case StorageCode::InvalidHeader:
    case StorageCode::DocumentCorrupt:
        return QStringLiteral("file damaged");
    default:
        return reasonNotWritten(path, failure);
    }
}

} // namespace quillford
