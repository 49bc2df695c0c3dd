#include "draft/template/ItemTable.h"

namespace quillford {

namespace {

bool hasBracket(const QString& name) {
    return name.contains(u'[') || name.contains(u']');
}

} // namespace

void ItemTable::set(const QString& name, const QString& value) {
    itemNamed(name).value = value;
}

void ItemTable::append(const QString& name, const QString& value) {
    itemNamed(name).value += value;
}

void ItemTable::remove(const QString& name) {
    const auto place = places_.constFind(name);
    if (place == places_.constEnd())
        return;
    const std::size_t removed = *place;
    namesWithBracket_ -= hasBracket(name) ? 1 : 0;
    places_.remove(name); // before the item, which may own this very name
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(removed));
    for (std::size_t& other : places_)
        other -= other > removed ? 1 : 0;
}

const ItemTable::Item* ItemTable::find(const QString& name) const {
    const auto place = places_.constFind(name);
    return place == places_.constEnd() ? nullptr : &items_[*place];
}

ItemTable::Item& ItemTable::itemNamed(const QString& name) {
    const auto place = places_.constFind(name);
    if (place != places_.constEnd())
        return items_[*place];
    places_.insert(name, items_.size());
    namesWithBracket_ += hasBracket(name) ? 1 : 0;
    return items_.emplace_back(Item{name, u'[' + name + u']', {}});
}

} // namespace quillford
