#include "app/ProgramFixture.h"
#include "verification/dialogs/ReportSurface.h"

using namespace quillford;

namespace {

class ExportOnScreenTest : public ProgramFixture {
protected:
    void open() {
        startWithSample();
        click(u"picTab(8)"_s);
    }

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
