#include "verification/dialogs/VerifyDialogs.h"

#include "support/FakeClock.h"
#include "support/FakeTextMeasure.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "verification/dialogs/DialogParts.h"
#include "verification/dialogs/frmVerify.h"
#include "verification/dialogs/frmVerifyResult.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = ExportCheck::Answer;

class VerifyDialogsTest : public testing::Test {
protected:
    VerifyDialogsTest() {
        fields.setPanelCount(FieldGroup::SubElements, 2);
        fields.txtElementMain(0).setText(u"hinge"_s);
        fields.txtElementSub1(1).setText(u"pin"_s);
        clock.factor = 0;
        clock.events = [] { QCoreApplication::processEvents(); };
    }

    void mentionAll() { fields.txtOperation.setText(u"The hinge 10 has a pin 21."_s); }

    static void verify(frmVerify& form) { press(form, u"cmdVerify"_s); }

    QWidget form;
    ProjectFields fields;
    VerificationState state;
    mdlSystem system;
    FakeClock clock;
    FakeTextMeasure measure;
    QStringList printed;
    VerifyDialogs dialogs{
        {form, fields, state, system, clock, measure, QFont()},
        [this](const MissingLists& lists) { printed.append(lists.missingSubElements.text()); }};
    ModalUser user;
};

} // namespace

TEST_F(VerifyDialogsTest, skip_goes_straight_on) {
    user.meets<frmVerify>([](frmVerify& up) { press(up, u"cmdSkip"_s); });
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Skip);
}

TEST_F(VerifyDialogsTest, cancel_before_the_run_gives_up) {
    user.meets<frmVerify>([](frmVerify& up) { press(up, u"cmdCancel"_s); });
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Cancel);
}

TEST_F(VerifyDialogsTest, when_all_is_found_the_all_clear_leads_on_or_back) {
    mentionAll();
    user.meets<frmVerify>(verify)
        .meets<frmVerifyResult>([](frmVerifyResult& up) {
            EXPECT_EQ(up.windowTitle(), u"Verification Successful!"_s);
            press(up, u"cmdContinue"_s);
        })
        .meets<frmVerify>(verify)
        .meets<frmVerifyResult>([](frmVerifyResult& up) { press(up, u"cmdCancel"_s); });
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Continue);
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Return);
}

TEST_F(VerifyDialogsTest, the_count_of_this_run_decides_and_not_what_older_lists_hold) {
    mentionAll();
    state.lists.missingMainElements.add(u"left over"_s, {0, 0});
    user.meets<frmVerify>(verify).meets<frmVerifyResult>([](frmVerifyResult& up) {
        EXPECT_EQ(up.windowTitle(), u"Verification Successful!"_s);
        press(up, u"cmdContinue"_s);
    });
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Continue);
    EXPECT_FALSE(state.lists.missingMainElements.isEmpty()) << "no report has taken them over";
}

TEST_F(VerifyDialogsTest, the_report_leads_on_back_or_is_printed) {
    fields.txtOperation.setText(u"The hinge 10 turns, 21."_s);
    user.meets<frmVerify>(verify)
        .meets<frmVerifyResult>([](frmVerifyResult& up) {
            EXPECT_EQ(up.windowTitle(), u"Verification Found Possible Errors"_s);
            QTest::mouseClick(&part(up, u"imgReportPrint"_s), Qt::LeftButton);
            press(up, u"cmdContinue"_s);
        })
        .meets<frmVerify>(verify)
        .meets<frmVerifyResult>([](frmVerifyResult& up) { press(up, u"cmdReturnToProject"_s); })
        .meets<frmVerify>(verify)
        .meets<frmVerifyResult>([](frmVerifyResult& up) { press(up, u"cmdCancel"_s); });
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Continue);
    EXPECT_EQ(printed, QStringList{u"pin"_s});
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Return);
    EXPECT_EQ(dialogs.showVerify().answer, Answer::Return);
}

TEST_F(VerifyDialogsTest, an_entry_of_the_report_names_the_field_to_go_to) {
    fields.txtOperation.setText(u"The hinge 10 turns, 21."_s);
    user.meets<frmVerify>(verify).meets<frmVerifyResult>([](frmVerifyResult& up) {
        QWidget& report = part(up, u"picErrorReport"_s);
        report.setFocus();
        QTest::keyClick(&report, Qt::Key_Return);
    });
    const ExportCheck::Outcome outcome = dialogs.showVerify();
    EXPECT_EQ(outcome.answer, Answer::GoToCell);
    EXPECT_EQ(outcome.field, FieldId::txtElementSub1);
    EXPECT_EQ(outcome.index, 1);
}

TEST_F(VerifyDialogsTest, an_entry_that_a_stopped_run_has_left_may_name_a_panel_that_is_gone) {
    state.lists.missingMainElements.add(u"left over"_s, {9, 0});
    user.meets<frmVerify>(verify).meets<frmVerifyResult>([](frmVerifyResult& up) {
        QWidget& report = part(up, u"picErrorReport"_s);
        report.setFocus();
        QTest::keyClick(&report, Qt::Key_Return);
    });
    const ExportCheck::Outcome outcome = dialogs.showVerify();
    EXPECT_EQ(outcome.answer, Answer::GoToCell);
    EXPECT_EQ(outcome.field, FieldId::txtElementMain);
    EXPECT_EQ(outcome.index, 9);
}
