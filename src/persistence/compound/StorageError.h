#pragma once

#include "base/Error.h"

/// The failures of the compound-file layer: the published result codes of structured storage. A
/// code is a plain positive number; `FileAlreadyExists` reaches callers as the program's own 58.
namespace quillford {

enum class StorageCode : qint64 {
    InvalidFunction = 0x80030001,
    FileNotFound = 0x80030002,
    PathNotFound = 0x80030003,
    TooManyOpenFiles = 0x80030004,
    AccessDenied = 0x80030005,
    InsufficientMemory = 0x80030008,
    WriteFault = 0x8003001D,
    ReadFault = 0x8003001E,
    ShareViolation = 0x80030020,
    FileAlreadyExists = 0x80030050,
    InvalidParameter = 0x80030057,
    MediumFull = 0x80030070,
    InvalidHeader = 0x800300FB,
    InvalidName = 0x800300FC,
    Unknown = 0x800300FD,
    InvalidFlag = 0x800300FF,
    Reverted = 0x80030102,
    DocumentCorrupt = 0x80030109,
    DocumentTooLarge = 0x80030111,
};

/// The program's own number for "it exists already, or is no compound file".
constexpr qint64 FileAlreadyExistsNumber = 58;
/// A byte array without bounds was given or asked for.
constexpr qint64 SubscriptNumber = 9;
/// A wrapper that was never bound to anything was used.
constexpr qint64 NotBoundNumber = 91;

/// The `Error` for `code`: its number, a sentence for the user, and `subject` (a file or element
/// name, may be empty) as its source. `offset` is the place in the file, where there is one.
[[nodiscard]] Error storageError(StorageCode code, const QString& subject = {},
                                 qint64 offset = Error::NoOffset);

/// The code of an operating system's error number (`errno`) after a failed open, read or write.
[[nodiscard]] StorageCode codeOfOpenFailure(int systemError, const QString& path);
[[nodiscard]] StorageCode codeOfWriteFailure(int systemError);

} // namespace quillford
