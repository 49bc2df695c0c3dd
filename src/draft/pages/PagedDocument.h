#pragma once

#include "draft/pages/PageCuts.h"
#include "draft/pages/PaperText.h"
#include "platform/PictureLoader.h"
#include "platform/PrintJob.h"
#include "platform/PrintedPages.h"

#include <QPainter>

namespace quillford {

/// An HTML page on paper: Letter with margins of an inch. It is laid out once, and then drawn as it
/// stands at any resolution.
class PagedDocument final : public PrintedPages {
public:
    /// Lays the page out: see `PaperText`.
    PagedDocument(const PrintJob& job, PictureLoader& pictures);

    [[nodiscard]] int pageCount() const override { return static_cast<int>(cuts_.size()); }

    /// Draws a page, from 1, with its header and footer. The painter's origin is the top left
    /// corner of the paper, and its units are pixels of 96 to the inch.
    void drawPage(QPainter& painter, int page) const;

    void printOn(QPagedPaintDevice& paper, const QList<int>& pages) override;

private:
    void drawText(QPainter& painter, const PageCut& cut) const;

    PrintJob job_;
    PaperText text_;
    QList<PageCut> cuts_;
};

} // namespace quillford
