#include "verification/dialogs/frmVerify.h"

#include "support/FakeClock.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "support/Themed.h"
#include "verification/dialogs/DialogParts.h"

#include <QLabel>
#include <QProgressBar>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = frmVerify::Answer;

class frmVerifyTest : public testing::Test {
protected:
    frmVerifyTest() {
        fields.setPanelCount(FieldGroup::SubElements, 2);
        fields.txtElementMain(0).setText(u"hinge"_s);
        fields.txtOperation.setText(u"The hinge 10 turns."_s);
        state.exportFormat = ExportFormat::Word;
        // The clock goes on by one millisecond at a time, with all events that wait.
        clock.interruptions.assign(1'000'000, 1);
        clock.events = [] { QCoreApplication::processEvents(); };
    }

    [[nodiscard]] Answer ask() { return frmVerify(nullptr, fields, state, clock, system).ask(); }

    static void verify(frmVerify& form) { press(form, u"cmdVerify"_s); }

    static void cancel(frmVerify& form) { press(form, u"cmdCancel"_s); }

    const Themed theme;
    ProjectFields fields;
    VerificationState state;
    FakeClock clock;
    mdlSystem system;
    ModalUser user;
};

} // namespace

TEST_F(frmVerifyTest, asks_with_its_text_and_three_buttons_in_one_line) {
    user.meets<frmVerify>([](frmVerify& form) {
        EXPECT_EQ(form.windowTitle(), u"Verify Final Draft?"_s);
        const auto& text = part<QLabel>(form, u"lblVerifyFinalDraft"_s);
        EXPECT_EQ(
            text.text(),
            u"Before proceeding further, it is highly recommended that Quillford verify that all (a) Main and Sub-Elements and (b) Reference Numerals have been included in your Final Draft.  The verification process may take a few minutes.  You can continue by skipping this verification process by selecting the \"Skip\" button below."_s);
        EXPECT_LE(text.heightForWidth(text.width()), text.height());
        for (const QString& name : {u"cmdVerify"_s, u"cmdSkip"_s, u"cmdCancel"_s}) {
            EXPECT_TRUE(part(form, name).isVisible() && part(form, name).isEnabled());
            EXPECT_EQ(part(form, name).y(), below(text) + 18) << qPrintable(name);
            EXPECT_TRUE(form.rect().contains(part(form, name).geometry())) << qPrintable(name);
        }
        EXPECT_EQ(form.height(), FormDialog::TitleHeight + 2030 / 15);
        for (const QString& name : {u"lblVerificationStatus"_s, u"prgCompletePercent"_s,
                                    u"lbPercent"_s, u"lblComplete"_s})
            EXPECT_FALSE(part(form, name).isVisible()) << qPrintable(name);
        cancel(form);
    });
    EXPECT_EQ(ask(), Answer::Cancel);
}

TEST_F(frmVerifyTest, shows_its_status_while_it_runs) {
    user.meets<frmVerify>(verify).meets<frmVerify>([](frmVerify& form) {
        EXPECT_EQ(form.windowTitle(), u"Verification Process Status"_s);
        EXPECT_EQ(
            part<QLabel>(form, u"lblVerifyFinalDraft"_s).text(),
            u"Quillford is verifying the data you entered to determine if you have entered all of the Main Elements, Sub-Elements and Reference Numerals.  Please be patient as this may take a few minutes."_s);
        EXPECT_EQ(form.height(), FormDialog::TitleHeight + 2400 / 15);
        for (const QString& name : {u"cmdVerify"_s, u"cmdSkip"_s})
            EXPECT_FALSE(part(form, name).isVisible() || part(form, name).isEnabled())
                << qPrintable(name);
        for (const QString& name : {u"lblVerificationStatus"_s, u"prgCompletePercent"_s,
                                    u"lbPercent"_s, u"lblComplete"_s})
            EXPECT_TRUE(part(form, name).isVisible()) << qPrintable(name);
        const QWidget& cancelButton = part(form, u"cmdCancel"_s);
        EXPECT_TRUE(cancelButton.isVisible() && cancelButton.isEnabled());
        EXPECT_EQ(cancelButton.x(), part(form, u"cmdSkip"_s).x());
        EXPECT_EQ(cancelButton.y(), below(part(form, u"lblVerificationStatus"_s)) + 20);
        EXPECT_TRUE(form.rect().contains(cancelButton.geometry()));
        EXPECT_EQ(part<QLabel>(form, u"lbPercent"_s).text(), u" 0%"_s);
        EXPECT_EQ(part<QProgressBar>(form, u"prgCompletePercent"_s).value(), 0);
    });
    EXPECT_EQ(ask(), Answer::Successful);
}

TEST_F(frmVerifyTest, a_run_takes_two_pauses_of_two_seconds) {
    const qint64 start = clock.now;
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Successful);
    EXPECT_EQ(clock.now - start, 4000);
}

TEST_F(frmVerifyTest, at_a_pace_of_nothing_a_run_still_lets_events_through_and_ends) {
    clock.factor = 0;
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Successful);
    EXPECT_EQ(clock.waits.size(), 2U);
}

