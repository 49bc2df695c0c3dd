#include "persistence/compound/ElementBinding.h"

#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"

#include <algorithm>

namespace quillford::compound {

VBSTATSTG describe(const Volume& volume, EntryId id, const QString& rootName) {
    const DirectoryEntry& record = volume.directory.at(id);
    const bool isStream = record.kind() == Kind::Stream;
    VBSTATSTG stat;
    stat.SetStatData(id == RootEntry ? rootName : record.name().value_or(QString()),
                     isStream ? VBSTATSTG::StreamElement : VBSTATSTG::StorageElement,
                     isStream ? static_cast<qint64>(volume.sizeOf(id)) : 0, record.classId());
    return stat;
}

void requireElementMode(qint32 mode, qint32 allowed) {
    const qint32 access = mode & StorageMode::AccessBits;
    const qint32 others = mode & ~(StorageMode::AccessBits | StorageMode::ShareBits | allowed);
    if (access == StorageMode::AccessBits || others != 0 ||
        (mode & StorageMode::ShareBits) != StorageMode::ShareExclusive)
        throw storageError(StorageCode::InvalidFlag);
}

void requireElementName(const QString& name) {
    const bool isForbidden = std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.isNull() || QStringView(u"/\\:!").contains(character);
    });
    if (name.isEmpty() || name.size() > LongestName || isForbidden)
        throw storageError(StorageCode::InvalidName, name);
}

} // namespace quillford::compound
