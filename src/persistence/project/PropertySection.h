#pragma once

#include "persistence/compound/ClassId.h"
#include "persistence/project/CodePage.h"
#include "persistence/project/PropertyDictionary.h"
#include "persistence/project/PropertyValue.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillford {

/// What `PropertySection::properties` tells of a property.
struct PropertyInfo {
    quint32 identifier = 0;
    QString name;     ///< null when the set gives it none
    quint32 type = 0; ///< as in the published format

    [[nodiscard]] bool operator==(const PropertyInfo&) const = default;
};

/// One property set: the values under their identifiers, in the order in which they stand. A value
/// is kept as its bytes until it is asked for, so that one which is not changed is written as it
/// was read.
class PropertySection {
public:
    /// A value as it stands: its type and what follows, or the bytes of the dictionary; up to a
    /// multiple of 4.
    struct Property {
        quint32 identifier;
        QByteArray bytes;
    };

    PropertySection(const ClassId& format, std::vector<Property> properties)
        : format_(format), properties_(std::move(properties)) {}

    /// A set without a property, whose texts are in UTF-16.
    [[nodiscard]] static PropertySection empty(const ClassId& format);

    [[nodiscard]] const ClassId& format() const { return format_; }

    [[nodiscard]] const std::vector<Property>& stored() const { return properties_; }

    /// The code page of the narrow texts; 1252 in a set that does not tell it.
    [[nodiscard]] CodePage codePage() const;

    /// The value of a property; empty for the dictionary and for a property that is not there.
    [[nodiscard]] PropertyValue value(quint32 identifier) const;

    /// Gives a property its value, and adds the property if it is not there. Raises
    /// `InvalidParameter` for the identifiers that tell about the set itself: the dictionary, the
    /// code page, and all from 0x80000000 on.
    void setValue(quint32 identifier, const PropertyValue& value);

    [[nodiscard]] std::optional<quint32> identifierOf(const QString& name) const;

    /// Gives the name, which no property has, to an identifier that no property has, and gives that
    /// identifier. Raises as `PropertyDictionary::add`.
    quint32 addName(const QString& name);

    /// The properties but those that tell about the set itself.
    [[nodiscard]] std::vector<PropertyInfo> properties() const;

private:
    [[nodiscard]] const Property* find(quint32 identifier) const;
    [[nodiscard]] PropertyDictionary dictionary() const;
    [[nodiscard]] quint32 freeIdentifier() const;
    void store(quint32 identifier, QByteArray bytes);

    ClassId format_;
    std::vector<Property> properties_;
};

} // namespace quillford
