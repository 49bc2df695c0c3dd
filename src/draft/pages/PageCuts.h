#pragma once

#include <QList>

namespace quillford {

/// A stretch of a document from top to bottom that stands undivided on a page: a line, as a rule.
struct Band {
    double top = 0;
    double bottom = 0;
    int paragraph = 0;          ///< bands of one paragraph have one number
    bool beginsPage = false;    ///< stands first on a new page
    bool keepsWithNext = false; ///< stands on one page with the next band
};

/// The part of a document that stands on one page.
struct PageCut {
    double top = 0;
    double bottom = 0;

    friend bool operator==(const PageCut&, const PageCut&) = default;
};

/// Cuts a document into pages of at most `height`. Bands come from top to bottom; those that
/// overlap stay together. Where there is a choice, a page neither ends with the first line of a
/// paragraph nor with a band that keeps with the next, and none begins with the last line of a
/// paragraph. A band higher than a page goes on over several. There is always one page.
[[nodiscard]] QList<PageCut> cutPages(const QList<Band>& bands, double height);

} // namespace quillford
