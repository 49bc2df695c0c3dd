#pragma once

#include <QtGlobal>

/// The flags of modes, moves and commits as plain 32-bit numbers.
namespace quillford::StorageMode {

constexpr qint32 Read = 0x0;
constexpr qint32 Write = 0x1;
constexpr qint32 ReadWrite = 0x2;
constexpr qint32 AccessBits = 0x3;
constexpr qint32 ShareExclusive = 0x10;
constexpr qint32 ShareBits = 0x70;
constexpr qint32 Create = 0x1000;

/// Every storage and stream of the program is opened by this mode, for reading as for writing.
constexpr qint32 Exclusive = ReadWrite | ShareExclusive; // 18
/// The same, replacing what is there.
constexpr qint32 ExclusiveCreate = Exclusive | Create; // 4114

/// What `Storage::MoveElementTo` does.
constexpr qint32 Move = 0;
constexpr qint32 Copy = 1;

} // namespace quillford::StorageMode
