#include "platform/linux/desktop/QtPagePrinter.h"

#include "base/Error.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Five pages, of which the numbers of those that are printed are kept.
class Pages final : public PrintedPages {
public:
    Pages(QList<int>& printed, bool fails) : printed_(printed), fails_(fails) {}

    int pageCount() const override { return 5; }

    void printOn(QPagedPaintDevice& paper, const QList<int>& pages) override {
        if (fails_)
            throw Error(57, u"The pages cannot be printed."_s);
        printed_ = pages;
        QPainter painter(&paper);
        painter.drawText(100, 100, u"page"_s);
        layout = paper.pageLayout();
    }

    static inline QPageLayout layout;

private:
    QList<int>& printed_;
    bool fails_;
};

class QtPagePrinterTest : public testing::Test {
protected:
    /// Does this in the print dialog when it is up.
    static void inDialog(const std::function<void(QPrintDialog&)>& step) {
        QTimer::singleShot(0, qApp, [step] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            step(*dialog);
        });
    }

    void print() {
        printer.print({u"<p>x"_s, {}, u"A draft"_s, {}, {}}, [this] { ++ended; });
    }

    [[nodiscard]] QString pdf() const { return folder.filePath(u"out.pdf"_s); }

    // No test may find a real printer.
    ScopedEnvironment noCups{"CUPS_SERVER", QByteArray("/nowhere/cups.sock")};
    QTemporaryDir folder;
    QList<int> printed;
    bool fails = false;
    int ended = 0;
    QtPagePrinter printer{
        [this](const PrintJob&) { return std::make_unique<Pages>(printed, fails); }};
};

} // namespace

TEST_F(QtPagePrinterTest, a_machine_without_printers_has_an_empty_list) {
    EXPECT_TRUE(printer.printers().isEmpty());
}

TEST_F(QtPagePrinterTest, prints_all_pages_on_letter_paper_into_the_file_that_the_user_names) {
    inDialog([this](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.minPage(), 1);
        EXPECT_EQ(dialog.maxPage(), 5);
        EXPECT_EQ(dialog.printer()->docName(), u"A draft"_s);
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(pdf());
        dialog.done(QDialog::Accepted);
    });
    print();
    EXPECT_EQ(printed, (QList<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(contentOf(pdf()).startsWith("%PDF"));
    EXPECT_EQ(Pages::layout.pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(Pages::layout.paintRect(QPageLayout::Point), QRectF(0, 0, 612, 792));
}

TEST_F(QtPagePrinterTest, prints_the_pages_that_the_user_chooses) {
    inDialog([this](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(pdf());
        dialog.printer()->setPrintRange(QPrinter::PageRange);
        dialog.printer()->setPageRanges(QPageRanges::fromString(u"2-3"_s));
        dialog.done(QDialog::Accepted);
    });
    print();
    EXPECT_EQ(printed, (QList<int>{2, 3}));
}

TEST_F(QtPagePrinterTest, without_a_printer_the_dialog_prints_into_a_file) {
    inDialog([this](QPrintDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(u"filename"_s);
        ASSERT_NE(name, nullptr);
        name->setText(pdf());
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        ASSERT_NE(buttons, nullptr);
        buttons->button(QDialogButtonBox::Ok)->click();
    });
    print();
    EXPECT_EQ(printed, (QList<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Pages::layout.paintRect(QPageLayout::Point), QRectF(0, 0, 612, 792));
    EXPECT_TRUE(contentOf(pdf()).contains("/MediaBox [0 0 612"));
}

TEST_F(QtPagePrinterTest, a_cancelled_print_has_ended_too) {
    inDialog([](QPrintDialog& dialog) { dialog.reject(); });
    print();
    EXPECT_TRUE(printed.isEmpty());
    EXPECT_EQ(ended, 1);
}

TEST_F(QtPagePrinterTest, a_print_that_fails_has_ended_before_the_failure_is_told) {
    fails = true;
    inDialog([this](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(pdf());
        dialog.done(QDialog::Accepted);
    });
    EXPECT_EQ(errorOf([this] { print(); }).description(), u"The pages cannot be printed."_s);
    EXPECT_EQ(ended, 1);
}
