#include "persistence/compound/ElementTree.h"

#include <utility>

namespace quillford::compound {

std::optional<EntryId> ElementTree::find(EntryId storage, const QString& name) const {
    return NameTree(volume_.directory, storage).find(name);
}

std::vector<EntryId> ElementTree::elements(EntryId storage) const {
    return NameTree(volume_.directory, storage).elements();
}

std::vector<EntryId> ElementTree::withDescendants(EntryId element) const {
    std::vector<EntryId> found{element};
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (volume_.directory.at(found[i]).kind() != Kind::Storage)
            continue;
        const std::vector<EntryId> below = elements(found[i]);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

EntryId ElementTree::create(EntryId storage, const QString& name, Kind kind) {
    volume_.requireSound();
    const EntryId id = volume_.directory.allocate();
    volume_.chains.resize(volume_.directory.size());
    volume_.directory.change(id) = DirectoryEntry::make(kind, name);
    NameTree(volume_.directory, storage).insert(id);
    volume_.directory.commit();
    return id;
}

void ElementTree::destroy(EntryId storage, EntryId element) {
    volume_.requireSound();
    const std::vector<EntryId> gone = withDescendants(element);
    Chain sectors;
    Chain miniSectors;
    for (const EntryId id : gone) {
        Chain& freed = volume_.isMini(id) ? miniSectors : sectors;
        freed.append(std::exchange(volume_.chains[id], {}));
    }
    NameTree(volume_.directory, storage).erase(element);
    for (const EntryId id : gone)
        volume_.directory.release(id);
    volume_.directory.commit();
    volume_.mini.release(miniSectors);
    volume_.fat.release(sectors);
}

void ElementTree::move(EntryId storage, EntryId element, EntryId to, const QString& newName) {
    volume_.requireSound();
    NameTree(volume_.directory, storage).erase(element);
    volume_.directory.change(element).setName(newName);
    NameTree(volume_.directory, to).insert(element);
    volume_.directory.commit();
}

} // namespace quillford::compound
