#include "draft/pages/PagedDocument.h"

#include "base/Error.h"
#include "draft/pages/PageLine.h"

#include <QFont>
#include <QPagedPaintDevice>

namespace quillford {

namespace {

constexpr double PixelsPerInch = 96;
constexpr QSizeF PaperSize(8.5 * PixelsPerInch, 11 * PixelsPerInch);
constexpr double Margin = PixelsPerInch;
constexpr double StepsPerPixel = PaperText::StepsPerInch / PixelsPerInch;
constexpr double TextHeight = (PaperSize.height() - 2 * Margin) * StepsPerPixel;
constexpr int DeviceError = 57; // the runtime's number for a device that fails

/// The line in the middle of the upper or the lower margin, which begins at `top`.
void drawLine(QPainter& painter, const PageLine& line, double top) {
    constexpr int Height = 16; // 12 points
    QFont font(QStringLiteral("Times New Roman"));
    font.setPixelSize(Height);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QRectF place(Margin, top, PaperSize.width() - 2 * Margin, Margin);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, line.left);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter, line.centre);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, line.right);
}

[[noreturn]] void raiseDeviceError() {
    throw Error(DeviceError, QStringLiteral("The pages cannot be printed."));
}

} // namespace

PagedDocument::PagedDocument(const PrintJob& job, PictureLoader& pictures)
    : job_(job), text_(job, pictures), cuts_(cutPages(text_.bands(), TextHeight)) {}

void PagedDocument::drawText(QPainter& painter, const PageCut& cut) const {
    painter.save();
    painter.translate(Margin, Margin);
    painter.scale(1 / StepsPerPixel, 1 / StepsPerPixel);
    painter.translate(0, -cut.top);
    text_.draw(painter, cut, Margin * StepsPerPixel);
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
    painter.setRenderHint(QPainter::LosslessImageRendering); // line drawings keep their edges
    painter.scale(paper.logicalDpiX() / PixelsPerInch, paper.logicalDpiY() / PixelsPerInch);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0 && !paper.newPage())
            raiseDeviceError();
        drawPage(painter, pages[i]);
    }
    if (!painter.end())
        raiseDeviceError();
}

} // namespace quillford
