#include "persistence/compound/NameTree.h"

#include <bit>

namespace quillford::compound {

EntryId NameTree::side(EntryId id, bool left) const {
    return left ? directory_.at(id).left() : directory_.at(id).right();
}

bool NameTree::isRed(EntryId id) const {
    return id != NoEntry && directory_.at(id).isRed();
}

NameKey NameTree::keyOf(EntryId id) const {
    return NameKey(directory_.at(id).name().value_or(QString()));
}

EntryId NameTree::leftmost(EntryId id) const {
    while (side(id, true) != NoEntry)
        id = side(id, true);
    return id;
}

std::optional<EntryId> NameTree::find(const QString& name) const {
    const NameKey key(name);
    for (EntryId id = root(); id != NoEntry;) {
        const NameKey here = keyOf(id);
        if (here == key)
            return id;
        id = side(id, key < here);
    }
    return std::nullopt;
}

std::vector<EntryId> NameTree::elements() const {
    std::vector<EntryId> ordered;
    if (root() == NoEntry)
        return ordered;
    EntryId id = leftmost(root());
    while (id != NoEntry) {
        ordered.push_back(id);
        if (side(id, false) != NoEntry) {
            id = leftmost(side(id, false));
            continue;
        }
        while (parent(id) != NoEntry && !isLeft(id))
            id = parent(id);
        id = parent(id);
    }
    return ordered;
}

void NameTree::setSide(EntryId id, bool left, EntryId child) {
    if (left)
        directory_.change(id).setLeft(child);
    else
        directory_.change(id).setRight(child);
    if (child != NoEntry)
        directory_.setParent(child, id);
}

void NameTree::setRed(EntryId id, bool red) {
    if (directory_.at(id).isRed() != red)
        directory_.change(id).setRed(red);
}

void NameTree::replace(EntryId id, EntryId by) {
    const EntryId above = parent(id);
    if (above != NoEntry) {
        setSide(above, isLeft(id), by);
        return;
    }
    directory_.change(storage_).setChild(by);
    if (by != NoEntry)
        directory_.setParent(by, NoEntry);
}

/// Turns `id` down to the left (or right), and its child of the other side up into its place.
void NameTree::rotate(EntryId id, bool left) {
    const EntryId up = side(id, !left);
    setSide(id, !left, side(up, left));
    replace(id, up);
    setSide(up, left, id);
}

void NameTree::insert(EntryId id) {
    DirectoryEntry& added = directory_.change(id);
    added.setLeft(NoEntry);
    added.setRight(NoEntry);
    directory_.setParent(id, NoEntry);
    if (root() == NoEntry) {
        setRed(id, false);
        directory_.change(storage_).setChild(id);
        return;
    }
    setRed(id, true);
    const NameKey key = keyOf(id);
    EntryId above = root();
    bool left = key < keyOf(above);
    while (side(above, left) != NoEntry) {
        above = side(above, left);
        left = key < keyOf(above);
    }
    setSide(above, left, id);
    balanceAfterInsert(id);
}

void NameTree::balanceAfterInsert(EntryId id) {
    while (isRed(parent(id))) {
        const EntryId above = parent(id);
        const EntryId grand = parent(above);
        const bool left = isLeft(above);
        const EntryId uncle = side(grand, !left);
        if (isRed(uncle)) {
            setRed(above, false);
            setRed(uncle, false);
            setRed(grand, true);
            id = grand;
            continue;
        }
        if (id == side(above, !left)) {
            rotate(above, left);
            id = above;
        }
        setRed(parent(id), false);
        setRed(grand, true);
        rotate(grand, !left);
    }
    setRed(root(), false);
}

void NameTree::erase(EntryId id) {
    const EntryId left = side(id, true);
    const EntryId right = side(id, false);
    if (left == NoEntry || right == NoEntry) {
        const EntryId child = left == NoEntry ? right : left;
        const EntryId above = parent(id);
        replace(id, child);
        if (!isRed(id))
            balanceAfterErase(child, above);
        return;
    }
    // The next name in order has no left child: it leaves its place and takes that of the entry.
    const EntryId next = leftmost(right);
    const EntryId afterNext = side(next, false);
    const bool removedBlack = !isRed(next);
    EntryId above = parent(next);
    if (above == id) {
        above = next;
    } else {
        replace(next, afterNext);
        setSide(next, false, right);
    }
    replace(id, next);
    setSide(next, true, left);
    setRed(next, isRed(id));
    if (removedBlack)
        balanceAfterErase(afterNext, above);
}

/// Below `parentOfId`, on the side of `id` (perhaps nothing), one black entry is missing.
void NameTree::balanceAfterErase(EntryId id, EntryId parentOfId) {
    while (parentOfId != NoEntry && !isRed(id)) {
        const bool left = side(parentOfId, true) == id;
        EntryId sibling = side(parentOfId, !left);
        if (isRed(sibling)) {
            setRed(sibling, false);
            setRed(parentOfId, true);
            rotate(parentOfId, left);
            sibling = side(parentOfId, !left);
        }
        if (!isRed(side(sibling, true)) && !isRed(side(sibling, false))) {
            setRed(sibling, true);
            id = parentOfId;
            parentOfId = parent(id);
            continue;
        }
        if (!isRed(side(sibling, !left))) {
            setRed(side(sibling, left), false);
            setRed(sibling, true);
            rotate(sibling, !left);
            sibling = side(parentOfId, !left);
        }
        setRed(sibling, isRed(parentOfId));
        setRed(parentOfId, false);
        setRed(side(sibling, !left), false);
        rotate(parentOfId, left);
        return;
    }
    if (id != NoEntry)
        setRed(id, false);
}

void NameTree::rebuild(const std::vector<EntryId>& ordered) {
    // Every level but the last is full, and the entries of a last, unfilled level are the red ones.
    const auto fullLevels = static_cast<int>(std::bit_width(ordered.size() + 1)) - 1;
    const EntryId top = link(ordered, 0, ordered.size(), fullLevels);
    directory_.change(storage_).setChild(top);
    if (top != NoEntry)
        directory_.setParent(top, NoEntry);
}

EntryId NameTree::link(const std::vector<EntryId>& ordered, std::size_t from, std::size_t to,
                       int redLevel) {
    if (from == to)
        return NoEntry;
    const std::size_t middle = from + (to - from) / 2;
    const EntryId id = ordered[middle];
    setRed(id, redLevel == 0);
    setSide(id, true, link(ordered, from, middle, redLevel - 1));
    setSide(id, false, link(ordered, middle + 1, to, redLevel - 1));
    return id;
}

} // namespace quillford::compound
