#include "persistence/project/PropertySetWriter.h"

#include "persistence/compound/StorageError.h"
#include "persistence/project/PropertyBytes.h"

#include <limits>

namespace quillford {

using namespace propertyset;

namespace {

void requireLength(qsizetype length) {
    if (length > std::numeric_limits<qint32>::max())
        throw storageError(StorageCode::DocumentTooLarge);
}

QByteArray encoded(const PropertySection& section) {
    const auto& properties = section.stored();
    const std::size_t firstValue = SectionHeaderLength + properties.size() * PropertyPlaceLength;
    QByteArray places;
    QByteArray values;
    for (const PropertySection::Property& property : properties) {
        appendNumber(places, property.identifier);
        appendNumber(places,
                     static_cast<quint32>(firstValue + static_cast<std::size_t>(values.size())));
        values += property.bytes;
        requireLength(values.size());
    }
    QByteArray bytes;
    appendNumber(bytes, static_cast<quint32>(firstValue + static_cast<std::size_t>(values.size())));
    appendNumber(bytes, static_cast<quint32>(properties.size()));
    return bytes + places + values;
}

QByteArray headerOf(const PropertySet& set) {
    QByteArray header;
    appendNumber(header, LittleEndianMark);
    appendNumber(header, set.version);
    appendNumber(header, set.system);
    header += arrayOf(set.classId.bytes);
    appendNumber(header, static_cast<quint32>(set.sections.size()));
    return header;
}

} // namespace

QByteArray writePropertySet(const PropertySet& set) {
    QByteArray header = headerOf(set);
    QByteArray sections;
    const std::size_t firstSection = HeaderLength + set.sections.size() * SectionPlaceLength;
    for (const PropertySection& section : set.sections) {
        header += arrayOf(section.format().bytes);
        appendNumber(
            header, static_cast<quint32>(firstSection + static_cast<std::size_t>(sections.size())));
        sections += encoded(section);
        requireLength(sections.size());
    }
    return header + sections;
}

} // namespace quillford
