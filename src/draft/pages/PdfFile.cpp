#include "draft/pages/PdfFile.h"

#include "draft/pages/PagedDocument.h"

#include <QBuffer>
#include <QPdfWriter>

#include <numeric>

namespace quillford {

QByteArray pdfOf(const PrintJob& job, PictureLoader& pictures) {
    PagedDocument document(job, pictures);
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter paper(&buffer);
    paper.setTitle(job.title);
    paper.setCreator(QStringLiteral("Quillford 3.1"));
    paper.setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()});
    QList<int> pages(document.pageCount());
    std::iota(pages.begin(), pages.end(), 1);
    document.printOn(paper, pages);
    return pdf;
}

} // namespace quillford
