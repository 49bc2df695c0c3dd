#include "draft/pages/PaperText.h"

#include "draft/pages/PageText.h"
#include "draft/pages/RichText.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace quillford {

namespace {

constexpr double StepsPerPixel = PaperText::StepsPerInch / 96.0;
constexpr double PointsPerPixel = 72 / 96.0;
constexpr double Touch = 0.1; // lengths that differ by less are the same

/// A document that shows the pictures of one folder's page and of no other.
class FolderDocument final : public QTextDocument {
public:
    explicit FolderDocument(const QString& folder) : folder_(folder) {}

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (figureIndex(name.toString()) >= 0)
            return {};
        const bool isLocal = name.isRelative() || name.isLocalFile();
        QFile file(QDir(folder_).filePath(name.path()));
        if (folder_.isEmpty() || !isLocal || !QFileInfo(file).isFile() ||
            !file.open(QIODevice::ReadOnly))
            return type == ImageResource ? QVariant(missingPicture()) : QVariant();
        return file.readAll();
    }

private:
    QString folder_;
};

QImage deviceOf(int stepsPerInch) {
    constexpr double InchesPerMetre = 1 / 0.0254;
    QImage device(1, 1, QImage::Format_RGB32);
    device.setDotsPerMeterX(qRound(stepsPerInch * InchesPerMetre));
    device.setDotsPerMeterY(qRound(stepsPerInch * InchesPerMetre));
    return device;
}

QFont textFont() {
    QFont font(QStringLiteral("Times New Roman"));
    font.setPointSizeF(12);
    // Distances between letters are those of the design at any resolution.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Has type that is told in pixels follow the steps as type in points does.
void measureInPoints(QTextBlock& block, QTextCursor& cursor) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        const int pixels = fragment.charFormat().intProperty(QTextFormat::FontPixelSize);
        if (pixels == 0)
            continue;
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        QTextCharFormat format = fragment.charFormat();
        format.clearProperty(QTextFormat::FontPixelSize);
        format.setFontPointSize(pixels * PointsPerPixel);
        cursor.setCharFormat(format);
    }
}

/// The width of the widest picture in a block, in pixels.
double pictureWidth(const QTextBlock& block) {
    double width = 0;
    for (auto part = block.begin(); !part.atEnd(); ++part)
        width = std::max(width, part.fragment().charFormat().toImageFormat().width());
    return width;
}

/// Says in steps what the layout reads in steps though it is told in pixels: the lengths at the
/// sides of a paragraph. A drawing wider than the column is moved into the left margin by half of
/// what is too much, because the toolkit would let all of it stand out at the right.
void setSides(const QTextBlock& block, QTextCursor& cursor) {
    QTextBlockFormat format = block.blockFormat();
    format.setLeftMargin(format.leftMargin() * StepsPerPixel);
    format.setRightMargin(format.rightMargin() * StepsPerPixel);
    format.setTextIndent(format.textIndent() * StepsPerPixel);
    const double excess = pictureWidth(block) * StepsPerPixel - PaperText::Width;
    if (excess > 0) {
        format.setAlignment(Qt::AlignLeft);
        format.setTextIndent(-excess / 2);
    }
    cursor.setPosition(block.position());
    cursor.setBlockFormat(format);
}

/// In a line of fixed height the letters stand on a base at four fifths of it.
Band bandOf(const QTextBlock& block, const QTextLine& line, double blockTop) {
    const QTextBlockFormat format = block.blockFormat();
    Band band;
    band.top = blockTop + line.y();
    band.bottom = band.top + line.height();
    band.paragraph = block.blockNumber();
    band.keepsWithNext = keepsWithNext(block);
    if (format.lineHeightType() == QTextBlockFormat::FixedHeight) {
        const double height = format.lineHeight() * StepsPerPixel;
        band.top += line.ascent() - height * 4 / 5;
        band.bottom = band.top + height;
    }
    return band;
}

/// The first line of a block whose space begins at `top` or below.
int firstLineBelow(const QTextBlock& block, double blockTop, double top) {
    int first = 0;
    int last = block.layout()->lineCount();
    while (first < last) {
        const int middle = (first + last) / 2;
        const bool isAbove = bandOf(block, block.layout()->lineAt(middle), blockTop).top < top;
        (isAbove ? first : last) = isAbove ? middle + 1 : middle;
    }
    return first;
}

