#pragma once

#include <QList>
#include <QPageRanges>

namespace quillford {

/// Which pages of a document go to a printer.
struct PageSequence {
    int pageCount = 1;
    QPageRanges ranges; ///< empty for all pages
    int copies = 1;     ///< those that the printer does not make itself
    bool collated = true;
    bool lastFirst = false;

    /// The numbers of the pages in the order in which they are printed. Ranges behind the last page
    /// are empty; with nothing but these there is nothing to print.
    [[nodiscard]] QList<int> pages() const;
};

} // namespace quillford
