#include "verification/dialogs/frmVerifyResult.h"

#include "controls/ClickLabel.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "support/Themed.h"
#include "support/TurnWheel.h"
#include "verification/dialogs/DialogParts.h"

#include <QLabel>
#include <QScrollBar>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = frmVerifyResult::Answer;

/// Lines of ten pixels, on which every name fits.
class TenPixelLines final : public TextMeasure {
public:
    [[nodiscard]] double width(QStringView text, TextWeight) const override {
        return static_cast<double>(text.size()) * 6;
    }

    [[nodiscard]] int lineHeight() const override { return 10; }
};

class frmVerifyResultTest : public testing::Test {
protected:
    /// The report is as many lines high: three of them are heads.
    void missLines(int lines) {
        for (int i = 0; i < lines - 3; ++i)
            lists.missingMainElements.add(u"element %1"_s.arg(i), {i, 0});
    }

    [[nodiscard]] Answer showSuccess() {
        return frmVerifyResult(nullptr, measure, font).showVerificationSuccessful();
    }

    [[nodiscard]] Answer showErrors() {
        return frmVerifyResult(nullptr, measure, font).showVerificationErrors(lists);
    }

    static void cancel(frmVerifyResult& form) { press(form, u"cmdCancel"_s); }

    static QScrollBar& bar(frmVerifyResult& form) { return part<QScrollBar>(form, u"VScroll1"_s); }

    static QWidget& report(frmVerifyResult& form) { return part(form, u"picErrorReport"_s); }

    const Themed theme;
    TenPixelLines measure;
    QFont font;
    MissingLists lists;
    ModalUser user;
};

} // namespace

TEST_F(frmVerifyResultTest, the_all_clear_has_its_text_and_two_buttons) {
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        EXPECT_EQ(form.windowTitle(), u"Verification Successful!"_s);
        const auto& text = part<QLabel>(form, u"lblVerifyResult"_s);
        EXPECT_EQ(
            text.text(),
            u"Quillford has verified that you have entered all of the Main Elements, Sub-Elements and Reference Numerals into your Final Draft. While this is not a guarantee that your provisional application is completely accurate or that if fully discloses your invention, it does help prevent the basic mistake of not discussing an element or Reference Numeral in the text of your provisional application."_s);
        for (const QString& name :
             {u"lblReport"_s, u"imgReportPrint"_s, u"imgExclamation"_s,
              u"picErrorReportContainer"_s, u"VScroll1"_s, u"Label1"_s, u"cmdReturnToProject"_s})
            EXPECT_FALSE(part(form, name).isVisible()) << qPrintable(name);
        const QRect go = part(form, u"cmdContinue"_s).geometry();
        const QRect stay = part(form, u"cmdCancel"_s).geometry();
        EXPECT_NEAR(go.center().x(), form.width() / 3 + 20, 1);
        EXPECT_EQ(stay.x(), go.right() + 1 + 6);
        EXPECT_EQ(go.y(), below(text) + 15);
        EXPECT_EQ(stay.y(), go.y());
        EXPECT_TRUE(form.rect().contains(go) && form.rect().contains(stay));
        press(form, u"cmdContinue"_s);
    });
    EXPECT_EQ(showSuccess(), Answer::Continue);
}