/// The first and the last line of a table stand together with its frame.
void addTableFrame(Band& band, const QTextDocument& document, const QTextBlock& block) {
    auto* table = qobject_cast<QTextTable*>(document.frameAt(block.position()));
    if (table == nullptr)
        return;
    const QRectF frame = document.documentLayout()->frameBoundingRect(table);
    if (block.position() == table->firstPosition())
        band.top = frame.top();
    if (block.position() + block.length() - 1 == table->lastPosition())
        band.bottom = frame.bottom();
}

} // namespace

PaperText::PaperText(const PrintJob& job, PictureLoader& pictures)
    : device_(deviceOf(StepsPerInch)), document_(std::make_unique<FolderDocument>(job.folder)) {
    document_->setUseDesignMetrics(true);
    document_->setDocumentMargin(0);
    document_->setDefaultFont(textFont());
    setPage(*document_, job.html, pictures, Medium::Paper);
    QTextCursor cursor(document_.get());
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        measureInPoints(block, cursor);
        setSides(block, cursor);
    }
    document_->documentLayout()->setPaintDevice(&device_);
    document_->setTextWidth(Width);
}

PaperText::~PaperText() = default;

QList<Band> PaperText::bands() const {
    QList<Band> bands;
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        const double top = document_->documentLayout()->blockBoundingRect(block).top();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            Band band = bandOf(block, block.layout()->lineAt(i), top);
            band.beginsPage = i == 0 && beginsPage(block);
            addTableFrame(band, *document_, block);
            bands.append(band);
        }
    }
    return bands;
}

/// Draws what the part holds of a paragraph that began above it, and gives where that ends. The
/// layout would draw the line before as well, unseen, but found by whoever searches.
double PaperText::drawRestOfParagraph(QPainter& painter, const PageCut& cut) const {
    const auto& layout = *document_->documentLayout();
    const int position = layout.hitTest(QPointF(0, cut.top + 1), Qt::FuzzyHit);
    const QTextBlock block = document_->findBlock(position);
    const QRectF place = layout.blockBoundingRect(block);
    if (place.top() >= cut.top - 1 || document_->frameAt(position) != document_->rootFrame())
        return cut.top;
    for (int i = firstLineBelow(block, place.top(), cut.top - Touch);
         i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        if (bandOf(block, line, place.top()).bottom > cut.bottom + Touch)
            break;
        line.draw(&painter, place.topLeft());
    }
    const double end = place.bottom() + block.layout()->boundingRect().top();
    return std::min(end + Touch, cut.bottom);
}

/// Where the blocks end that the part holds. High letters stand above the space of their line, and
/// the layout would draw the first line below the part for their sake, unseen as well.
double PaperText::endOfBlocks(const PageCut& cut) const {
    const auto& layout = *document_->documentLayout();
    QTextBlock block = document_->findBlock(layout.hitTest(QPointF(0, cut.bottom), Qt::FuzzyHit));
    for (int i = 0; i < 2 && block.isValid(); block = block.next(), ++i) {
        const bool isInTable = document_->frameAt(block.position()) != document_->rootFrame();
        if (isInTable || block.layout()->lineCount() == 0)
            continue;
        const double top = layout.blockBoundingRect(block).top();
        const Band first = bandOf(block, block.layout()->lineAt(0), top);
        if (first.top >= cut.bottom - Touch)
            return std::min(cut.bottom, top + block.layout()->boundingRect().top() - Touch);
    }
    return cut.bottom;
}

void PaperText::draw(QPainter& painter, const PageCut& cut, double margin) const {
    QRectF part(-margin, cut.top, Width + 2 * margin, cut.bottom - cut.top);
    painter.setClipRect(part);
    painter.setPen(Qt::black);
    part.setTop(drawRestOfParagraph(painter, cut));
    part.setBottom(endOfBlocks(cut));
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Qt::black);
    if (part.height() > 0)
        document_->documentLayout()->draw(&painter, context);
}

} // namespace quillford
