#include "persistence/compound/SectorFile.h"

#include <algorithm>

namespace quillford::compound {

namespace {

/// The bytes of a chain of units of `1 << shift` bytes, unit u beginning at `base + (u << shift)`.
Extents stretch(const Chain& chain, int shift, quint64 base, quint64 position, quint64 length) {
    Extents extents;
    const quint64 whole = quint64{chain.length()} << shift;
    if (position >= whole)
        return extents;
    length = std::min(length, whole - position);
    for (std::size_t i = chain.runAt(static_cast<quint32>(position >> shift)); length > 0; ++i) {
        const Chain::Run& run = chain.runs()[i];
        const quint64 skipped = position - (quint64{run.position} << shift);
        const quint64 taken = std::min(length, (quint64{run.count} << shift) - skipped);
        addExtent(extents, {base + (quint64{run.first} << shift) + skipped, taken});
        position += taken;
        length -= taken;
    }
    return extents;
}

/// Takes the bytes of a list of parts from its front, a given number at a time.
class PartsInOrder {
public:
    explicit PartsInOrder(std::span<const Bytes> parts) : parts_(parts) {}

    const std::vector<Bytes>& take(quint64 length) {
        taken_.clear();
        while (length > 0) {
            const Bytes rest = parts_.front().subspan(used_);
            const Bytes piece = rest.first(std::min<quint64>(rest.size(), length));
            if (!piece.empty())
                taken_.push_back(piece);
            length -= piece.size();
            used_ += piece.size();
            if (used_ == parts_.front().size()) {
                parts_ = parts_.subspan(1);
                used_ = 0;
            }
        }
        return taken_;
    }

private:
    std::span<const Bytes> parts_;
    std::size_t used_ = 0;
    std::vector<Bytes> taken_;
};

} // namespace

void addExtent(Extents& extents, const Extent& extent) {
    if (!extents.empty() && extents.back().offset + extents.back().length == extent.offset)
        extents.back().length += extent.length;
    else
        extents.push_back(extent);
}

quint32 SectorFile::sectorsFor(quint64 bytes) const {
    return static_cast<quint32>((bytes + sectorSize() - 1) >> shift_);
}

quint64 SectorFile::offsetOf(SectorId sector) const {
    return (quint64{sector} + 1) << shift_;
}

Extents SectorFile::extents(const Chain& chain, quint64 position, quint64 length) const {
    return stretch(chain, shift_, sectorSize(), position, length);
}

Extents SectorFile::miniExtents(const Chain& container, const Chain& chain, quint64 position,
                                quint64 length) const {
    Extents result;
    for (const Extent& mini : stretch(chain, MiniSectorShift, 0, position, length)) {
        for (const Extent& extent : extents(container, mini.offset, mini.length))
            addExtent(result, extent);
    }
    return result;
}

std::size_t SectorFile::read(const Extents& extents, MutableBytes into) const {
    std::size_t done = 0;
    for (const Extent& extent : extents) {
        const std::size_t count = store_->read(extent.offset, into.subspan(done, extent.length));
        done += count;
        if (count < extent.length)
            break;
    }
    return done;
}

void SectorFile::write(const Extents& extents, std::span<const Bytes> parts) {
    PartsInOrder bytes(parts);
    for (const Extent& extent : extents)
        store_->write(extent.offset, bytes.take(extent.length));
}

void SectorFile::writeSector(SectorId sector, Bytes bytes) {
    store_->write(offsetOf(sector), {&bytes, 1});
}

} // namespace quillford::compound
