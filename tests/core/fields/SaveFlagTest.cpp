#include "core/fields/SaveFlag.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class SaveFlagTest : public testing::Test {
protected:
    ProjectFields fields;
    ProjectState state;
};

} // namespace

TEST_F(SaveFlagTest, a_project_without_a_change_needs_no_saving) {
    EXPECT_FALSE(GetSaveFlag(fields, state));
    EXPECT_FALSE(state.saveFlag);
}

TEST_F(SaveFlagTest, one_changed_field_on_the_last_panel_is_enough) {
    fields.txtElementSub9(2).setText(u"pin"_s);
    EXPECT_TRUE(GetSaveFlag(fields, state));
    EXPECT_TRUE(state.saveFlag);
}

TEST_F(SaveFlagTest, a_hidden_inventor_and_the_check_box_count) {
    fields.txtNameStep2(7).setText(u"Ann"_s);
    EXPECT_TRUE(GetSaveFlag(fields, state));
    ResetSaveFlag(fields, state);
    fields.chkSameAsContact.setText(u"1"_s);
    EXPECT_TRUE(GetSaveFlag(fields, state));
}

TEST_F(SaveFlagTest, a_text_changed_and_changed_back_still_counts) {
    fields.txtFileNo.setText(u"QF"_s);
    fields.txtFileNo.setText(QString());
    EXPECT_TRUE(GetSaveFlag(fields, state));
}

TEST_F(SaveFlagTest, a_flag_that_is_set_stays_without_a_change) {
    state.saveFlag = true;
    EXPECT_TRUE(GetSaveFlag(fields, state));
}

TEST_F(SaveFlagTest, a_flag_cleared_alone_is_set_again_by_the_marks_that_stayed) {
    fields.txtFileNo.setText(u"QF"_s);
    state.saveFlag = false;
    EXPECT_TRUE(GetSaveFlag(fields, state));
}

TEST_F(SaveFlagTest, a_text_that_is_loaded_is_no_change) {
    fields.txtFileNo.loadText(u"QF"_s);
    EXPECT_FALSE(GetSaveFlag(fields, state));
}

TEST_F(SaveFlagTest, a_reset_clears_the_flag_and_every_mark) {
    fields.txtFileNo.setText(u"QF"_s);
    fields.txtElementSub9(2).setText(u"pin"_s);
    state.saveFlag = true;
    ResetSaveFlag(fields, state);
    EXPECT_FALSE(GetSaveFlag(fields, state));
}
