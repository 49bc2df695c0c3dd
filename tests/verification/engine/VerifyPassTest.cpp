#include "verification/engine/VerifyPass.h"

#include "support/PrintQt.h"
#include "verification/engine/EnterBoxText.h"
#include "verification/engine/RecordingScreen.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class VerifyPassTest : public testing::Test {
protected:
    VerifyPassTest() { state.verifyErrorCount = 0; }

    bool pass() {
        int enterBoxes = 0;
        VerifyBar bar(screen, getElementsEnterNum(fields));
        bar.start();
        counter = 0;
        return VerifyPass(fields, state, bar)
            .verifyElements(counter, Corpus(getAllEnterBoxWord(fields, enterBoxes)));
    }

    QString missingMain() const { return state.lists.missingMainElements.text(); }

    QString missingSub() const { return state.lists.missingSubElements.text(); }

    QString missingNumerals() const { return state.lists.missingNumerals.text(); }

    ProjectFields fields;
    VerificationState state;
    RecordingScreen screen;
    int counter = 0;
};

} // namespace

TEST_F(VerifyPassTest, finds_nothing_missing_where_all_is_mentioned) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    fields.txtElementSub3(1).setText(u"pin"_s);
    fields.txtOperation.setText(u"The Hinge 10 turns on the PIN 23."_s);
    EXPECT_TRUE(pass());
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_EQ(missingMain() + missingSub() + missingNumerals(), u""_s);
}

TEST_F(VerifyPassTest, lists_names_as_typed_and_numerals_by_their_kind) {
    fields.txtElementMain(0).setText(u" Hinge "_s);
    fields.txtElementMain(1).setText(u"leaf"_s);
    fields.txtElementSub1(0).setText(u"PIN  a"_s);
    fields.txtElementSub9(2).setText(u"knuckle"_s);
    EXPECT_TRUE(pass());
    EXPECT_EQ(missingMain(), u"Hinge\r\nleaf"_s);
    EXPECT_EQ(missingSub(), u"PIN  a\r\nknuckle"_s);
    EXPECT_EQ(missingNumerals(), u"10, 11, 20, 39"_s);
    EXPECT_EQ(state.verifyErrorCount, 8);
}

TEST_F(VerifyPassTest, entries_lead_to_their_cells) {
    fields.txtElementMain(1).setText(u"leaf"_s);
    fields.txtElementSub9(2).setText(u"knuckle"_s);
    pass();
    ASSERT_EQ(state.lists.missingMainElements.entries().size(), 1U);
    EXPECT_EQ(state.lists.missingMainElements.entries().at(0).cell, (ElementCell{1, 0}));
    ASSERT_EQ(state.lists.missingSubElements.entries().size(), 1U);
    EXPECT_EQ(state.lists.missingSubElements.entries().at(0).cell, (ElementCell{2, 9}));
    ASSERT_EQ(state.lists.missingNumerals.entries().size(), 2U);
    EXPECT_EQ(state.lists.missingNumerals.entries().at(1).cell, (ElementCell{2, 9}));
}

TEST_F(VerifyPassTest, text_and_numeral_are_tested_apart) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    fields.txtElementMain(1).setText(u"leaf"_s);
    fields.txtOperation.setText(u"The hinge 20 turns."_s);
    pass();
    EXPECT_EQ(missingMain(), u"leaf"_s);
    EXPECT_EQ(missingNumerals(), u"10"_s);
    EXPECT_EQ(state.verifyErrorCount, 2);
}

