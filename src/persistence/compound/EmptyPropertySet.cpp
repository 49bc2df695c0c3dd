#include "persistence/compound/EmptyPropertySet.h"

#include "base/ByteOrder.h"

#include <algorithm>
#include <vector>

namespace quillford {

namespace {

constexpr std::size_t HeaderLength = 28;
constexpr std::size_t SectionPlaceLength = 20;
constexpr std::size_t SectionLength = 24;
constexpr quint16 LittleEndianMark = 0xFFFE;
constexpr quint32 System = 0x00020006; // a 32-bit desktop system; nobody interprets it
constexpr quint32 CodePageProperty = 1;
constexpr quint32 TypeInt16 = 2;
constexpr quint16 AnsiCodePage = 1252;
constexpr quint16 UnicodeCodePage = 1200;

/// The section's size, one property with its place, and that property's type and value.
void storeSection(std::span<std::byte> section, quint16 codePage) {
    constexpr std::size_t ValuePlace = 16;
    storeLittleEndian<quint32>(section, 0, SectionLength);
    storeLittleEndian<quint32>(section, 4, 1);
    storeLittleEndian<quint32>(section, 8, CodePageProperty);
    storeLittleEndian<quint32>(section, 12, ValuePlace);
    storeLittleEndian<quint32>(section, ValuePlace, TypeInt16);
    storeLittleEndian<quint16>(section, ValuePlace + 4, codePage);
}

} // namespace

QByteArray emptyPropertySet(std::span<const ClassId> formats, bool ansi) {
    const std::size_t firstSection = HeaderLength + formats.size() * SectionPlaceLength;
    std::vector<std::byte> storage(firstSection + formats.size() * SectionLength);
    const std::span<std::byte> bytes(storage);
    storeLittleEndian<quint16>(bytes, 0, LittleEndianMark);
    storeLittleEndian<quint32>(bytes, 4, System);
    storeLittleEndian<quint32>(bytes, 24, static_cast<quint32>(formats.size()));
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const std::size_t place = HeaderLength + i * SectionPlaceLength;
        const std::size_t section = firstSection + i * SectionLength;
        std::copy(formats[i].bytes.begin(), formats[i].bytes.end(),
                  bytes.begin() + static_cast<std::ptrdiff_t>(place));
        storeLittleEndian<quint32>(bytes, place + formats[i].bytes.size(),
                                   static_cast<quint32>(section));
        storeSection(bytes.subspan(section, SectionLength), ansi ? AnsiCodePage : UnicodeCodePage);
    }
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

} // namespace quillford
