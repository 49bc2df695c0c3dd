#include "persistence/project/PropertySection.h"

#include "persistence/compound/StorageError.h"
#include "persistence/project/PropertyBytes.h"
#include "persistence/project/PropertyEncoding.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quillford {

using namespace propertyset;

namespace {

/// True for a property of its own, false for one that tells about the set.
bool isOrdinary(quint32 identifier) {
    return identifier >= FirstIdentifier && identifier < FirstReservedIdentifier;
}

quint32 typeOf(const PropertySection::Property& property) {
    return ByteCursor(bytesOf(property.bytes)).takeNumber<quint32>();
}

} // namespace

PropertySection PropertySection::empty(const ClassId& format) {
    const auto codePage = static_cast<qint16>(CodePage::Utf16);
    return {format, {{CodePageIdentifier, encodeProperty(codePage, CodePage())}}};
}

const PropertySection::Property* PropertySection::find(quint32 identifier) const {
    const auto found = std::ranges::find(properties_, identifier, &Property::identifier);
    return found == properties_.end() ? nullptr : &*found;
}

CodePage PropertySection::codePage() const {
    const Property* property = find(CodePageIdentifier);
    if (property == nullptr)
        return CodePage();
    const PropertyValue value = decodeProperty(bytesOf(property->bytes), CodePage());
    // A signed 16-bit number by the format, in which the code pages from 32768 on are negative.
    if (const auto* number = std::get_if<qint16>(&value))
        return CodePage(static_cast<quint16>(*number));
    const qint32 number = propertyAs<qint32>(value);
    return std::in_range<quint16>(number) && number != 0 ? CodePage(static_cast<quint16>(number))
                                                         : CodePage();
}

PropertyValue PropertySection::value(quint32 identifier) const {
    const Property* property = find(identifier);
    if (property == nullptr || identifier == DictionaryIdentifier)
        return std::monostate();
    return decodeProperty(bytesOf(property->bytes), codePage());
}

void PropertySection::store(quint32 identifier, QByteArray bytes) {
    const auto found = std::ranges::find(properties_, identifier, &Property::identifier);
    if (found == properties_.end())
        properties_.push_back({identifier, std::move(bytes)});
    else
        found->bytes = std::move(bytes);
}

void PropertySection::setValue(quint32 identifier, const PropertyValue& value) {
    if (!isOrdinary(identifier))
        throw storageError(StorageCode::InvalidParameter);
    store(identifier, encodeProperty(value, codePage()));
}

PropertyDictionary PropertySection::dictionary() const {
    const Property* property = find(DictionaryIdentifier);
    return property == nullptr ? PropertyDictionary(codePage())
                               : PropertyDictionary(bytesOf(property->bytes), codePage());
}

std::optional<quint32> PropertySection::identifierOf(const QString& name) const {
    return dictionary().identifierOf(name);
}

quint32 PropertySection::freeIdentifier() const {
    const PropertyDictionary names = dictionary();
    std::set<quint32> taken;
    for (const Property& property : properties_)
        taken.insert(property.identifier);
    quint32 identifier = FirstIdentifier;
    while (taken.contains(identifier) || !names.nameOf(identifier).isNull())
        ++identifier;
    return identifier;
}

quint32 PropertySection::addName(const QString& name) {
    const quint32 identifier = freeIdentifier();
    PropertyDictionary names = dictionary();
    names.add(identifier, name);
    store(DictionaryIdentifier, names.encoded());
    return identifier;
}

std::vector<PropertyInfo> PropertySection::properties() const {
    const PropertyDictionary names = dictionary();
    std::vector<PropertyInfo> found;
    for (const Property& property : properties_) {
        if (isOrdinary(property.identifier))
            found.push_back(
                {property.identifier, names.nameOf(property.identifier), typeOf(property)});
    }
    return found;
}

} // namespace quillford
