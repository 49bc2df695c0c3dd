#include "persistence/session/ReasonNotSaved.h"

#include "base/Files.h"
#include "persistence/compound/StorageError.h"

namespace quillford {

QString reasonNotSaved(const QString& path, const Error& failure) {
    if (failure.number() == FileAlreadyExistsNumber)
        return QStringLiteral("file damaged");
    // A picture of the project cannot be read, whatever becomes of the project's own file.
    if (failure.number() == SubscriptNumber)
        return failure.description();
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