TEST_F(VerifyPassTest, a_word_within_a_word_passes) {
    fields.txtElementMain(0).setText(u"bolt"_s);
    fields.txtOperation.setText(u"10 thunderbolts"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, a_numeral_within_another_number_passes) {
    fields.txtElementMain(0).setText(u"bolt"_s);
    fields.txtOperation.setText(u"the bolt of 2010"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
    fields.txtOperation.setText(u"the bolt 100"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, a_numeral_in_the_file_number_passes) {
    fields.txtElementMain(0).setText(u"bolt"_s);
    fields.txtOperation.setText(u"the bolt"_s);
    fields.txtFileNo.setText(u"QF-10"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, the_numerals_of_the_last_elements_have_three_digits) {
    fields.setPanelCount(FieldGroup::SubElements, 15);
    fields.txtElementMain(14).setText(u"rack"_s);
    fields.txtElementSub9(14).setText(u"rack"_s);
    fields.txtOperation.setText(u"rack 15 and 159"_s);
    pass();
    EXPECT_EQ(missingNumerals(), u"150"_s);
}

TEST_F(VerifyPassTest, a_name_split_by_a_line_end_is_found) {
    fields.txtElementMain(0).setText(u"hinge pin"_s);
    fields.txtOperation.setText(u"10 and the hinge\r\n\r\npin"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, a_name_with_two_blanks_is_not_found_where_the_text_has_one) {
    fields.txtElementMain(0).setText(u"hinge  pin"_s);
    fields.txtOperation.setText(u"10 and the hinge pin"_s);
    pass();
    EXPECT_EQ(missingMain(), u"hinge  pin"_s);
    EXPECT_EQ(missingNumerals(), u""_s);
}

TEST_F(VerifyPassTest, a_name_across_two_fields_is_found) {
    fields.txtElementMain(0).setText(u"hinge pin"_s);
    fields.txtDesAlterative.setText(u"10 a hinge"_s);
    fields.txtOperation.setText(u"pin"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, a_name_that_stands_on_the_page_of_main_elements_only_is_missing) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    fields.txtElementName(0).setText(u"hinge"_s);
    fields.txtOperation.setText(u"10"_s);
    pass();
    EXPECT_EQ(missingMain(), u"hinge"_s);
}

TEST_F(VerifyPassTest, case_never_matters_and_accents_do) {
    fields.txtElementMain(0).setText(u"charnière"_s);
    fields.txtElementMain(1).setText(u"éCROU"_s);
    fields.txtOperation.setText(u"10 CHARNIÈRE 20 ecrou"_s);
    pass();
    EXPECT_EQ(missingMain(), u"éCROU"_s);
}

TEST_F(VerifyPassTest, a_letter_that_grows_in_upper_case_shifts_nothing) {
    fields.txtElementMain(0).setText(u"Fuß"_s);
    fields.txtElementMain(1).setText(u"bolt"_s);
    fields.txtOperation.setText(u"ßßß fuß 10 BOLT 20"_s);
    pass();
    EXPECT_EQ(state.verifyErrorCount, 0);
}

TEST_F(VerifyPassTest, empty_cells_test_nothing) {
    EXPECT_TRUE(pass());
    EXPECT_EQ(state.verifyErrorCount, 0);
    EXPECT_EQ(missingNumerals(), u""_s);
}

TEST_F(VerifyPassTest, every_cell_is_a_step_filled_or_not) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    pass();
    EXPECT_EQ(screen.steps, 30);
}

TEST_F(VerifyPassTest, the_bar_is_full_long_before_the_end_and_stays_there) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    fields.txtElementMain(1).setText(u"leaf"_s);
    fields.txtElementMain(2).setText(u"knuckle"_s);
    QStringList percents;
    screen.atStep = [&](int) { percents << QString::number(screen.value); };
    pass();
    EXPECT_EQ(percents.mid(0, 4), QStringList({u"0"_s, u"1"_s, u"2"_s, u"2"_s}));
    EXPECT_EQ(percents.count(u"2"_s), 28);
    EXPECT_EQ(screen.percentText, u"100%"_s);
    EXPECT_EQ(counter, 3);
    EXPECT_EQ(missingMain(), u"hinge\r\nleaf\r\nknuckle"_s) << "what comes after is still tested";
}

TEST_F(VerifyPassTest, one_filled_cell_shows_100_percent_from_the_first_step_on) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    QList<int> values;
    screen.atStep = [&](int) { values << screen.value; };
    pass();
    EXPECT_EQ(values, QList<int>(30, 1));
    EXPECT_EQ(screen.maximum, 1);
}

TEST_F(VerifyPassTest, a_full_table_fills_the_bar_at_the_last_cell) {
    for (int panel = 0; panel < 3; ++panel)
        for (const FieldRow& row : fieldTable())
            if (row.group == FieldGroup::SubElements)
                fields.at(row.id, panel).setText(u"x"_s);
    QString before;
    screen.atStep = [&](int step) {
        if (step == 29)
            before = QString::number(screen.value);
    };
    pass();
    EXPECT_EQ(before, u"28"_s);
    EXPECT_EQ(screen.value, 29);
    EXPECT_EQ(screen.percentText, u"100%"_s);
}

TEST_F(VerifyPassTest, a_stop_takes_effect_at_the_end_of_the_panel) {
    for (int panel = 0; panel < 3; ++panel) {
        fields.txtElementMain(panel).setText(u"main%1"_s.arg(panel));
        fields.txtElementSub9(panel).setText(u"sub%1"_s.arg(panel));
    }
    screen.atStep = [&](int step) {
        if (step == 12)
            state.verifyState = StopRequest::Exit;
    };
    EXPECT_FALSE(pass());
    EXPECT_EQ(screen.steps, 20);
    EXPECT_EQ(missingMain(), u"main0\r\nmain1"_s);
    EXPECT_EQ(missingSub(), u"sub0\r\nsub1"_s);
    EXPECT_EQ(state.verifyState, StopRequest::None);
    EXPECT_TRUE(state.verifyStopped);
}

TEST_F(VerifyPassTest, a_stop_behind_the_last_panel_stops_as_well) {
    screen.atStep = [&](int step) {
        if (step == 30)
            state.verifyState = StopRequest::Exit;
    };
    EXPECT_FALSE(pass());
    EXPECT_TRUE(state.verifyStopped);
}

TEST_F(VerifyPassTest, a_cancel_of_the_form_is_no_stop) {
    state.verifyState = StopRequest::Cancel;
    EXPECT_TRUE(pass());
    EXPECT_EQ(state.verifyState, StopRequest::Cancel);
    EXPECT_FALSE(state.verifyStopped);
}

TEST_F(VerifyPassTest, only_the_panels_of_the_tables_are_read) {
    fields.setPanelCount(FieldGroup::MainElements, 15);
    fields.setPanelCount(FieldGroup::Descriptions, 15);
    fields.setPanelCount(FieldGroup::SubElements, 2);
    fields.txtElementMain(1).setText(u"leaf"_s);
    EXPECT_TRUE(pass());
    EXPECT_EQ(screen.steps, 20);
    EXPECT_EQ(missingMain(), u"leaf"_s);
}
