#include "app/ProgramFixture.h"
#include "support/Files.h"
#include "verification/dialogs/ReportSurface.h"

using namespace quillford;

namespace {

class ExportOnScreenTest : public ProgramFixture {
protected:
    void open() {
        startWithSample();
        click(u"picTab(8)"_s);
    }

    static void printsReport(QDialog& dialog) { press(dialog, u"imgReportPrint"_s); }

    [[nodiscard]] static QRect onScreen(const QWidget& widget) {
        return {widget.mapToGlobal(QPoint()), widget.size()};
    }
};

} // namespace

TEST_F(ExportOnScreenTest, a_page_is_written_where_the_user_wants_it_and_opened) {
    open();
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
    whenAskedForFile(place(u"draft.htm"_s));
    click(u"imgCreateToFile(2)"_s);
    EXPECT_TRUE(QFile::exists(place(u"draft.htm"_s)));
    EXPECT_EQ(opened(), QStringList{place(u"draft.htm"_s)});
}

TEST_F(ExportOnScreenTest, the_report_leads_to_the_cell_in_view_with_the_cursor_in_it) {
    open();
    click(u"picTab(5)"_s);
    // The last cell of the last element, far below what the section shows first.
    const int last = 2;
    const QString cell = u"txtElementSub9(%1)"_s.arg(last);
    type(cell, u"gyroscope"_s);
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
    whenAsked(u"Verification Found Possible Errors"_s, [](QDialog& dialog) {
        auto* report = dialog.findChild<ReportSurface*>(u"picErrorReport"_s);
        report->setFocus();
        QTest::keyClick(report, Qt::Key_Return);
    });
    choose(u"mnuFileExportToHTML"_s);
    QWidget& field = control(cell);
    EXPECT_TRUE(control(u"picContainer(5)"_s).isEnabled());
    EXPECT_EQ(form().focusWidget(), &field);
    EXPECT_TRUE(onScreen(*field.parentWidget()->parentWidget()).contains(onScreen(field)));
}

TEST_F(ExportOnScreenTest, the_report_is_printed_before_its_form_which_stays) {
    open();
    click(u"picTab(5)"_s);
    type(u"txtElementSub9(2)"_s, u"gyroscope"_s);
    for (const QString& name : {u"report.pdf"_s, u"again.pdf"_s}) {
        whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
        whenAsked(u"Verification Found Possible Errors"_s, printsReport);
        whenAskedToPrint(place(name));
        whenAsked(u"Verification Found Possible Errors"_s, [this, name](QDialog& dialog) {
            EXPECT_TRUE(contentOf(place(name)).startsWith("%PDF"));
            // The form behind takes no click meanwhile.
            QTest::mouseClick(form().windowHandle(), Qt::LeftButton, {},
                              control(u"imgPrint"_s).mapTo(&form(), QPoint(8, 8)));
            presses(u"cmdReturnToProject"_s)(dialog);
        });
        choose(u"mnuFileExportToHTML"_s);
    }
    whenAsked(u"Information"_s, QMessageBox::Ok,
              u"Not found printer,Please install printer and have a try."_s);
    click(u"imgPrint"_s);
}

TEST_F(ExportOnScreenTest, a_report_that_is_not_printed_leaves_its_form_too) {
    open();
    click(u"picTab(5)"_s);
    type(u"txtElementSub9(2)"_s, u"gyroscope"_s);
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
    whenAsked(u"Verification Found Possible Errors"_s, printsReport);
    whenAskedToPrint({});
    whenAsked(u"Verification Found Possible Errors"_s, printsReport);
    whenAskedToPrint(place(u"gone/report.pdf"_s));
    whenAsked(u"Print"_s, QMessageBox::Ok); // the dialog stays, for another name
    whenAskedToPrint({});
    whenAsked(u"Verification Found Possible Errors"_s, presses(u"cmdCancel"_s));
    choose(u"mnuFileExportToHTML"_s);
    EXPECT_TRUE(form().isVisible());
}

TEST_F(ExportOnScreenTest, without_a_word_processor_the_button_and_the_entry_tell_it) {
    open();
    whenAsked(
        u"Microsoft Office Exporting Problem"_s, QMessageBox::Ok,
        u"You perhaps did not install Office or use Office 2010 via the 'Click-to-Run' installation method which utilizes virtualization technologies not compatible with Quillford. Please install Office or Office 2010 without using 'Click-to-Run' to resolve this issue."_s);
    click(u"imgCreateToFile(1)"_s);
    whenAsked(
        u"Microsoft Word Required to Export"_s, QMessageBox::Ok,
        u"You are attempting to export to Microsoft Word. This feature is available on Quillford only if you have Microsoft Word installed on your computer. Please install Microsoft Word on your computer and then you will be able to export to Microsoft Word."_s);
    choose(u"mnuFileExportToWord"_s);
}