TEST_F(frmVerifyResultTest, the_all_clear_may_be_cancelled_or_closed) {
    user.meets<frmVerifyResult>(cancel).meets<frmVerifyResult>(
        [](frmVerifyResult& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(showSuccess(), Answer::Cancel);
    EXPECT_EQ(showSuccess(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, the_report_has_its_texts_and_three_buttons) {
    missLines(5);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        EXPECT_EQ(form.windowTitle(), u"Verification Found Possible Errors"_s);
        EXPECT_EQ(
            part<QLabel>(form, u"lblVerifyResult"_s).text(),
            u"Quillford was unable to find the following in your Final Draft and therefore appear to be missing (or misspelled)."_s);
        EXPECT_EQ(part<QLabel>(form, u"lblReport"_s).text(), u"Error Report "_s);
        EXPECT_EQ(
            part<QLabel>(form, u"Label1"_s).text(),
            u"It is strongly recommended that you return to your Project and verify that you have entered all of the above information into your provisional application.  Failure to include all information in your provisional application can result in the loss of patent rights."_s);
        for (const QString& name : {u"lblReport"_s, u"imgReportPrint"_s, u"imgExclamation"_s,
                                    u"picErrorReportContainer"_s, u"Label1"_s, u"cmdContinue"_s,
                                    u"cmdCancel"_s, u"cmdReturnToProject"_s}) {
            EXPECT_TRUE(part(form, name).isVisible()) << qPrintable(name);
            EXPECT_TRUE(form.rect().contains(part(form, name).geometry())) << qPrintable(name);
        }
        EXPECT_EQ(part(form, u"imgReportPrint"_s).cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(part(form, u"Label1"_s).y(),
                  below(part(form, u"picErrorReportContainer"_s)) + 10);
        EXPECT_EQ(part(form, u"cmdContinue"_s).y(), below(part(form, u"Label1"_s)) + 10);
        press(form, u"cmdReturnToProject"_s);
    });
    EXPECT_EQ(showErrors(), Answer::ReturnToProject);
}

TEST_F(frmVerifyResultTest, the_export_may_go_on_in_spite_of_the_report) {
    missLines(4);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) { press(form, u"cmdContinue"_s); });
    EXPECT_EQ(showErrors(), Answer::Continue);
}

TEST_F(frmVerifyResultTest, the_lists_are_taken_over_and_the_shared_ones_are_empty_at_once) {
    missLines(5);
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    lists.missingNumerals.add(u"10"_s, {0, 0});
    user.meets<frmVerifyResult>([this](frmVerifyResult& form) {
        EXPECT_TRUE(lists.missingMainElements.isEmpty());
        EXPECT_TRUE(lists.missingSubElements.isEmpty());
        EXPECT_TRUE(lists.missingNumerals.isEmpty());
        EXPECT_TRUE(report(form).accessibleDescription().contains(u"pin"_s));
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, a_short_report_is_shown_whole_without_a_bar) {
    missLines(10);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        EXPECT_EQ(part(form, u"picErrorReportContainer"_s).height(), 100);
        EXPECT_FALSE(bar(form).isVisible());
        EXPECT_EQ(bar(form).maximum(), 0);
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, a_report_of_exactly_250_has_no_bar) {
    missLines(25);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        EXPECT_EQ(report(form).height(), 250);
        EXPECT_EQ(part(form, u"picErrorReportContainer"_s).height(), 250);
        EXPECT_FALSE(bar(form).isVisible());
        EXPECT_EQ(bar(form).maximum(), 0);
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, a_longer_report_is_scrolled_by_a_bar_of_the_same_height) {
    missLines(26);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        EXPECT_EQ(report(form).height(), 260);
        EXPECT_EQ(part(form, u"picErrorReportContainer"_s).height(), 250);
        EXPECT_TRUE(bar(form).isVisible());
        EXPECT_EQ(bar(form).height(), 250);
        EXPECT_EQ(bar(form).y(), part(form, u"picErrorReportContainer"_s).y());
        EXPECT_EQ(bar(form).maximum(), 10);
        bar(form).setValue(7);
        EXPECT_EQ(report(form).y(), -7);
        for (const QString& button : {u"cmdContinue"_s, u"cmdCancel"_s, u"cmdReturnToProject"_s})
            EXPECT_TRUE(form.rect().contains(part(form, button).geometry()));
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, the_wheel_moves_the_bar_wherever_the_mouse_is_and_stops_at_its_ends) {
    missLines(100);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        turnWheel(report(form), NotchDown);
        EXPECT_EQ(bar(form).value(), 250);
        turnWheel(part(form, u"Label1"_s), NotchDown);
        turnWheel(form, NotchDown);
        EXPECT_EQ(bar(form).value(), 750);
        turnWheel(form, NotchDown);
        EXPECT_EQ(bar(form).value(), 750);
        turnWheel(form, NotchUp);
        EXPECT_EQ(bar(form).value(), 500);
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, a_touch_pad_turns_in_fractions_that_are_gathered_to_notches) {
    missLines(100);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        bar(form).setValue(300);
        turnWheel(report(form), QPoint(NotchDown, 0));
        EXPECT_EQ(bar(form).value(), 300) << "what goes sideways moves nothing";
        for (int i = 0; i < 3; ++i)
            turnWheel(report(form), NotchDown / 4);
        EXPECT_EQ(bar(form).value(), 300);
        turnWheel(report(form), NotchDown / 4);
        EXPECT_EQ(bar(form).value(), 550);
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, a_click_on_an_entry_leads_to_its_cell) {
    lists.missingMainElements.add(u"hinge"_s, {1, 0});
    lists.missingSubElements.add(u"pin"_s, {2, 4});
    frmVerifyResult form(nullptr, measure, font);
    user.meets<frmVerifyResult>([](frmVerifyResult& up) {
        // Two heads and one entry stand over the second entry.
        QTest::mouseClick(&report(up), Qt::LeftButton, {}, QPoint(60, 35));
    });
    EXPECT_EQ(form.showVerificationErrors(lists), Answer::GoToCell);
    EXPECT_EQ(form.cell(), (ElementCell{2, 4}));
}

TEST_F(frmVerifyResultTest, enter_on_an_entry_leads_to_its_cell) {
    lists.missingMainElements.add(u"hinge"_s, {1, 0});
    lists.missingNumerals.add(u"24"_s, {1, 4});
    frmVerifyResult form(nullptr, measure, font);
    user.meets<frmVerifyResult>([](frmVerifyResult& up) {
        report(up).setFocus();
        QTest::keyClick(&report(up), Qt::Key_Down);
        QTest::keyClick(&report(up), Qt::Key_Return);
    });
    EXPECT_EQ(form.showVerificationErrors(lists), Answer::GoToCell);
    EXPECT_EQ(form.cell(), (ElementCell{1, 4}));
}

TEST_F(frmVerifyResultTest, the_entry_that_the_arrows_mark_is_brought_into_view) {
    missLines(40);
    user.meets<frmVerifyResult>([](frmVerifyResult& form) {
        report(form).setFocus();
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&report(form), Qt::Key_Down);
        EXPECT_EQ(bar(form).value(), 320 - 250) << "the entry ends at 32 lines";
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&report(form), Qt::Key_Up);
        EXPECT_EQ(bar(form).value(), 10);
        cancel(form);
    });
    EXPECT_EQ(showErrors(), Answer::Cancel);
}

TEST_F(frmVerifyResultTest, the_print_picture_hands_the_lists_over_and_leaves_the_form_standing) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    lists.missingNumerals.add(u"10"_s, {0, 0});
    QStringList printed;
    frmVerifyResult form(nullptr, measure, font);
    QObject::connect(&form, &frmVerifyResult::imgReportPrint_Click, &form,
                     [&](const MissingLists& missing) {
                         printed.append(missing.missingMainElements.text() + u"; "_s +
                                        missing.missingSubElements.text() + u"; "_s +
                                        missing.missingNumerals.text());
                     });
    user.meets<frmVerifyResult>([](frmVerifyResult& up) {
        QTest::mouseClick(&part(up, u"imgReportPrint"_s), Qt::LeftButton);
        EXPECT_TRUE(up.isVisible());
        cancel(up);
    });
    EXPECT_EQ(form.showVerificationErrors(lists), Answer::Cancel);
    EXPECT_EQ(printed, QStringList{u"hinge; ; 10"_s});
}
