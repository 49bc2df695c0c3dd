#include "core/wizard/TabEntry.h"

#include "core/wizard/WizardFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TabEntryTest : public WizardFixture {
protected:
    /// What entering a tab asks for.
    Calls entering(int tab) {
        log.calls.clear();
        entry.enter(tab);
        return log.calls;
    }
};

} // namespace

TEST_F(TabEntryTest, section_1_takes_the_focus_into_its_first_field) {
    EXPECT_EQ(entering(0), Calls({"focus txtFileNo", "entered 0"}));
}

TEST_F(TabEntryTest, section_1_takes_no_focus_under_the_welcome_page) {
    screen.enabled[0] = false;
    EXPECT_EQ(entering(0), Calls({"entered 0"}));
    screen.enabled[0] = true;
    screen.shown[0] = false;
    EXPECT_EQ(entering(0), Calls({"entered 0"}));
}

TEST_F(TabEntryTest, sections_2_and_3_take_the_focus_off_their_fields) {
    EXPECT_EQ(entering(1), Calls({"focus panel 1", "entered 1"}));
    EXPECT_EQ(entering(2), Calls({"focus panel 2", "RefreshObjectSentences", "entered 2"}));
}

TEST_F(TabEntryTest, section_4_lays_out_figures_that_disagree_with_their_count) {
    system.showmsgFigure = true;
    EXPECT_EQ(entering(3), Calls({"focus panel 3", "entered 3"}));
    project.fields.cboFiguresNum.setText(u"5"_s);
    EXPECT_EQ(entering(3), Calls({"focus panel 3", "LayoutFigures 5", "entered 3"}));
}

TEST_F(TabEntryTest, without_figures_one_panel_is_laid_out) {
    system.showmsgFigure = true;
    project.fields.cboFiguresNum.setText(u"0"_s);
    EXPECT_EQ(entering(3),
              Calls({"focus panel 3", "LayoutFigures 0", "LayoutFigures 1", "entered 3"}));
}

TEST_F(TabEntryTest, the_drawings_window_shows_on_each_entry_until_it_is_switched_off) {
    prompts.tab4MsgWindows = {{true, {}}, {true, {true}}};
    for (int visit = 0; visit < 4; ++visit)
        entry.enter(3);
    EXPECT_EQ(boxes(), QStringList({u"showTab4MsgWindow"_s, u"showTab4MsgWindow"_s}));
    EXPECT_TRUE(settings.flag(settingsNames::ShowMsgFigure));
    EXPECT_FALSE(settings.flag(settingsNames::ShowMsgTab));
}

TEST_F(TabEntryTest, section_5_lays_out_its_elements_on_each_entry) {
    project.fields.cboMainElementNum.setText(u"2"_s);
    EXPECT_EQ(entering(4), Calls({"focus panel 4", "LayoutMainElements 2", "entered 4"}));
    EXPECT_EQ(entering(4), Calls({"focus panel 4", "LayoutMainElements 2", "entered 4"}));
}

TEST_F(TabEntryTest, section_6_takes_the_names_of_section_5) {
    project.fields.txtElementName(1).setText(u" pin "_s);
    EXPECT_EQ(entering(5), Calls({"stack sub-elements", "focus panel 5", "entered 5"}));
    EXPECT_EQ(project.fields.txtElementMain(1).text(), u"pin");
}

TEST_F(TabEntryTest, section_6_makes_as_many_blocks_as_there_are_elements) {
    project.fields.cboMainElementNum.setText(u"15"_s);
    project.fields.setPanelCount(FieldGroup::MainElements, 15);
    project.fields.txtElementName(14).setText(u"cap"_s);
    EXPECT_EQ(entering(5),
              Calls({"LayoutSubElements 15", "stack sub-elements", "focus panel 5", "entered 5"}));
    EXPECT_EQ(project.fields.txtElementMain(14).text(), u"cap");
}

TEST_F(TabEntryTest, names_are_copied_as_far_as_both_sections_have_panels) {
    project.fields.setPanelCount(FieldGroup::MainElements, 15);
    project.fields.txtElementName(2).setText(u"pin"_s);
    entry.copyElementNames();
    EXPECT_EQ(project.fields.txtElementMain.count(), 3);
    EXPECT_EQ(project.fields.txtElementMain(2).text(), u"pin");
    project.fields.setPanelCount(FieldGroup::MainElements, 2);
    entry.copyElementNames();
    EXPECT_EQ(project.fields.txtElementMain(2).text(), u"pin");
}

TEST_F(TabEntryTest, section_7_writes_its_captions_and_goes_to_its_top) {
    EXPECT_EQ(entering(6), Calls({"RefreshDescriptionCaptions", "descriptions to top",
                                  "focus panel 6", "entered 6"}));
}

TEST_F(TabEntryTest, section_8_takes_the_focus_into_its_field) {
    EXPECT_EQ(entering(7), Calls({"focus txtOperation", "entered 7"}));
}

TEST_F(TabEntryTest, the_draft_shows_itself_and_the_index) {
    screen.shown[8] = false;
    EXPECT_EQ(entering(8), Calls({"show panel 8", "enable index", "entered 8"}));
}

TEST_F(TabEntryTest, the_filing_page_disables_the_index) {
    EXPECT_EQ(entering(9), Calls({"disable index", "entered 9"}));
}

TEST_F(TabEntryTest, the_keys_walk_the_panels_that_the_entry_has_made) {
    project.fields.cboMainElementNum.setText(u"5"_s);
    project.fields.setPanelCount(FieldGroup::MainElements, 5);
    entry.enter(5);
    EXPECT_EQ(focusOrder.tabIndex(u"txtElementSub9(4)"_s), 49);
}
