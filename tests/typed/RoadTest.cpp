#include "controls/HtmlView.h"
#include "core/wizard/FocusOrder.h"
#include "support/Files.h"
#include "typed/SampleTypist.h"

#include <QLabel>

using namespace quillford;

namespace {

/// One project on its way from the first start of the program to the paper.
class Road : public SampleTypist {
protected:
    /// The element that the text never mentions.
    const QString cell = u"txtElementSub9(2)"_s;

    void typeUpToTheDrawings() {
        typeIntroduction();
        typeInventors();
        typeObjects();
    }

    /// Kills the program when its timer has saved, starts it again, and opens what it has left.
    void recover() {
        letTimerSave();
        ASSERT_EQ(draftFiles().size(), 1);
        kill();
        begin();
        EXPECT_EQ(control<QLabel>(u"lblRecentPatents(1)"_s).text(),
                  u"Project - 1 Recovered (RECOVERED FILE)"_s);
        hands->click(u"lblRecentPatents(1)"_s);
        hands->comeBack();
    }

    void expectSectionsAsTold(int last) {
        for (const FieldRow& row : fieldTable())
            for (int i = 0; row.section <= last && i < told.fields.count(row.id); ++i)
                EXPECT_EQ(hands->shown(controlName(FieldPlace{row.id, i})),
                          told.fields.at(row.id, i).text())
                    << row.name.toString().toStdString() << " " << i;
    }

    void showFinalDraft() {
        whenAsked(u"Save Project?"_s, QMessageBox::No);
        clickTab(8);
    }

    [[nodiscard]] QString preview() { return control<HtmlView>(u"webPreview"_s).toPlainText(); }

    /// Has the draft checked, which finds the cell, and goes there.
    void goToWhatIsMissing() {
        whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
        whenAsked(u"Verification Found Possible Errors"_s, [](QDialog& dialog) {
            auto* const report = dialog.findChild<QWidget*>(u"picErrorReport"_s);
            ASSERT_TRUE(report);
            EXPECT_TRUE(report->accessibleDescription().contains(u"gyroscope"_s));
            ModalUser::pressByKeys(dialog, report);
        });
        hands->click(u"imgCreateToFile(2)"_s);
        hands->comeBack();
        EXPECT_EQ(currentTab(), 5);
        EXPECT_EQ(form().focusWidget(), &control(cell));
    }

    void emptyCell() {
        hands->press(Qt::Key_A, Qt::ControlModifier);
        hands->press(Qt::Key_Delete);
    }

    void exportToHtml(const QString& path) {
        whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
        whenAsked(u"Verification Successful!"_s, presses(u"cmdContinue"_s));
        whenAskedForFile(path);
        hands->click(u"imgCreateToFile(2)"_s);
        hands->comeBack();
    }

    void expectNoPrinter(const QString& button) {
        whenAsked(u"Information"_s, QMessageBox::Ok,
                  u"Not found printer,Please install printer and have a try."_s);
        hands->click(button);
        hands->comeBack();
    }
};

} // namespace

TEST_F(Road, leads_from_the_first_start_over_a_crash_to_the_exported_and_printed_draft) {
    typeUpToTheDrawings();
    recover();
    expectSectionsAsTold(3);
    whenAsked(u"Drawings - Important Information!"_s, presses(u"cmdOK"_s));
    clickTab(3);
    typeFigures();
    typeElements();
    clickTab(5);
    hands->fill(cell, u"gyroscope"_s);

    showFinalDraft();
    EXPECT_TRUE(preview().contains(u"Gyroscope"_s)) << "the index lists it";
    goToWhatIsMissing();
    emptyCell();
    showFinalDraft();
    EXPECT_FALSE(preview().contains(u"Gyroscope"_s));

    exportToHtml(place(u"draft.htm"_s));
    EXPECT_TRUE(contentOf(place(u"draft.htm"_s)).contains("Folding Field Easel"));
    EXPECT_EQ(opened(), QStringList{place(u"draft.htm"_s)});

    whenAskedToPrint(place(u"draft.pdf"_s));
    hands->click(u"imgPrintFile(1)"_s);
    hands->comeBack();
    EXPECT_TRUE(contentOf(place(u"draft.pdf"_s)).startsWith("%PDF"));
    expectNoPrinter(u"imgPrint"_s);
    expectNoPrinter(u"imgHelpPrint"_s);

    clickTab(9);
    EXPECT_TRUE(panel(9).isVisible());
    saveAs(place(u"easel.ivd"_s));
    EXPECT_TRUE(draftFiles().isEmpty()) << "the working copy is gone";
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    hands->click(u"lblClose"_s);
    EXPECT_FALSE(form().isVisible()) << "nobody is asked";
    begin();
    EXPECT_EQ(control<QLabel>(u"lblRecentPatents(1)"_s).text(), u"QF-101 (Folding Field Easel)"_s);
}
