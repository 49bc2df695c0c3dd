#include "verification/engine/VerificationRun.h"

#include "support/PrintQt.h"
#include "verification/engine/RecordingScreen.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class VerificationRunTest : public testing::Test {
protected:
    VerificationRunTest() {
        fields.setPanelCount(FieldGroup::SubElements, 1);
        fields.txtElementMain(0).setText(u"hinge"_s);
    }

    void mentionAll() { fields.txtOperation.setText(u"The hinge 10 turns."_s); }

    ProjectFields fields;
    VerificationState state;
    RecordingScreen screen;
    VerificationRun run{fields, state, screen};
};

} // namespace

TEST_F(VerificationRunTest, is_successful_when_nothing_is_missing) {
    mentionAll();
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Successful);
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_FALSE(state.verifyStopped);
}

TEST_F(VerificationRunTest, tells_errors_when_something_is_missing) {
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Errors);
    EXPECT_EQ(state.verifyErrorCount, 2);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge"_s);
    EXPECT_EQ(state.lists.missingNumerals.text(), u"10"_s);
}

TEST_F(VerificationRunTest, shows_the_empty_bar_then_waits_then_runs_then_waits) {
    run.cmdVerify();
    const QStringList before{u"status"_s, u"maximum 1"_s, u" 0%"_s, u"value 0"_s, u"pause"_s};
    EXPECT_EQ(screen.calls.first(5), before);
    EXPECT_EQ(screen.calls.last(), u"pause"_s);
    EXPECT_EQ(screen.calls.count(u"pause"_s), 2);
    EXPECT_EQ(screen.steps, 10);
}

TEST_F(VerificationRunTest, a_project_without_a_filled_cell_has_nothing_to_verify) {
    fields.txtElementMain(0).setText(u""_s);
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Successful);
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_EQ(screen.maximum, 1);
    EXPECT_FALSE(screen.calls.contains(u"maximum -1"_s));
}

TEST_F(VerificationRunTest, the_count_starts_anew_while_the_lists_go_on) {
    run.cmdVerify();
    run.cmdVerify();
    EXPECT_EQ(state.verifyErrorCount, 2);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge\r\nhinge"_s);
    EXPECT_EQ(state.lists.missingNumerals.text(), u"10, 10"_s);
    EXPECT_EQ(state.lists.missingNumerals.entries().size(), 2U);
}

TEST_F(VerificationRunTest, the_count_decides_and_not_the_lists) {
    mentionAll();
    state.lists.missingMainElements.add(u"left by a stopped run"_s, {0, 0});
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Successful);
}

TEST_F(VerificationRunTest, a_stop_in_the_first_wait_leaves_the_pass_out) {
    screen.atPause = [&] { run.cmdCancel(true); };
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Stopped);
    EXPECT_EQ(screen.steps, 0);
    EXPECT_EQ(screen.calls.count(u"pause"_s), 1);
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_EQ(state.verifyState, StopRequest::None);
    EXPECT_TRUE(state.verifyStopped);
}

TEST_F(VerificationRunTest, a_stop_during_the_pass_leaves_its_findings_to_the_next_run) {
    fields.setPanelCount(FieldGroup::SubElements, 2);
    fields.txtElementMain(1).setText(u"leaf"_s);
    screen.atStep = [&](int step) {
        if (step == 1)
            run.cmdCancel(true);
    };
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Stopped);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge"_s);
    EXPECT_TRUE(state.verifyStopped);

    screen.atStep = [](int) {};
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Errors);
    EXPECT_EQ(state.verifyErrorCount, 4);
    EXPECT_EQ(state.lists.missingMainElements.text(), u"hinge\r\nhinge\r\nleaf"_s);
    EXPECT_FALSE(state.verifyStopped);
}

TEST_F(VerificationRunTest, a_stop_in_the_second_wait_shows_no_result) {
    mentionAll();
    int pauses = 0;
    screen.atPause = [&] {
        if (++pauses == 2)
            run.cmdCancel(true);
    };
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Stopped);
    EXPECT_TRUE(state.verifyStopped);
    EXPECT_EQ(state.verifyState, StopRequest::None);
}

TEST_F(VerificationRunTest, a_stop_asked_before_the_run_stops_it) {
    state.verifyState = StopRequest::Exit;
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Stopped);
    EXPECT_EQ(screen.steps, 0);
}

TEST_F(VerificationRunTest, a_form_that_was_cancelled_before_runs_again) {
    mentionAll();
    run.cmdCancel(false);
    EXPECT_EQ(state.verifyState, StopRequest::Cancel);
    EXPECT_EQ(run.cmdVerify(), VerifyOutcome::Successful);
    EXPECT_EQ(state.verifyState, StopRequest::None);
}

TEST_F(VerificationRunTest, cancel_drops_the_export_that_waits) {
    state.exportFormat = ExportFormat::Word;
    run.cmdCancel(false);
    EXPECT_EQ(state.exportFormat, ExportFormat::None);
}

TEST_F(VerificationRunTest, the_export_that_waits_stays_through_a_run) {
    state.exportFormat = ExportFormat::Html;
    run.cmdVerify();
    EXPECT_EQ(state.exportFormat, ExportFormat::Html);
}
