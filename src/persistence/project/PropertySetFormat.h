#pragma once

#include <QtGlobal>

#include <cstddef>

/// The published property-set format. A stream of property sets:
///
///     0   FE FF, version (0 or 1)   4   system, 4 bytes      8   class, 16 bytes
///     24  number of sections        28  for each: its format, 16 bytes, and its place, 4 bytes
///
/// A section: its size, the number of its properties, then for each property its identifier and its
/// place within the section; then the values. A value is its type, 4 bytes, and the bytes that the
/// type asks for; it begins at a multiple of 4. The dictionary alone has no type: a count, then for
/// each name the identifier that it belongs to, its length with the terminator, and the name.
namespace quillford::propertyset {

constexpr std::size_t HeaderLength = 28;
constexpr std::size_t SectionPlaceLength = 20;
constexpr std::size_t SectionHeaderLength = 8;
constexpr std::size_t PropertyPlaceLength = 8;
constexpr std::size_t Alignment = 4;

constexpr quint16 LittleEndianMark = 0xFFFE;
constexpr quint16 HighestVersion = 1;
constexpr quint32 MostSections = 2;
constexpr quint32 System = 0x00020006; // a 32-bit desktop system; nobody interprets it
/// Other writers leave out up to so many bytes at the end of the last section.
constexpr std::size_t MostMissingBytes = 3;

/// Identifiers with a meaning of their own in every set.
constexpr quint32 DictionaryIdentifier = 0;
constexpr quint32 CodePageIdentifier = 1;
constexpr quint32 FirstIdentifier = 2;
constexpr quint32 FirstReservedIdentifier = 0x80000000;

/// The longest name in a dictionary, in UTF-16 code units.
constexpr qsizetype LongestName = 255;

/// The types that the program reads and writes; values of all others are kept as they stand.
enum Type : quint32 {
    Empty = 0,
    Null = 1,
    Int16 = 2,
    Int32 = 3,
    Float32 = 4,
    Float64 = 5,
    CurrencyType = 6,
    DateType = 7,
    CodePageText = 8, // as NarrowText
    Boolean = 11,
    Int8 = 16,
    Byte = 17,
    UInt16 = 18,
    UInt32 = 19,
    Int64 = 20,
    UInt64 = 21,
    Int = 22,
    UInt = 23,
    NarrowText = 30, // in the code page of the set
    WideText = 31,   // in UTF-16
    FileTimeType = 64,
    ClassIdType = 72,
};

} // namespace quillford::propertyset
