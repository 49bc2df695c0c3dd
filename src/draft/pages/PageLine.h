#pragma once

#include <QString>
#include <QStringView>

namespace quillford {

/// The line at the top or at the foot of a printed page: what stands left, centred and right.
struct PageLine {
    QString left;
    QString centre;
    QString right;

    friend bool operator==(const PageLine&, const PageLine&) = default;
};

/// Reads the text in which a header or a footer is set, for page `page` of `pages`, both from 1:
/// "&p" is the page, "&P" the number of pages and "&&" an ampersand; the first "&b" begins what is
/// centred, the second what stands right, and a third means nothing. Any other letter behind an
/// ampersand asks for something that the pages do not tell (a date, an address), and is left out
/// with it; an ampersand at the end stands for itself.
[[nodiscard]] PageLine pageLine(QStringView text, int page, int pages);

} // namespace quillford
