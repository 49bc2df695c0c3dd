#include "draft/pages/PageCuts.h"

#include <algorithm>

namespace quillford {

namespace {

/// Bands that share a height cannot be cut apart: the cells of one row of a table, for instance.
QList<Band> separated(const QList<Band>& bands) {
    constexpr double Touch = 1; // lines below each other overlap by no more, when rounded
    QList<Band> separate;
    for (Band band : bands) {
        while (!band.beginsPage && !separate.isEmpty() &&
               band.top < separate.last().bottom - Touch) {
            const Band beside = separate.takeLast();
            band.top = std::min(band.top, beside.top);
            band.bottom = std::max(band.bottom, beside.bottom);
            band.beginsPage = beside.beginsPage;
            band.keepsWithNext = band.keepsWithNext || beside.keepsWithNext;
        }
        separate.append(band);
    }
    return separate;
}

class PageCutter {
public:
    PageCutter(const QList<Band>& bands, double height) : bands_(bands), height_(height) {}

    QList<PageCut> cut() {
        qsizetype first = 0;
        while (first < bands_.size())
            first = cutPage(first);
        if (pages_.isEmpty())
            pages_.append(PageCut());
        return pages_;
    }

private:
    /// Cuts the page that begins with the band `first`, and gives the band that begins the next.
    qsizetype cutPage(qsizetype first) {
        const double top = bands_[first].top;
        if (bands_[first].bottom - top > height_)
            return cutHighBand(first);
        qsizetype next = first + 1;
        while (next < bands_.size() && !bands_[next].beginsPage &&
               bands_[next].bottom - top <= height_)
            ++next;
        next = goodCut(first, next);
        pages_.append({top, bands_[next - 1].bottom});
        return next;
    }

    qsizetype cutHighBand(qsizetype band) {
        for (double top = bands_[band].top; top < bands_[band].bottom; top += height_)
            pages_.append({top, std::min(top + height_, bands_[band].bottom)});
        return band + 1;
    }

    /// The last cut up to `last` that is allowed; `last` itself where none is.
    [[nodiscard]] qsizetype goodCut(qsizetype first, qsizetype last) const {
        for (qsizetype cut = last; cut > first; --cut)
            if (mayCutBefore(cut))
                return cut;
        return last;
    }

    [[nodiscard]] bool mayCutBefore(qsizetype band) const {
        if (band == bands_.size() || bands_[band].beginsPage)
            return true;
        const bool afterFirstLine = isInside(band) && !isInside(band - 1);
        const bool beforeLastLine = isInside(band) && !isInside(band + 1);
        return !bands_[band - 1].keepsWithNext && !afterFirstLine && !beforeLastLine;
    }

    /// Whether the band belongs to the paragraph of the one before it.
    [[nodiscard]] bool isInside(qsizetype band) const {
        return band > 0 && band < bands_.size() &&
               bands_[band].paragraph == bands_[band - 1].paragraph;
    }

    const QList<Band> bands_;
    double height_;
    QList<PageCut> pages_;
};

} // namespace

QList<PageCut> cutPages(const QList<Band>& bands, double height) {
    return PageCutter(separated(bands), height).cut();
}

} // namespace quillford
