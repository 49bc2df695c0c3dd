#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/compound/ClassId.h"
#include "persistence/compound/CompoundFormat.h"

#include <QString>

#include <array>
#include <optional>

namespace quillford::compound {

/// One record of the directory: 128 bytes, read and changed in place. What this layer has no name
/// for (times, state) is kept as it was read.
class DirectoryEntry {
public:
    /// A record that is not in use.
    DirectoryEntry();
    explicit DirectoryEntry(Bytes bytes);

    [[nodiscard]] static DirectoryEntry make(Kind kind, const QString& name);

    [[nodiscard]] Bytes bytes() const { return raw_; }

    /// Nothing when the record is in use by a kind that there is not.
    [[nodiscard]] std::optional<Kind> kind() const;

    /// Nothing when the length is odd, empty or larger than the field.
    [[nodiscard]] std::optional<QString> name() const;
    void setName(const QString& name);

    [[nodiscard]] bool isRed() const;
    void setRed(bool red);

    [[nodiscard]] EntryId left() const { return field(entry::Left); }

    [[nodiscard]] EntryId right() const { return field(entry::Right); }

    [[nodiscard]] EntryId child() const { return field(entry::Child); }

    void setLeft(EntryId id) { setField(entry::Left, id); }

    void setRight(EntryId id) { setField(entry::Right, id); }

    void setChild(EntryId id) { setField(entry::Child, id); }

    [[nodiscard]] ClassId classId() const;

    [[nodiscard]] SectorId firstSector() const { return field(entry::FirstSector); }

    void setFirstSector(SectorId sector) { setField(entry::FirstSector, sector); }

    /// The size in bytes. Where sectors are small only its low half counts, because some writers
    /// leave anything in the other.
    [[nodiscard]] quint64 size(bool wholeField) const;
    void setSize(quint64 size);

    [[nodiscard]] bool operator==(const DirectoryEntry& other) const = default;

private:
    [[nodiscard]] quint32 field(std::size_t place) const;
    void setField(std::size_t place, quint32 value);

    std::array<std::byte, EntrySize> raw_{};
};

/// Where a name stands among its neighbours: shorter names first, then by upper case.
class NameKey {
public:
    explicit NameKey(const QString& name);

    [[nodiscard]] bool operator==(const NameKey& other) const { return name_ == other.name_; }

    [[nodiscard]] bool operator<(const NameKey& other) const;

private:
    QString name_;
};

} // namespace quillford::compound
