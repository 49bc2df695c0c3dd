#include "platform/linux/desktop/QtPagePrinter.h"

#include "platform/linux/desktop/PageSequence.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScopeGuard>

#include <utility>

namespace quillford {

namespace {

/// Letter, counted from the corner of the paper: the pages bring their margins along.
void setPaper(QPrinter& printer) {
    printer.setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()});
    printer.setFullPage(true);
}

QList<int> chosenPages(const QPrinter& printer, int pageCount) {
    PageSequence sequence;
    sequence.pageCount = pageCount;
    if (printer.printRange() == QPrinter::PageRange)
        sequence.ranges = printer.pageRanges();
    if (!printer.supportsMultipleCopies())
        sequence.copies = printer.copyCount();
    sequence.collated = printer.collateCopies();
    sequence.lastFirst = printer.pageOrder() == QPrinter::LastPageFirst;
    return sequence.pages();
}

} // namespace

QtPagePrinter::QtPagePrinter(LayOut layOut) : layOut_(std::move(layOut)) {}

QList<PagePrinter::Printer> QtPagePrinter::printers() {
    QList<Printer> found;
    for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
        const QPrinter printer(info);
        found.append(
            {info.printerName(), printer.pageLayout().orientation() == QPageLayout::Portrait});
    }
    return found;
}

void QtPagePrinter::print(const PrintJob& job, const std::function<void()>& ended) {
    const auto end = qScopeGuard(ended);
    printAsChosen(job);
}

void QtPagePrinter::printAsChosen(const PrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    if (!chosen_.isEmpty())
        printer.setPrinterName(chosen_);
    printer.setDocName(job.title);
    printer.setCreator(QStringLiteral("Quillford 3.1"));
    setPaper(printer);
    const std::unique_ptr<PrintedPages> pages = layOut_(job);
    QWidget* const inFront = QApplication::activeModalWidget();
    QPrintDialog dialog(&printer, inFront ? inFront : parent_.data());
    dialog.setMinMax(1, pages->pageCount());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies);
    if (dialog.exec() != QDialog::Accepted)
        return;
    printer.setFullPage(true);
    const QList<int> numbers = chosenPages(printer, pages->pageCount());
    if (!numbers.isEmpty())
        pages->printOn(printer, numbers);
}

} // namespace quillford
