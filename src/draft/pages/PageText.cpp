#include "draft/pages/PageText.h"

#include "base/Text.h"
#include "core/rules/FigureSize.h"
#include "draft/pages/LongRuns.h"
#include "draft/pages/RichText.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextCursor>
#include <QUrl>

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

bool holdsPicture(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part)
        if (part.fragment().charFormat().isImageFormat())
            return true;
    return false;
}

/// A figure's picture as the medium needs it; a frame where there is none. For a screen it is
/// scaled beforehand, because the toolkit does so without smoothing. One of unknown size may have
/// become readable since the page was composed, and is given the size of any other figure.
QImage shownPicture(const PageFigure& figure, const QImage& picture, Medium medium) {
    const QSize size = figure.size;
    const auto scaledTo = [&](QSize wanted) {
        return picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    if (picture.isNull())
        return size.isEmpty() ? missingPicture() : frameOf(size);
    if (!size.isValid())
        return scaledTo(computeFigureSize(picture.size()).expandedTo({1, 1}));
    if (medium == Medium::Paper || size.isEmpty())
        return picture;
    return scaledTo((QSizeF(size) * qGuiApp->devicePixelRatio()).toSize());
}

/// Has the document load each figure when it is asked for it: on a screen that is when it is drawn,
/// because nearly all the time in which a draft comes up would go into pictures out of sight.
void provideFigures(QTextDocument& document, const QList<PageFigure>& figures,
                    PictureLoader& pictures, Medium medium) {
    document.setResourceProvider([&document, figures, &pictures, medium](const QUrl& name) {
        const qsizetype index = figureIndex(name.toString());
        if (index < 0 || index >= figures.size())
            return QVariant();
        const PageFigure& figure = figures[index];
        const QVariant shown = shownPicture(figure, pictures.picture(figure.path), medium);
        document.addResource(QTextDocument::ImageResource, name, shown);
        return shown;
    });
}

/// A line is as high as its picture, and no higher for the blanks beside it.
void makeRoomForPicture(const QTextBlock& block) {
    QTextCursor cursor(block);
    QTextBlockFormat high;
    high.setLineHeight(block.blockFormat().lineHeight(), QTextBlockFormat::MinimumHeight);
    cursor.mergeBlockFormat(high);
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        if (fragment.charFormat().isImageFormat() || !isBlank(fragment.text()))
            continue;
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        QTextCharFormat small;
        small.setFontPointSize(1);
        cursor.mergeCharFormat(small);
    }
}

/// A rule is the ground of a paragraph without text, which is two dots high where the lowest type
/// is. On a screen the upper half of it is enough.
void thinRule(const QTextBlock& block) {
    QLinearGradient upperHalf(0, 0, 0, 1);
    upperHalf.setCoordinateMode(QGradient::ObjectMode);
    upperHalf.setColorAt(0.5, block.blockFormat().background().color());
    upperHalf.setColorAt(0.51, Qt::transparent);
    QTextBlockFormat thin;
    thin.setBackground(upperHalf);
    QTextCursor(block).mergeBlockFormat(thin);
}

void separateOnScreen(const QTextBlock& block) {
    constexpr int Gap = 64;
    QTextBlockFormat apart;
    apart.setTopMargin(Gap);
    QTextCursor(block).mergeBlockFormat(apart);
}

void finishBlock(const QTextBlock& block, Medium medium) {
    if (holdsPicture(block))
        makeRoomForPicture(block);
    if (medium == Medium::Screen && beginsPage(block))
        separateOnScreen(block);
    if (medium == Medium::Screen && block.blockFormat().background().style() == Qt::SolidPattern)
        thinRule(block);
}

} // namespace

void setPage(QTextDocument& document, const QString& page, PictureLoader& pictures, Medium medium) {
    const RichText text = richTextOf(page);
    document.setUndoRedoEnabled(false);
    document.clear(); // the pictures of the page before, too
    document.setDefaultStyleSheet(text.styleSheet);
    provideFigures(document, text.figures, pictures, medium);
    QTextCursor edit(&document);
    edit.beginEditBlock(); // a document on screen is laid out at the end of the block, once
    document.setHtml(text.html);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        finishBlock(block, medium);
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
