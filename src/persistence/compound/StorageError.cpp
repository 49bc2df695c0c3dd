#include "persistence/compound/StorageError.h"

#include <QFileInfo>

#include <cerrno>

namespace quillford {

namespace {

QString sentence(StorageCode code) {
    switch (code) {
    case StorageCode::InvalidFunction:
        return QStringLiteral("The operation is not possible.");
    case StorageCode::FileNotFound:
        return QStringLiteral("The file or the element could not be found.");
    case StorageCode::PathNotFound:
        return QStringLiteral("The folder could not be found.");
    case StorageCode::TooManyOpenFiles:
        return QStringLiteral("Too many files are open.");
    case StorageCode::AccessDenied:
        return QStringLiteral("Access is denied.");
    case StorageCode::InsufficientMemory:
        return QStringLiteral("The length told in the file is too large to be held in memory.");
    case StorageCode::WriteFault:
        return QStringLiteral("The file could not be written.");
    case StorageCode::ReadFault:
        return QStringLiteral("The file could not be read.");
    case StorageCode::ShareViolation:
        return QStringLiteral("The file is in use.");
    case StorageCode::FileAlreadyExists:
        return QStringLiteral("It exists already, or it is not a compound file.");
    case StorageCode::InvalidParameter:
        return QStringLiteral("An argument is not valid.");
    case StorageCode::MediumFull:
        return QStringLiteral("The disk is full.");
    case StorageCode::InvalidHeader:
        return QStringLiteral("The header of the file is damaged.");
    case StorageCode::InvalidName:
        return QStringLiteral("The name is not valid.");
    case StorageCode::InvalidFlag:
        return QStringLiteral("The mode is not valid.");
    case StorageCode::Reverted:
        return QStringLiteral("The storage or stream is no longer there.");
    case StorageCode::DocumentCorrupt:
        return QStringLiteral("The file is damaged and cannot be changed.");
    case StorageCode::DocumentTooLarge:
        return QStringLiteral("The stream would grow beyond what the file format can hold.");
    case StorageCode::Unknown:
        break;
    }
    return QStringLiteral("An unexpected failure occurred.");
}

} // namespace

Error storageError(StorageCode code, const QString& subject, qint64 offset) {
    const qint64 number = code == StorageCode::FileAlreadyExists ? FileAlreadyExistsNumber
                                                                 : static_cast<qint64>(code);
    return {number, sentence(code), subject, offset};
}

StorageCode codeOfOpenFailure(int systemError, const QString& path) {
    switch (systemError) {
    case ENOENT:
        return path.isEmpty() || QFileInfo(QFileInfo(path).path()).isDir()
                   ? StorageCode::FileNotFound
                   : StorageCode::PathNotFound;
    case ENOTDIR:
        return StorageCode::PathNotFound;
    case EEXIST:
        return StorageCode::FileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ENXIO:
    case ENODEV:
        return StorageCode::AccessDenied;
    case ETXTBSY:
    case EBUSY:
    case EWOULDBLOCK:
        return StorageCode::ShareViolation;
    case EMFILE:
    case ENFILE:
        return StorageCode::TooManyOpenFiles;
    case ENAMETOOLONG:
    case ELOOP:
        return StorageCode::InvalidName;
    case ENOSPC:
    case EDQUOT:
        return StorageCode::MediumFull;
    default:
        return StorageCode::Unknown;
    }
}

StorageCode codeOfWriteFailure(int systemError) {
    switch (systemError) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return StorageCode::MediumFull;
    default:
        return StorageCode::WriteFault;
    }
}

} // namespace quillford
