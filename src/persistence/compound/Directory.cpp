#include "persistence/compound/Directory.h"

#include <algorithm>

namespace quillford::compound {

DirectoryEntry& Directory::change(EntryId id) {
    changed_.insert(id);
    return entries_[id];
}

EntryId Directory::allocate() {
    while (lowestFree_ < size() && reached_[lowestFree_])
        ++lowestFree_;
    if (lowestFree_ == size())
        growByOneSector();
    reached_[lowestFree_] = true;
    return lowestFree_;
}

void Directory::release(EntryId id) {
    change(id) = DirectoryEntry();
    reached_[id] = false;
    lowestFree_ = std::min(lowestFree_, id);
}

void Directory::appendSector(Bytes bytes) {
    for (std::size_t place = 0; place + EntrySize <= bytes.size(); place += EntrySize)
        entries_.emplace_back(bytes.subspan(place, EntrySize));
    onDisk_.insert(onDisk_.end(), entries_.begin() + static_cast<std::ptrdiff_t>(onDisk_.size()),
                   entries_.end());
    parents_.resize(entries_.size(), NoEntry);
    reached_.resize(entries_.size());
    reachedOnDisk_.resize(entries_.size());
}

void Directory::growByOneSector() {
    const Chain added = fat_.allocate(1);
    std::vector<std::byte> bytes;
    for (quint32 i = 0; i < entriesInSector(); ++i) {
        const DirectoryEntry unused;
        bytes.insert(bytes.end(), unused.bytes().begin(), unused.bytes().end());
    }
    file_.writeSector(added.first(), bytes);
    fat_.extend(chain_, added);
    noteGrowth();
    appendSector(bytes);
}

void Directory::noteGrowth() {
    if (!header_.hasLargeSectors())
        return;
    header_.setField(header::DirectorySectors, chain_.length());
    fat_.writeHeader();
}

void Directory::commit() {
    Ids fresh;
    Ids visible;
    Ids gone;
    for (const EntryId id : changed_) {
        if (entries_[id] == onDisk_[id] && reached_[id] == reachedOnDisk_[id])
            continue;
        Ids& group = !reachedOnDisk_[id] ? fresh : reached_[id] ? visible : gone;
        group.insert(id);
    }
    const quint32 first = visible.empty() ? 0 : chainPlaceOf(*visible.begin());
    const quint32 last = visible.empty() ? 0 : chainPlaceOf(*visible.rbegin());
    const auto rewritten = [&](EntryId id) {
        return !visible.empty() && chainPlaceOf(id) >= first && chainPlaceOf(id) <= last;
    };
    std::erase_if(fresh, rewritten);
    std::erase_if(gone, rewritten);
    writeSectorsInPlace(fresh);
    if (first != last) {
        writeAnew(first, last);
    } else if (!visible.empty()) {
        Ids all(changed_.lower_bound(first * entriesInSector()),
                changed_.lower_bound((first + 1) * entriesInSector()));
        writeInPlace(first, all);
    }
    writeSectorsInPlace(gone);
    for (const EntryId id : changed_)
        reachedOnDisk_[id] = reached_[id];
    changed_.clear();
}

void Directory::writeSectorsInPlace(const Ids& ids) {
    for (auto next = ids.begin(); next != ids.end();) {
        const quint32 place = chainPlaceOf(*next);
        const auto end = ids.lower_bound((place + 1) * entriesInSector());
        writeInPlace(place, Ids(next, end));
        next = end;
    }
}

/// Writes the stretch of one sector from the first of `ids` to the last; what lies between stays as
/// it is on the disk.
void Directory::writeInPlace(quint32 chainPlace, const Ids& ids) {
    for (const EntryId id : ids)
        bringToImage(id);
    std::vector<std::byte> bytes;
    for (EntryId id = *ids.begin(); id <= *ids.rbegin(); ++id)
        bytes.insert(bytes.end(), onDisk_[id].bytes().begin(), onDisk_[id].bytes().end());
    const quint64 within = quint64{*ids.begin() % entriesInSector()} * EntrySize;
    const Bytes part(bytes);
    file_.store().write(file_.offsetOf(chain_.at(chainPlace)) + within, {&part, 1});
}

void Directory::writeAnew(quint32 firstPlace, quint32 lastPlace) {
    const quint32 count = lastPlace - firstPlace + 1;
    const Chain added = fat_.allocate(count);
    std::vector<std::byte> bytes;
    for (EntryId id = firstPlace * entriesInSector(); id < (lastPlace + 1) * entriesInSector();
         ++id) {
        bringToImage(id);
        bytes.insert(bytes.end(), onDisk_[id].bytes().begin(), onDisk_[id].bytes().end());
    }
    const Bytes part(bytes);
    file_.write(file_.extents(added, 0, bytes.size()), {&part, 1});

    const bool reachesEnd = lastPlace + 1 == chain_.length();
    fat_.link(added, reachesEnd ? EndOfChain : chain_.at(lastPlace + 1));
    if (firstPlace == 0) {
        fat_.publish();
        header_.setField(header::FirstDirectorySector, added.first());
        fat_.writeHeader();
    } else {
        const SectorId before = chain_.at(firstPlace - 1);
        fat_.setNext(before, added.first());
        fat_.publish(before);
    }
    Chain relinked = chain_.part(0, firstPlace);
    relinked.append(added);
    relinked.append(chain_.part(lastPlace + 1, chain_.length() - lastPlace - 1));
    const Chain old = chain_.part(firstPlace, count);
    chain_ = relinked;
    fat_.release(old);
}

} // namespace quillford::compound
