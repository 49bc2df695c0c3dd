#include "persistence/project/DocProperties.h"

#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/PropertyBytes.h"
#include "persistence/project/PropertySetReader.h"
#include "persistence/project/PropertySetWriter.h"

#include <array>
#include <utility>

namespace quillford {

namespace {

constexpr qint64 ObjectError = 0x80040000;

/// The whole stream; never more than the file holds, whatever the stream's entry says.
QByteArray contentOf(Stream stream) {
    constexpr qint32 BlockLength = 65536;
    QByteArray content;
    QByteArray block;
    while (const qint32 count = stream.ReadBuf(block, BlockLength))
        content += block.left(count);
    return content;
}

} // namespace

struct DocProperties::Place {
    QString stream;
    ClassId format;
};

const DocProperties::Place& DocProperties::placeOf(qint32 set) {
    static const QString summary = QStringLiteral("\005SummaryInformation");
    static const QString document = QStringLiteral("\005DocumentSummaryInformation");
    static const std::array<Place, 3> places = {{
        {summary, ClassId::fromText(QStringLiteral("{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"))},
        {document, ClassId::fromText(QStringLiteral("{D5CDD502-2E9C-101B-9397-08002B2CF9AE}"))},
        {document, ClassId::fromText(QStringLiteral("{D5CDD505-2E9C-101B-9397-08002B2CF9AE}"))},
    }};
    if (set < SummaryInformation || set > UserDefined)
        throw Error(SubscriptNumber, QStringLiteral("Subscript out of range"));
    return places[static_cast<std::size_t>(set)];
}

void DocProperties::BindToFile(const QString& fileName) {
    if (!IsStorageFile(fileName))
        throw Error(ObjectError, fileName + QStringLiteral(" is not a structured storage file."));
    bind(OpenStorageFile(fileName), true);
}

void DocProperties::BindToStorage(const Storage& value) {
    (void)value.Stat(); // raises what left it bound to nothing
    bind(value, false);
}

void DocProperties::bind(Storage storage, bool isTransacted) {
    CloseFile();
    storage_ = std::move(storage);
    isTransacted_ = isTransacted;
}

void DocProperties::CloseFile() {
    held_.clear();
    storage_.reset();
}

Storage DocProperties::openStorage() const {
    if (!storage_)
        throw Error(ObjectError, QStringLiteral("The file is closed."));
    return *storage_;
}

void DocProperties::Save() {
    Storage storage = openStorage();
    for (const auto& [stream, changed] : held_)
        write(stream, changed);
    storage.Commit(0);
    held_.clear();
}

void DocProperties::Revert() {
    Storage storage = openStorage();
    held_.clear();
    storage.Revert();
}

/// The sets in the stream of `place`, as they are held back or as they stand.
PropertySet DocProperties::read(const Place& place) const {
    if (const auto held = held_.find(place.stream); held != held_.end())
        return held->second;
    const QByteArray content =
        contentOf(openStorage().OpenStream(place.stream, StorageMode::Exclusive));
    if (!content.isEmpty())
        return readPropertySet(propertyset::bytesOf(content));
    PropertySet fresh;
    for (const qint32 set : {SummaryInformation, DocumentSummaryInformation, UserDefined}) {
        if (placeOf(set).stream == place.stream)
            fresh.sections.push_back(PropertySection::empty(placeOf(set).format));
    }
    return fresh;
}

PropertySet DocProperties::open(const Place& place) const {
    (void)openStorage(); // a closed file has an error of its own
    const auto refuse = [](const QString& reason, qint64 offset) {
        throw Error(ObjectError, QStringLiteral("The property set does not exist."), reason,
                    offset);
    };
    PropertySet sets;
    try {
        sets = read(place);
    } catch (const Error& failure) {
        refuse(failure.description(), failure.offset());
    }
    if (sets.find(place.format) == nullptr)
        refuse(QStringLiteral("Its stream holds no such set."), Error::NoOffset);
    return sets;
}

/// The old bytes are written over and only then cut off: an old tail behind a set harms nobody.
void DocProperties::write(const QString& name, const PropertySet& changed) {
    const QByteArray bytes = writePropertySet(changed);
    Stream stream = openStorage().OpenStream(name, StorageMode::Exclusive);
    stream.write(propertyset::bytesOf(bytes));
    stream.SetSize(bytes.size());
}

PropertyValue DocProperties::GetPropertyByName(qint32 set, const PropertyKey& property) const {
    const Place& place = placeOf(set);
    PropertySet sets = open(place);
    const PropertySection& section = *sets.find(place.format);
    if (const auto* identifier = std::get_if<quint32>(&property))
        return section.value(*identifier);
    const auto identifier = section.identifierOf(std::get<QString>(property));
    return identifier ? section.value(*identifier) : PropertyValue();
}

void DocProperties::SetPropertyByName(qint32 set, const PropertyKey& property,
                                      const PropertyValue& value) {
    const Place& place = placeOf(set);
    PropertySet sets = open(place);
    PropertySection& section = *sets.find(place.format);
    if (const auto* identifier = std::get_if<quint32>(&property)) {
        section.setValue(*identifier, value);
    } else {
        const QString& name = std::get<QString>(property);
        const auto known = section.identifierOf(name);
        section.setValue(known ? *known : section.addName(name), value);
    }
    if (isTransacted_)
        held_.insert_or_assign(place.stream, std::move(sets));
    else
        write(place.stream, sets);
}

std::vector<PropertyInfo> DocProperties::EnumProperties(qint32 set) const {
    const Place& place = placeOf(set);
    PropertySet sets = open(place);
    return sets.find(place.format)->properties();
}

#define QF_DOC_PROPERTY(name, number, identifier, type)                                            \
    type DocProperties::name() const {                                                             \
        return propertyAs<type>(GetPropertyByName(number, quint32{identifier}));                   \
    }                                                                                              \
                                                                                                   \
    void DocProperties::set##name(const type& value) {                                             \
        SetPropertyByName(number, quint32{identifier}, propertyFrom(value));                       \
    }
#include "persistence/project/DocPropertyRows.def"
#undef QF_DOC_PROPERTY

} // namespace quillford
