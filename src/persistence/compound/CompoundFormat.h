#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The published numbers of the compound-file format, for reader and writer alike. All integers
/// are little-endian. docs/file-format.md tells what is ours to choose in it.
///
///     file        header | sector 0 | sector 1 | ...      sector s begins at (s + 1) * sector size
///     header      512 bytes: signature, sizes, where the tables begin, 109 places of table sectors
///     FAT         for each sector the number of the next one in its chain, or a mark
///     DIFAT       where the sectors of the FAT are, from the 110th on
///     directory   a chain of entries of 128 bytes; entry 0 is the root
///     mini stream the chain of the root entry, cut into mini sectors of 64 bytes; it holds the
///                 streams of less than 4096 bytes
///     mini FAT    the FAT of the mini stream
namespace quillford::compound {

using SectorId = quint32;
using EntryId = quint32;

constexpr SectorId LargestSector = 0xFFFFFFFA;
constexpr SectorId DifatSector = 0xFFFFFFFC;
constexpr SectorId FatSector = 0xFFFFFFFD;
constexpr SectorId EndOfChain = 0xFFFFFFFE;
constexpr SectorId FreeSector = 0xFFFFFFFF;
constexpr EntryId NoEntry = 0xFFFFFFFF;
constexpr EntryId RootEntry = 0;

constexpr int SectorShiftWritten = 9;
constexpr int LargeSectorShift = 12;
constexpr int MiniSectorShift = 6;
constexpr quint32 MiniSectorSize = 1U << MiniSectorShift;
/// A stream of this many bytes or more stands in sectors, a shorter one in mini sectors.
constexpr quint32 MiniStreamCutoff = 4096;
/// The largest stream of a file with sectors of 512 bytes.
constexpr quint64 LargestSmallSectorStream = 0x7FFFFFFF;

constexpr std::array<std::byte, 8> Signature = {std::byte{0xD0}, std::byte{0xCF}, std::byte{0x11},
                                                std::byte{0xE0}, std::byte{0xA1}, std::byte{0xB1},
                                                std::byte{0x1A}, std::byte{0xE1}};

constexpr std::size_t HeaderSize = 512;
constexpr std::size_t HeaderFatPlaces = 109;

/// Where the fields stand in the header.
namespace header {
constexpr std::size_t MinorVersion = 24;
constexpr std::size_t MajorVersion = 26;
constexpr std::size_t ByteOrder = 28;
constexpr std::size_t SectorShift = 30;
constexpr std::size_t MiniShift = 32;
constexpr std::size_t DirectorySectors = 40; // counted in files with sectors of 4096 bytes only
constexpr std::size_t FatSectors = 44;
constexpr std::size_t FirstDirectorySector = 48;
constexpr std::size_t Cutoff = 56;
constexpr std::size_t FirstMiniFatSector = 60;
constexpr std::size_t MiniFatSectors = 64;
constexpr std::size_t FirstDifatSector = 68;
constexpr std::size_t DifatSectors = 72;
constexpr std::size_t FatPlaces = 76;
constexpr quint16 LittleEndianMark = 0xFFFE;
constexpr quint16 MinorVersionWritten = 0x3E;
constexpr quint16 MajorVersionWritten = 3;
} // namespace header

constexpr std::size_t EntrySize = 128;
constexpr qsizetype LongestName = 31;

/// Where the fields stand in a directory entry.
namespace entry {
constexpr std::size_t Name = 0;
constexpr std::size_t NameLength = 64; // in bytes, the closing null included
constexpr std::size_t Kind = 66;
constexpr std::size_t Colour = 67;
constexpr std::size_t Left = 68;
constexpr std::size_t Right = 72;
constexpr std::size_t Child = 76;
constexpr std::size_t Class = 80;
constexpr std::size_t ClassSize = 16;
constexpr std::size_t FirstSector = 116;
constexpr std::size_t Size = 120;
} // namespace entry

enum class Kind : quint8 { Unused = 0, Storage = 1, Stream = 2, Root = 5 };
enum class Colour : quint8 { Red = 0, Black = 1 };

} // namespace quillford::compound
