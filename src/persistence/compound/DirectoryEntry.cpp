#include "persistence/compound/DirectoryEntry.h"

#include "base/ByteOrder.h"
#include "base/Text.h"

#include <algorithm>

namespace quillford::compound {

DirectoryEntry::DirectoryEntry() {
    setLeft(NoEntry);
    setRight(NoEntry);
    setChild(NoEntry);
}

DirectoryEntry::DirectoryEntry(Bytes bytes) {
    std::copy_n(bytes.begin(), EntrySize, raw_.begin());
}

DirectoryEntry DirectoryEntry::make(Kind kind, const QString& name) {
    DirectoryEntry made;
    made.raw_[entry::Kind] = static_cast<std::byte>(kind);
    made.setName(name);
    made.setRed(false);
    // A storage has no sectors of its own, and the format wants a zero in its place.
    made.setFirstSector(kind == Kind::Storage ? 0 : EndOfChain);
    return made;
}

std::optional<Kind> DirectoryEntry::kind() const {
    const auto kind = static_cast<Kind>(raw_[entry::Kind]);
    switch (kind) {
    case Kind::Unused:
    case Kind::Storage:
    case Kind::Stream:
    case Kind::Root:
        return kind;
    }
    return std::nullopt;
}

std::optional<QString> DirectoryEntry::name() const {
    const quint16 length = loadLittleEndian<quint16>(raw_, entry::NameLength);
    constexpr quint16 Unit = sizeof(char16_t);
    if (length % Unit != 0 || length < 2 * Unit || length > Unit * (LongestName + 1))
        return std::nullopt;
    QString name;
    for (std::size_t i = 0; i + Unit < length; i += Unit)
        name.append(QChar(loadLittleEndian<quint16>(raw_, entry::Name + i)));
    return name;
}

void DirectoryEntry::setName(const QString& name) {
    constexpr std::size_t Unit = sizeof(char16_t);
    std::fill_n(raw_.begin() + entry::Name, entry::NameLength, std::byte{0});
    std::size_t place = entry::Name;
    for (const QChar character : name) {
        storeLittleEndian<quint16>(raw_, place, character.unicode());
        place += Unit;
    }
    storeLittleEndian<quint16>(raw_, entry::NameLength, static_cast<quint16>(place + Unit));
}

bool DirectoryEntry::isRed() const {
    return static_cast<Colour>(raw_[entry::Colour]) == Colour::Red;
}

void DirectoryEntry::setRed(bool red) {
    raw_[entry::Colour] = static_cast<std::byte>(red ? Colour::Red : Colour::Black);
}

ClassId DirectoryEntry::classId() const {
    ClassId id;
    std::copy_n(raw_.begin() + entry::Class, entry::ClassSize, id.bytes.begin());
    return id;
}

quint64 DirectoryEntry::size(bool wholeField) const {
    return wholeField ? loadLittleEndian<quint64>(raw_, entry::Size) : field(entry::Size);
}

void DirectoryEntry::setSize(quint64 size) {
    storeLittleEndian<quint64>(raw_, entry::Size, size);
}

quint32 DirectoryEntry::field(std::size_t place) const {
    return loadLittleEndian<quint32>(raw_, place);
}

void DirectoryEntry::setField(std::size_t place, quint32 value) {
    storeLittleEndian<quint32>(raw_, place, value);
}

NameKey::NameKey(const QString& name) : name_(upperCase(name)) {}

bool NameKey::operator<(const NameKey& other) const {
    if (name_.size() != other.name_.size())
        return name_.size() < other.name_.size();
    return std::lexicographical_compare(
        name_.begin(), name_.end(), other.name_.begin(), other.name_.end(),
        [](QChar left, QChar right) { return left.unicode() < right.unicode(); });
}

} // namespace quillford::compound