TEST_F(frmVerifyTest, one_filled_cell_jumps_to_all_of_it) {
    QString percent;
    int value = -1;
    user.meets<frmVerify>([&](frmVerify& form) {
        verify(form);
        percent = part<QLabel>(form, u"lbPercent"_s).text();
        value = part<QProgressBar>(form, u"prgCompletePercent"_s).value();
    });
    EXPECT_EQ(ask(), Answer::Successful);
    EXPECT_EQ(percent, u"100%"_s);
    EXPECT_EQ(value, 1);
}

TEST_F(frmVerifyTest, the_bar_is_full_early_when_many_cells_are_empty_and_stays_so) {
    fields.txtElementMain(1).setText(u"leg"_s);
    fields.txtElementSub1(1).setText(u"foot"_s);
    QString percent;
    int value = -1;
    int maximum = -1;
    user.meets<frmVerify>([&](frmVerify& form) {
        verify(form);
        percent = part<QLabel>(form, u"lbPercent"_s).text();
        value = part<QProgressBar>(form, u"prgCompletePercent"_s).value();
        maximum = part<QProgressBar>(form, u"prgCompletePercent"_s).maximum();
    });
    EXPECT_EQ(ask(), Answer::Errors);
    EXPECT_EQ(percent, u"100%"_s);
    EXPECT_EQ(maximum, 2) << "the filled cells less 1";
    EXPECT_EQ(value, 2);
}

TEST_F(frmVerifyTest, what_is_missing_is_found) {
    fields.txtOperation.setText(u"It turns."_s);
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Errors);
    EXPECT_EQ(state.verifyErrorCount, 2);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge"_s);
    EXPECT_EQ(state.lists.missingNumerals.text(), u"10"_s);
}

TEST_F(frmVerifyTest, a_name_in_the_table_of_names_alone_is_not_found) {
    fields.setPanelCount(FieldGroup::MainElements, 1);
    fields.txtElementName(0).setText(u"hinge"_s);
    fields.txtOperation.setText(u"Number 10 turns."_s);
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Errors);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge"_s);
    EXPECT_TRUE(state.lists.missingNumerals.isEmpty());
}

TEST_F(frmVerifyTest, cancel_stops_a_run_in_its_first_pause_before_anything_is_looked_for) {
    fields.txtOperation.setText(u"It turns."_s);
    user.meets<frmVerify>(verify).meets<frmVerify>(cancel);
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_TRUE(state.verifyStopped);
    EXPECT_EQ(state.verifyState, StopRequest::None);
    EXPECT_EQ(state.exportFormat, ExportFormat::None);
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_LT(clock.now, 1000 + 2000) << "the wait ended early";
}

TEST_F(frmVerifyTest, cancel_in_the_second_pause_leaves_what_was_found_to_the_next_run) {
    fields.txtOperation.setText(u"It turns."_s);
    bool stopped = false;
    clock.events = [&] {
        QCoreApplication::processEvents();
        auto* form = qobject_cast<frmVerify*>(QApplication::activeModalWidget());
        if (form && state.verifyErrorCount > 0 && !std::exchange(stopped, true))
            cancel(*form);
    };
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_TRUE(stopped);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge"_s);
    user.meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Errors);
    EXPECT_EQ(state.verifyErrorCount, 2) << "counted anew";
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge\r\nhinge"_s);
}

TEST_F(frmVerifyTest, escape_and_the_close_control_are_a_cancel_also_of_a_run) {
    user.meets<frmVerify>(verify)
        .meets<frmVerify>([](frmVerify& form) { QTest::keyClick(&form, Qt::Key_Escape); })
        .meets<frmVerify>(verify)
        .meets<frmVerify>(
            [](frmVerify& form) { QTest::mouseClick(&part(form, u"lblClose"_s), Qt::LeftButton); })
        .meets<frmVerify>([](frmVerify& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_EQ(state.verifyState, StopRequest::Cancel) << "the last was asked before any run";
}

TEST_F(frmVerifyTest, skip_goes_on_without_a_run_and_keeps_the_export) {
    user.meets<frmVerify>([](frmVerify& form) { press(form, u"cmdSkip"_s); });
    EXPECT_EQ(ask(), Answer::Skip);
    EXPECT_EQ(state.verifyErrorCount, -1);
    EXPECT_EQ(state.exportFormat, ExportFormat::Word);
}

TEST_F(frmVerifyTest, a_run_that_was_stopped_does_not_stop_the_next) {
    user.meets<frmVerify>(verify).meets<frmVerify>(cancel).meets<frmVerify>(verify);
    EXPECT_EQ(ask(), Answer::Cancel);
    EXPECT_EQ(ask(), Answer::Successful);
    EXPECT_FALSE(state.verifyStopped);
}

TEST_F(frmVerifyTest, enter_starts_the_run_and_stops_it) {
    user.meets<frmVerify>(
            [](frmVerify& form) { QTest::keyClick(&part(form, u"cmdVerify"_s), Qt::Key_Return); })
        .meets<frmVerify>([](frmVerify& form) {
            EXPECT_TRUE(part(form, u"cmdCancel"_s).hasFocus());
            QTest::keyClick(&part(form, u"cmdCancel"_s), Qt::Key_Return);
        });
    EXPECT_EQ(ask(), Answer::Cancel);
}
