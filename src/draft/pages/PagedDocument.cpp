#include "draft/pages/PagedDocument.h"

#include "base/Error.h"
#include "draft/pages/PageText.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace quillford {

namespace {

constexpr double UnitsPerInch = 96;
constexpr QSizeF PaperSize(8.5 * UnitsPerInch, 11 * UnitsPerInch);
constexpr double Margin = UnitsPerInch;
constexpr double TextHeight = PaperSize.height() - 2 * Margin;
constexpr int HeaderAndFooterPixels = 16;
constexpr int DeviceError = 57; // the runtime's number for a device that fails

/// A document that reads files of one folder and nothing else.
class FolderDocument final : public QTextDocument {
public:
    explicit FolderDocument(const QString& folder) : folder_(folder) {}

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        const QString path = QDir::cleanPath(QDir(folder_).filePath(name.path()));
        QFile file(path);
        const bool isBelow = !folder_.isEmpty() && path.startsWith(QDir(folder_).path() + u'/');
        if (!isBelow || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            return type == ImageResource ? QVariant(missingPicture()) : QVariant();
        return file.readAll();
    }

private:
    QString folder_;
};

QFont pageFont() {
    QFont font(QStringLiteral("Times New Roman"));
    font.setPixelSize(HeaderAndFooterPixels);
    // Distances between letters are those of the design at any resolution.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Where a line stands with the space that belongs to it. In a line of fixed height the letters
/// stand on a base at four fifths of it.
Band bandOf(const QTextBlock& block, const QTextLine& line, double blockTop) {
    const QTextBlockFormat format = block.blockFormat();
    Band band;
    band.paragraph = block.blockNumber();
    band.keepsWithNext = keepsWithNext(block);
    if (format.lineHeightType() == QTextBlockFormat::FixedHeight) {
        band.top = blockTop + line.y() + line.ascent() - format.lineHeight() * 4 / 5;
        band.bottom = band.top + format.lineHeight();
    } else {
        band.top = blockTop + line.y();
        band.bottom = band.top + line.height();
    }
    return band;
}

/// The first and the last line of a table stand together with its frame.
void addTableFrame(Band& band, const QTextDocument& document, const QTextBlock& block) {
    auto* table = qobject_cast<QTextTable*>(document.frameAt(block.position()));
    if (table == nullptr)
        return;
    const QRectF frame = document.documentLayout()->frameBoundingRect(table);
    const bool isFirst = block.position() == table->firstPosition();
    const bool isLast = block.position() + block.length() - 1 == table->lastPosition();
    if (isFirst)
        band.top = frame.top();
    if (isLast)
        band.bottom = frame.bottom();
}

void drawLine(QPainter& painter, const PageLine& line, double top) {
    const QRectF place(Margin, top, PaperTextWidth, Margin);
    painter.setFont(pageFont());
    painter.setPen(Qt::black);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, line.left);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter, line.centre);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, line.right);
}

[[noreturn]] void raiseDeviceError() {
    throw Error(DeviceError, QStringLiteral("The pages cannot be printed."));
}

} // namespace

PagedDocument::PagedDocument(const PrintJob& job, PictureLoader& pictures)
    : job_(job), text_(std::make_unique<FolderDocument>(job.folder)) {
    text_->setUseDesignMetrics(true);
    text_->setDocumentMargin(0);
    text_->setDefaultFont(pageFont());
    setPage(*text_, job.html, pictures, Medium::Paper);
    text_->setTextWidth(PaperTextWidth);
    cuts_ = cutPages(bands(), TextHeight);
}

PagedDocument::~PagedDocument() = default;

QList<Band> PagedDocument::bands() const {
    QList<Band> bands;
    const QAbstractTextDocumentLayout& layout = *text_->documentLayout();
    for (QTextBlock block = text_->begin(); block.isValid(); block = block.next()) {
        const double top = layout.blockBoundingRect(block).top();
        const int lines = block.layout()->lineCount();
        for (int i = 0; i < lines; ++i) {
            Band band = bandOf(block, block.layout()->lineAt(i), top);
            band.beginsPage = i == 0 && beginsPage(block);
            addTableFrame(band, *text_, block);
            bands.append(band);
        }
    }
    return bands;
}

/// Draws what the page holds of a paragraph that began on an earlier one, and gives where that
/// ends. The layout would draw the line before as well, unseen, but found by whoever searches.
double PagedDocument::drawRestOfParagraph(QPainter& painter, const PageCut& cut) const {
    const auto& layout = *text_->documentLayout();
    const int position = layout.hitTest(QPointF(0, cut.top + 1), Qt::FuzzyHit);
    const QTextBlock block = text_->findBlock(position);
    const QRectF place = layout.blockBoundingRect(block);
    if (place.top() >= cut.top - 1 || text_->frameAt(position) != text_->rootFrame())
        return cut.top;
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        const Band band = bandOf(block, line, place.top());
        if (band.top >= cut.top - 1 && band.bottom <= cut.bottom + 1)
            line.draw(&painter, place.topLeft());
    }
    const double end = place.bottom() + block.layout()->boundingRect().top();
    return std::min(end + 0.1, cut.bottom);
}

void PagedDocument::drawText(QPainter& painter, const PageCut& cut) const {
    // Drawings may be wider than the text: they take what they need of both margins.
    QRectF part(-Margin, cut.top, PaperSize.width(), cut.bottom - cut.top);
    painter.save();
    painter.translate(Margin, Margin - cut.top);
    painter.setClipRect(part);
    painter.setPen(Qt::black);
    part.setTop(drawRestOfParagraph(painter, cut));
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Qt::black);
    if (part.height() > 0)
        text_->documentLayout()->draw(&painter, context);
    painter.restore();
}

void PagedDocument::drawPage(QPainter& painter, int page) const {
    drawLine(painter, pageLine(job_.header, page, pageCount()), 0);
    drawText(painter, cuts_.at(page - 1));
    drawLine(painter, pageLine(job_.footer, page, pageCount()), PaperSize.height() - Margin);
}

void PagedDocument::printOn(QPagedPaintDevice& paper, const QList<int>& pages) {
    QPainter painter;
    if (!painter.begin(&paper))
        raiseDeviceError();
    // Line drawings keep their edges.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(paper.logicalDpiX() / UnitsPerInch, paper.logicalDpiY() / UnitsPerInch);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0 && !paper.newPage())
            raiseDeviceError();
        drawPage(painter, pages[i]);
    }
    if (!painter.end())
        raiseDeviceError();
}

} // namespace quillford
