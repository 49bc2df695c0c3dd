#pragma once

#include "persistence/compound/Storage.h"
#include "persistence/project/PropertySet.h"
#include "persistence/project/PropertyValue.h"

#include <QDateTime>
#include <QString>

#include <map>
#include <optional>
#include <variant>
#include <vector>

namespace quillford {

/// Selects a property: a number by its identifier, a text by its name.
using PropertyKey = std::variant<quint32, QString>;

/// The standard property sets of a compound file. The class is closed until it is bound.
///
/// Every call on a property raises 0x80040000 with "The file is closed." while it is closed, and
/// with "The property set does not exist." for a set that is not there, is open elsewhere or is
/// damaged; the source then tells what was found, the offset where. A set number other than 0 to 2
/// raises number 9. A stream of 0 bytes holds its sets, empty.
class DocProperties {
public:
    /// The numbers of the sets.
    static constexpr qint32 SummaryInformation = 0;
    static constexpr qint32 DocumentSummaryInformation = 1;
    static constexpr qint32 UserDefined = 2;

    DocProperties() = default;
    DocProperties(const DocProperties&) = delete;
    DocProperties& operator=(const DocProperties&) = delete;
    ~DocProperties() = default;

    /// Binds to the file, which nobody else can open for writing from now on and everybody can
    /// read. Changes are held back until `Save`, and dropped by `Revert`, `CloseFile` and
    /// destruction: until then the file does not change by a byte. Raises as `IsStorageFile` and
    /// `OpenStorageFile`, and 0x80040000 with the file's name and " is not a structured storage
    /// file." for any other file; what was bound before then stays so.
    void BindToFile(const QString& fileName);

    /// Binds to a storage that is open: every change goes to it directly. Raises the storage's own
    /// error when it is bound to nothing.
    void BindToStorage(const Storage& value);

    /// Drops what was bound, and all that was not saved. A closed one stays closed.
    void CloseFile();

    /// Writes what was held back, and commits the storage. What could not be written is still held.
    void Save();

    /// Drops what was held back since the last `Save`, and reverts the storage.
    void Revert();

    /// The value of a property; empty for one that is not there.
    [[nodiscard]] PropertyValue GetPropertyByName(qint32 set, const PropertyKey& property) const;

    /// Gives a property its value; one that is not there is added, with its name. Raises as
    /// `PropertySection::setValue` and `PropertyDictionary::add`, and the errors of a write.
    void SetPropertyByName(qint32 set, const PropertyKey& property, const PropertyValue& value);

    /// The set's properties with their identifiers and names, in the order in which they stand;
    /// without those that tell about the set itself.
    [[nodiscard]] std::vector<PropertyInfo> EnumProperties(qint32 set) const;

/// The properties that have a name of their own: `Title()` and `setTitle(value)`, and so on. One
/// that is not there, or is of another type, is an empty text, 0, an invalid point in time or an
/// empty span.
#define QF_DOC_PROPERTY(name, number, identifier, type)                                            \
    [[nodiscard]] type name() const;                                                               \
    void set##name(const type& value);
#include "persistence/project/DocPropertyRows.def"
#undef QF_DOC_PROPERTY

private:
    /// Where a set stands.
    struct Place;

    [[nodiscard]] static const Place& placeOf(qint32 set);
    [[nodiscard]] Storage openStorage() const;
    [[nodiscard]] PropertySet read(const Place& place) const;
    [[nodiscard]] PropertySet open(const Place& place) const;
    void write(const QString& stream, const PropertySet& changed);

    void bind(Storage storage, bool isTransacted);

    std::optional<Storage> storage_;
    bool isTransacted_ = false;
    std::map<QString, PropertySet> held_; ///< changed and not saved, by the name of the stream
};

} // namespace quillford
