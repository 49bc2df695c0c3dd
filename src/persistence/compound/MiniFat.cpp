#include "persistence/compound/MiniFat.h"

#include <algorithm>
#include <utility>

namespace quillford::compound {

Chain MiniFat::allocate(quint32 count) {
    Chain taken = takeFree(count);
    while (taken.length() < count) {
        addedTable_.append(fat_.allocate(1));
        appendFreeTableSector();
        taken.append(takeFree(count - taken.length()));
    }
    for (const Chain::Run& run : taken.runs())
        usedBytes_ = std::max(usedBytes_, (quint64{run.first} + run.count) * MiniSectorSize);
    if (usedBytes_ > capacity())
        container_.append(fat_.allocate(file_.sectorsFor(usedBytes_) - container_.length()));
    return taken;
}

Extents MiniFat::unusedRest() const {
    if (container_.length() == publishedContainer_)
        return {};
    return file_.extents(container_, usedBytes_, capacity() - usedBytes_);
}

void MiniFat::extend(Chain& chain, const Chain& added) {
    if (added.isEmpty())
        return;
    publishContainer();
    link(added);
    publishTable();
    if (chain.isEmpty()) {
        writeChanged(0, tableSectors());
    } else {
        // The entry that makes the new mini sectors reachable goes out last.
        const SectorId tail = chain.last();
        const quint32 last = tableSectorOf(tail);
        writeChanged(0, last);
        writeChanged(last + 1, tableSectors());
        setNext(tail, added.first());
        writeChanged(last, last + 1);
    }
    chain.append(added);
}

void MiniFat::publishContainer() {
    if (container_.length() > publishedContainer_) {
        Chain before = container_.part(0, publishedContainer_);
        fat_.extend(before, container_.part(publishedContainer_,
                                            container_.length() - publishedContainer_));
        publishedContainer_ = container_.length();
    }
    const DirectoryEntry& root = directory_.at(RootEntry);
    if (root.size(true) == usedBytes_ && root.firstSector() == container_.firstOrEnd())
        return;
    DirectoryEntry& changed = directory_.change(RootEntry);
    changed.setFirstSector(container_.firstOrEnd());
    changed.setSize(usedBytes_);
    directory_.commit();
}

void MiniFat::publishTable() {
    if (addedTable_.isEmpty())
        return;
    writeChanged(table_.length(), tableSectors());
    const bool first = table_.isEmpty();
    Chain added;
    std::swap(added, addedTable_);
    fat_.extend(table_, added);
    if (first)
        header_.setField(header::FirstMiniFatSector, table_.first());
    header_.setField(header::MiniFatSectors, table_.length());
    fat_.writeHeader();
}

} // namespace quillford::compound
