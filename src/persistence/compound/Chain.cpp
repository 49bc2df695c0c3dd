#include "persistence/compound/Chain.h"

#include <algorithm>

namespace quillford::compound {

quint32 Chain::length() const {
    return isEmpty() ? 0 : runs_.back().position + runs_.back().count;
}

std::size_t Chain::runAt(quint32 position) const {
    const auto found =
        std::upper_bound(runs_.begin(), runs_.end(), position,
                         [](quint32 p, const Run& run) { return p < run.position + run.count; });
    return static_cast<std::size_t>(found - runs_.begin());
}

SectorId Chain::at(quint32 position) const {
    const Run& run = runs_[runAt(position)];
    return run.first + (position - run.position);
}

void Chain::append(SectorId first, quint32 count) {
    if (count == 0)
        return;
    if (!isEmpty() && last() + 1 == first)
        runs_.back().count += count;
    else
        runs_.push_back({length(), first, count});
}

void Chain::append(const Chain& other) {
    for (const Run& run : other.runs_)
        append(run.first, run.count);
}

Chain Chain::cutTo(quint32 length) {
    const quint32 whole = this->length();
    if (length >= whole)
        return {};
    Chain tail = part(length, whole - length);
    *this = part(0, length);
    return tail;
}

Chain Chain::part(quint32 position, quint32 count) const {
    Chain result;
    for (std::size_t i = runAt(position); i < runs_.size() && count > 0; ++i) {
        const quint32 skipped = position - runs_[i].position;
        const quint32 taken = std::min(count, runs_[i].count - skipped);
        result.append(runs_[i].first + skipped, taken);
        position += taken;
        count -= taken;
    }
    return result;
}

} // namespace quillford::compound
