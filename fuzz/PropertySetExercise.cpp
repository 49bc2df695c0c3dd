#include "PropertySetExercise.h"

#include "base/Error.h"
#include "persistence/compound/StorageError.h"
#include "persistence/project/PropertyBytes.h"
#include "persistence/project/PropertySetReader.h"
#include "persistence/project/PropertySetWriter.h"

#include <cstdlib>
#include <optional>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

void promise(bool holds) {
    if (!holds)
        std::abort();
}

/// The sets, or nothing for bytes that are refused as damaged.
std::optional<PropertySet> readOrRefuse(Bytes bytes) {
    try {
        return readPropertySet(bytes);
    } catch (const Error& error) {
        promise(error.number() == static_cast<qint64>(StorageCode::DocumentCorrupt));
        promise(error.offset() >= 0);
        return std::nullopt;
    }
}

/// No value stands in two places, so that all of them cannot be more than the bytes; the last
/// section may be 3 bytes longer than it is.
void requireBounded(const PropertySet& set, std::size_t size) {
    std::size_t total = 0;
    for (const PropertySection& section : set.sections) {
        for (const PropertySection::Property& property : section.stored())
            total += static_cast<std::size_t>(property.bytes.size());
    }
    promise(total <= size + propertyset::MostMissingBytes);
}

void lookAtAll(const PropertySection& section) {
    for (const PropertyInfo& info : section.properties()) {
        (void)section.value(info.identifier);
        if (!info.name.isNull())
            promise(section.identifierOf(info.name).has_value());
    }
}

/// What the change made of a section; nothing where the section does not allow it.
std::optional<quint32> change(PropertySection& section) {
    section.setValue(propertyset::FirstIdentifier, u"changed \u20AC"_s);
    try {
        const QString name = u"a name that nobody has"_s;
        const auto known = section.identifierOf(name);
        const quint32 identifier = known ? *known : section.addName(name);
        section.setValue(identifier, qint32{4711});
        return identifier;
    } catch (const Error&) {
        return std::nullopt; // a damaged dictionary takes no name, and not every code page holds
                             // one
    }
}

void requireSame(const PropertySection& left, const PropertySection& right) {
    promise(left.properties() == right.properties());
    promise(left.stored().size() == right.stored().size());
    for (std::size_t i = 0; i < left.stored().size(); ++i) {
        promise(left.stored()[i].identifier == right.stored()[i].identifier);
        promise(left.stored()[i].bytes == right.stored()[i].bytes);
    }
}

} // namespace

bool exercisePropertySet(std::span<const std::byte> bytes) {
    std::optional<PropertySet> set = readOrRefuse(bytes);
    if (!set)
        return false;
    requireBounded(*set, bytes.size());
    for (PropertySection& section : set->sections) {
        lookAtAll(section);
        const auto added = change(section);
        if (added && *added != propertyset::FirstIdentifier) {
            promise(section.value(*added) == PropertyValue(qint32{4711}));
            promise(section.value(propertyset::FirstIdentifier) ==
                    PropertyValue(u"changed \u20AC"_s));
        }
    }
    const QByteArray written = writePropertySet(*set);
    const PropertySet again = readPropertySet(propertyset::bytesOf(written));
    promise(again.sections.size() == set->sections.size());
    for (std::size_t i = 0; i < again.sections.size(); ++i)
        requireSame(set->sections[i], again.sections[i]);
    promise(writePropertySet(again) == written);
    return true;
}
