#pragma once

#include "platform/PagePrinter.h"
#include "platform/PrintedPages.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace quillford {

/// Prints with the toolkit, which knows the printers of CUPS and can print into a PDF file without
/// any. Only the print dialog is shown: the one for the page's setup is known to crash.
class QtPagePrinter final : public PagePrinter {
public:
    using LayOut = std::function<std::unique_ptr<PrintedPages>(const PrintJob&)>;

    explicit QtPagePrinter(LayOut layOut);

    /// The window before which the dialog stands from now on, where no dialog is up that stands in
    /// front of it; it may go at any time.
    void setParent(QWidget* parent) { parent_ = parent; }

    [[nodiscard]] QList<Printer> printers() override;

    void choosePrinter(const QString& name) override { chosen_ = name; }

    void print(const PrintJob& job, const std::function<void()>& ended) override;

private:
    void printAsChosen(const PrintJob& job);

    LayOut layOut_;
    QPointer<QWidget> parent_;
    QString chosen_;
};

} // namespace quillford
