#include "persistence/project/PropertySetReader.h"

#include "persistence/project/PropertyBytes.h"

#include <algorithm>
#include <utility>

namespace quillford {

using namespace propertyset;

namespace {

/// Where a section stands in the stream.
struct SectionPlace {
    ClassId format;
    std::size_t begin = 0;
    std::size_t end = 0; // behind the stream's end if bytes are missing
};

/// A property's identifier and its place within the section.
struct PropertyPlace {
    quint32 identifier;
    std::size_t begin;
};

std::size_t endOfSection(Bytes bytes, std::size_t begin) {
    if (begin > bytes.size() || bytes.size() - begin < SectionHeaderLength)
        raiseDamaged(QStringLiteral("a section stands behind the end"), begin);
    const std::size_t length = loadLittleEndian<quint32>(bytes, begin);
    if (length < SectionHeaderLength)
        raiseDamaged(QStringLiteral("a section is shorter than its header"), begin);
    if (length > bytes.size() - begin + MostMissingBytes)
        raiseDamaged(QStringLiteral("a section is longer than what is there"), begin);
    return begin + length;
}

SectionPlace takeSectionPlace(ByteCursor& header, Bytes bytes) {
    SectionPlace place;
    std::ranges::copy(header.take(place.format.bytes.size()), place.format.bytes.begin());
    place.begin = header.takeNumber<quint32>();
    if (place.begin < HeaderLength)
        raiseDamaged(QStringLiteral("a section stands in the header"), header.position());
    place.end = endOfSection(bytes, place.begin);
    return place;
}

/// The bytes of a section, up to the length that it says.
QByteArray bytesOfSection(Bytes bytes, const SectionPlace& place) {
    const std::size_t end = std::min(place.end, bytes.size());
    QByteArray section = arrayOf(bytes.subspan(place.begin, end - place.begin));
    section.resize(static_cast<qsizetype>(place.end - place.begin), '\0');
    return section;
}

std::vector<PropertyPlace> placesOfProperties(Bytes section, std::size_t origin) {
    ByteCursor cursor(section);
    (void)cursor.takeNumber<quint32>(); // its size
    const std::size_t count = cursor.takeNumber<quint32>();
    if (count > cursor.left() / PropertyPlaceLength)
        raiseDamaged(QStringLiteral("more properties are told than fit"), origin);
    const std::size_t firstValue = SectionHeaderLength + count * PropertyPlaceLength;
    std::vector<PropertyPlace> places;
    places.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto identifier = cursor.takeNumber<quint32>();
        const std::size_t begin = cursor.takeNumber<quint32>();
        if (begin < firstValue || begin > section.size() ||
            section.size() - begin < sizeof(quint32))
            raiseDamaged(QStringLiteral("a value stands outside of its section"),
                         origin + cursor.position());
        places.push_back({identifier, begin});
    }
    return places;
}

/// The places where values begin, in rising order, and the section's end. Each place is that of one
/// value alone, so that all values together are no longer than the section.
std::vector<std::size_t> boundaries(const std::vector<PropertyPlace>& places, std::size_t end,
                                    std::size_t origin) {
    std::vector<std::size_t> all;
    all.reserve(places.size() + 1);
    for (const PropertyPlace& place : places)
        all.push_back(place.begin);
    all.push_back(end);
    std::ranges::sort(all);
    const auto twice = std::ranges::adjacent_find(all);
    if (twice != all.end())
        raiseDamaged(QStringLiteral("two values stand in one place"), origin + *twice);
    return all;
}

PropertySection readSection(Bytes bytes, const SectionPlace& place) {
    const QByteArray section = bytesOfSection(bytes, place);
    const std::vector<PropertyPlace> places = placesOfProperties(bytesOf(section), place.begin);
    const std::vector<std::size_t> ends =
        boundaries(places, static_cast<std::size_t>(section.size()), place.begin);
    std::vector<PropertySection::Property> properties;
    properties.reserve(places.size());
    for (const PropertyPlace& property : places) {
        const std::size_t end = *std::ranges::upper_bound(ends, property.begin);
        if (end - property.begin < sizeof(quint32))
            raiseDamaged(QStringLiteral("a value is shorter than its type"),
                         place.begin + property.begin);
        QByteArray value = section.mid(static_cast<qsizetype>(property.begin),
                                       static_cast<qsizetype>(end - property.begin));
        align(value); // as it will be written, so that what is read then is the same
        properties.push_back({property.identifier, std::move(value)});
    }
    return {place.format, std::move(properties)};
}

void requireApart(const std::vector<SectionPlace>& places) {
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        const SectionPlace& a = places[i];
        const SectionPlace& b = places[i + 1];
        if (a.begin < b.end && b.begin < a.end)
            raiseDamaged(QStringLiteral("two sections stand in one place"), b.begin);
    }
}

} // namespace

PropertySet readPropertySet(Bytes bytes) {
    ByteCursor header(bytes);
    PropertySet set;
    if (header.takeNumber<quint16>() != LittleEndianMark)
        raiseDamaged(QStringLiteral("it does not begin with the mark of the byte order"), 0);
    set.version = header.takeNumber<quint16>();
    if (set.version > HighestVersion)
        raiseDamaged(QStringLiteral("its version is unknown"), header.position());
    set.system = header.takeNumber<quint32>();
    std::ranges::copy(header.take(set.classId.bytes.size()), set.classId.bytes.begin());
    const auto count = header.takeNumber<quint32>();
    if (count > MostSections)
        raiseDamaged(QStringLiteral("it tells more sections than there can be"), header.position());
    std::vector<SectionPlace> places;
    for (quint32 i = 0; i < count; ++i)
        places.push_back(takeSectionPlace(header, bytes));
    requireApart(places);
    for (const SectionPlace& place : places)
        set.sections.push_back(readSection(bytes, place));
    return set;
}

} // namespace quillford
