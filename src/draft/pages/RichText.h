#pragma once

#include <QList>
#include <QSize>
#include <QString>

namespace quillford {

/// A figure of a page.
struct PageFigure {
    QString path; ///< its picture's file
    QSize size;   ///< in pixels; invalid where the page does not tell it

    friend bool operator==(const PageFigure&, const PageFigure&) = default;
};

/// A page in the words of the toolkit's rich text, which reads a part of HTML and of its style
/// sheets only.
struct RichText {
    QString html;
    QString styleSheet; ///< stands in for the style that the page itself holds; empty for none
    QList<PageFigure> figures; ///< number i stands in `html` as the picture `pictureName(i)`
};

/// Translates a page that the program has composed; any other is taken as it is. Takes time linear
/// in the length of the page and never fails.
[[nodiscard]] RichText richTextOf(const QString& page);

/// The name under which a page shows its picture `index`. The path itself would be read by the
/// rules of addresses, in which "#" and "%" mean something.
[[nodiscard]] QString pictureName(qsizetype index);

/// The index behind such a name; -1 for any other name.
[[nodiscard]] qsizetype figureIndex(const QString& name);

} // namespace quillford
