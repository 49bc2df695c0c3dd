#pragma once

#include "platform/PictureLoader.h"

#include <QImage>
#include <QString>
#include <QTextBlock>
#include <QTextDocument>

namespace quillford {

/// Where a page is shown: on a screen one page flows into the next, with a gap between them.
enum class Medium { Screen, Paper };

/// Puts an HTML page into a document of the toolkit's, as a browser would show it; see `RichText`
/// for what is translated. Sizes are in pixels, 96 to the inch, which the application must be told
/// (`Qt::AA_Use96Dpi`) for sizes in points to follow. Nothing in the page runs. A figure is loaded
/// when it is drawn, or when it is laid out for a device that the layout knows: `pictures` outlives
/// the page; one that cannot be read leaves a frame
/// of its size.
void setPage(QTextDocument& document, const QString& page, PictureLoader& pictures, Medium medium);

/// A frame that stands for a picture that is not shown. Who gives a document its pictures answers
/// with it instead of nothing, but for figures (`figureIndex`), which the document then asks for:
/// the toolkit would open whatever file any other picture's name names.
[[nodiscard]] QImage missingPicture();

/// Whether the block has to stand on one page with the next one: headings do, and drawings.
[[nodiscard]] bool keepsWithNext(const QTextBlock& block);

/// Whether the block begins a page on paper.
[[nodiscard]] bool beginsPage(const QTextBlock& block);

} // namespace quillford
