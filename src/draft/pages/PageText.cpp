#include "draft/pages/PageText.h"

#include "draft/pages/LongRuns.h"
#include "draft/pages/RichText.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextCursor>
#include <QUrl>

#include <optional>

namespace quillford {

namespace {

constexpr int UnknownLength = 16;
constexpr int KeepsWithNextState = 1; // as the style sheets write it

/// Stands in for a picture that cannot be shown.
QImage frameOf(QSize size) {
    QImage frame(size, QImage::Format_ARGB32_Premultiplied);
    frame.fill(Qt::transparent);
    QPainter painter(&frame);
    painter.setPen(Qt::gray);
    painter.drawRect(frame.rect().adjusted(0, 0, -1, -1));
    return frame;
}

/// The first picture in a block.
std::optional<QTextImageFormat> pictureIn(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part)
        if (part.fragment().charFormat().isImageFormat())
            return part.fragment().charFormat().toImageFormat();
    return std::nullopt;
}

/// Puts a frame in the place of a figure whose picture cannot be read, and scales one for a screen
/// beforehand, because the toolkit does so without smoothing.
void fitPicture(QTextDocument& document, const QTextImageFormat& figure, Medium medium) {
    if (!isFigure(figure.name()))
        return;
    const QUrl name(figure.name());
    const auto picture = document.resource(QTextDocument::ImageResource, name).value<QImage>();
    const QSizeF size(figure.width(), figure.height());
    const bool isSized = size.width() > 0 && size.height() > 0;
    if (picture.isNull())
        document.addResource(QTextDocument::ImageResource, name,
                             isSized ? frameOf(size.toSize()) : missingPicture());
    else if (medium == Medium::Screen && isSized)
        document.addResource(QTextDocument::ImageResource, name,
                             picture.scaled((size * qGuiApp->devicePixelRatio()).toSize(),
                                            Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// The blanks beside a figure would make its line higher than the figure.
void shrinkBlanks(const QTextBlock& block) {
    QTextCursor cursor(block);
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        if (fragment.charFormat().isImageFormat())
            continue;
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        QTextCharFormat small;
        small.setFontPointSize(1);
        cursor.mergeCharFormat(small);
    }
}

void separateOnScreen(const QTextBlock& block) {
    constexpr int Gap = 64;
    QTextBlockFormat apart;
    apart.setTopMargin(Gap);
    QTextCursor(block).mergeBlockFormat(apart);
}

void finishBlock(QTextDocument& document, const QTextBlock& block, Medium medium) {
    if (const auto figure = pictureIn(block)) {
        fitPicture(document, *figure, medium);
        shrinkBlanks(block);
    }
    if (medium == Medium::Screen && beginsPage(block))
        separateOnScreen(block);
}

} // namespace

void setPage(QTextDocument& document, const QString& page, PictureLoader& pictures, Medium medium) {
    const RichText text = richTextOf(page);
    document.setUndoRedoEnabled(false);
    document.setDefaultStyleSheet(text.styleSheet);
    document.setHtml(text.html);
    for (qsizetype i = 0; i < text.pictures.size(); ++i)
        document.addResource(QTextDocument::ImageResource, QUrl(pictureName(i)),
                             pictures.picture(text.pictures[i]));
    QTextCursor edit(&document);
    edit.beginEditBlock(); // a document on screen is laid out anew at the end of the block, once
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        finishBlock(document, block, medium);
    breakLongRuns(document);
    edit.endEditBlock();
}

QImage missingPicture() {
    return frameOf({UnknownLength, UnknownLength});
}

bool keepsWithNext(const QTextBlock& block) {
    return block.userState() == KeepsWithNextState;
}

bool beginsPage(const QTextBlock& block) {
    return block.blockFormat().pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysBefore);
}

} // namespace quillford
