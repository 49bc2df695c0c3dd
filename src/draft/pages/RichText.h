#pragma once

#include <QString>
#include <QStringList>

namespace quillford {

/// A page in the words of the toolkit's rich text, which reads a part of HTML and of its style
/// sheets only.
struct RichText {
    QString html;
    QString styleSheet;   ///< stands in for the style that the page itself holds; empty for none
    QStringList pictures; ///< paths of files; number i stands in `html` as `pictureName(i)`
};

/// Translates a page that the program has composed; any other is taken as it is. Takes time linear
/// in the length of the page and never fails.
[[nodiscard]] RichText richTextOf(const QString& page);

/// The name under which a page shows its picture `index`. The path itself would be read by the
/// rules of addresses, in which "#" and "%" mean something.
[[nodiscard]] QString pictureName(qsizetype index);

/// Whether a picture's name is one of those.
[[nodiscard]] bool isFigure(const QString& name);

} // namespace quillford
