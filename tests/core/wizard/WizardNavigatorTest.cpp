#include "core/wizard/WizardNavigator.h"

#include "core/wizard/WizardFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WizardNavigatorTest : public WizardFixture {
protected:
    void completeAll() {
        for (int tab = 0; tab < SectionRules::SectionCount; ++tab) {
            complete(tab);
            rules.validateSection(tab);
        }
        rules.refreshSection(8);
        log.calls.clear();
    }
};

const auto WarningTitle = u"showMsgWindow"_s;
const auto NotReadyTitle = u"Your Provisional Is Not Ready to File"_s;

} // namespace

// SwitchTab, step by step

TEST_F(WizardNavigatorTest, a_switch_takes_its_steps_in_order) {
    navigator.SwitchTab(1);
    EXPECT_EQ(calls(), Calls({
                           "HelpOn 1",
                           "Back on",
                           "Next on",
                           "tab 0 has the hand",
                           "tab 1 has the default pointer",
                           "tab 1 looks incomplete, selected",
                           "disable panel 0",
                           "enable panel 1",
                           "panel to front 1",
                           "hide panel 9",
                           "tab 0 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "step bar",
                           "focus panel 1",
                           "entered 1",
                           "tab 1 looks incomplete, selected",
                           "switched 1",
                       }));
}

TEST_F(WizardNavigatorTest, a_switch_changes_the_tab_between_leaving_and_entering) {
    Calls seen;
    log.during = [&](const std::string& call) {
        if (call == "tab 0 looks incomplete" || call == "step bar" || call == "switched 1")
            seen.push_back(call + ": " + std::to_string(project.state.currentTab) + " to " +
                           std::to_string(project.state.targetTab));
    };
    navigator.SwitchTab(1);
    EXPECT_EQ(seen,
              Calls({"tab 0 looks incomplete: 0 to 1", "step bar: 1 to 1", "switched 1: 1 to 1"}));
}

TEST_F(WizardNavigatorTest, every_switch_is_counted_before_the_page_is_told) {
    log.during = [this](const std::string& call) {
        if (call == "switched 3") {
            EXPECT_EQ(system.tabSwitchCount, 1);
        }
    };
    system.showmsgFigure = true;
    navigator.SwitchTab(3);
    navigator.SwitchTab(0);
    EXPECT_EQ(system.tabSwitchCount, 2);
}

TEST_F(WizardNavigatorTest, back_is_disabled_on_section_1_alone) {
    standOn(1);
    navigator.SwitchTab(0);
    EXPECT_TRUE(log.has("Back off"));
    EXPECT_TRUE(log.has("Next on"));
    EXPECT_FALSE(log.has("Back on"));
}

TEST_F(WizardNavigatorTest, a_complete_section_is_painted_complete_when_it_is_left) {
    complete(0);
    navigator.SwitchTab(1);
    EXPECT_TRUE(log.has("tab 0 looks complete"));
    EXPECT_EQ(rules.tag(0), u"OK");
}

TEST_F(WizardNavigatorTest, leaving_section_5_brings_sections_6_and_7_up_to_date) {
    standOn(4);
    ProjectFields& fields = project.fields;
    fields.cboMainElementNum.setText(u"2"_s);
    fields.setPanelCount(FieldGroup::MainElements, 2);
    fields.txtElementName(0).setText(u"  hinge "_s);
    fields.txtElementName(1).setText(u"  "_s);
    fields.txtElementMain(1).setText(u"old name"_s);
    navigator.SwitchTab(0);
    EXPECT_EQ(calls(), Calls({
                           "HelpOn 0",
                           "Back off",
                           "Next on",
                           "tab 4 has the hand",
                           "tab 0 has the default pointer",
                           "tab 0 looks incomplete, selected",
                           "disable panel 4",
                           "enable panel 0",
                           "panel to front 0",
                           "hide panel 9",
                           "LayoutSubElements 2",
                           "RefreshDescriptionCaptions",
                           "tab 4 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "tab 5 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "tab 6 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "RebuildElementIndex",
                           "tab 4 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "step bar",
                           "focus txtFileNo",
                           "entered 0",
                           "tab 0 looks incomplete, selected",
                           "switched 0",
                       }));
    EXPECT_EQ(fields.txtElementMain(0).text(), u"hinge");
    EXPECT_EQ(fields.txtElementMain(1).text(), u"");
}

TEST_F(WizardNavigatorTest, blocks_that_agree_with_the_count_are_not_laid_out_again) {
    standOn(4);
    navigator.SwitchTab(0);
    EXPECT_FALSE(log.has("LayoutSubElements 3"));
    EXPECT_TRUE(log.has("RefreshDescriptionCaptions"));
}

TEST_F(WizardNavigatorTest, a_name_typed_and_deleted_again_breaks_section_6) {
    complete(4);
    standOn(4);
    navigator.SwitchTab(0);
    EXPECT_EQ(rules.tag(5), u"OK");
    standOn(4);
    project.fields.txtElementName(1).setText(QString());
    navigator.SwitchTab(0);
    EXPECT_EQ(rules.tag(5), u"WARNING");
}

TEST_F(WizardNavigatorTest, leaving_section_6_checks_three_sections_and_draws_the_index) {
    standOn(5);
    navigator.SwitchTab(0);
    for (const int tab : {4, 5, 6})
        EXPECT_EQ(rules.tag(tab), u"WARNING");
    EXPECT_TRUE(log.has("RebuildElementIndex"));
    EXPECT_FALSE(log.has("RefreshDescriptionCaptions"));
}

TEST_F(WizardNavigatorTest, leaving_another_section_leaves_the_index_alone) {
    standOn(6);
    navigator.SwitchTab(0);
    EXPECT_FALSE(log.has("RebuildElementIndex"));
    EXPECT_EQ(rules.tag(6), u"WARNING");
    EXPECT_EQ(rules.tag(5), u"");
}

TEST_F(WizardNavigatorTest, the_draft_is_hidden_until_the_switch_to_it_is_nearly_done) {
    navigator.SwitchTab(8);
    EXPECT_EQ(calls(), Calls({
                           "HelpOn 8",
                           "Back on",
                           "Next on",
                           "tab 0 has the hand",
                           "tab 8 has the default pointer",
                           "tab 8 looks incomplete, selected",
                           "disable panel 0",
                           "enable panel 8",
                           "panel to front 8",
                           "hide panel 8",
                           "hide panel 9",
                           "tab 0 looks incomplete",
                           "tab 8 looks incomplete",
                           "draft commands off",
                           "export bar",
                           "tab 8 looks incomplete, selected",
                           "show panel 8",
                           "enable index",
                           "entered 8",
                           "tab 8 looks incomplete, selected",
                           "switched 8",
                       }));
}

TEST_F(WizardNavigatorTest, a_draft_that_is_hidden_already_is_not_hidden_again) {
    screen.shown[8] = false;
    navigator.SwitchTab(8);
    EXPECT_FALSE(log.has("hide panel 8"));
    EXPECT_TRUE(screen.isPanelShown(8));
}

TEST_F(WizardNavigatorTest, the_filing_page_has_no_bar_and_loses_its_look_when_it_is_left) {
    screen.shown[9] = false;
    navigator.SwitchTab(9);
    EXPECT_TRUE(screen.isPanelShown(9));
    EXPECT_TRUE(log.has("no bar"));
    EXPECT_TRUE(log.has("disable index"));
    EXPECT_EQ(rules.tag(9), u"");
    log.calls.clear();
    navigator.SwitchTab(0);
    EXPECT_FALSE(screen.isPanelShown(9));
    EXPECT_LT(log.find("hide panel 9"), log.find("tab 9 looks incomplete"));
    EXPECT_LT(log.find("tab 9 looks incomplete"), log.find("tab 8 looks incomplete"));
}

TEST_F(WizardNavigatorTest, a_hidden_filing_page_is_not_hidden_again) {
    screen.shown[9] = false;
    navigator.SwitchTab(1);
    EXPECT_FALSE(log.has("hide panel 9"));
}

// Back and Next

TEST_F(WizardNavigatorTest, back_never_checks_and_stops_at_section_1) {
    standOn(1);
    navigator.btnStep_Click(Back);
    EXPECT_EQ(calls().front(), "enable panel 1");
    EXPECT_EQ(project.state.currentTab, 0);
    EXPECT_TRUE(boxes().isEmpty());
    log.calls.clear();
    navigator.btnStep_Click(Back);
    EXPECT_EQ(calls(), Calls({"enable panel 0"}));
}

TEST_F(WizardNavigatorTest, next_leaves_a_complete_section_without_a_word) {
    complete(0);
    navigator.btnStep_Click(Next);
    EXPECT_EQ(project.state.currentTab, 1);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(WizardNavigatorTest, next_warns_and_goes_on_after_yes) {
    prompts.msgWindows = {{true, {}}};
    navigator.btnStep_Click(Next);
    EXPECT_EQ(boxes(), QStringList({WarningTitle}));
    EXPECT_EQ(project.state.currentTab, 1);
    EXPECT_TRUE(system.msgAnswerYes);
}

TEST_F(WizardNavigatorTest, next_stays_after_no_and_leads_to_the_first_empty_field) {
    prompts.msgWindows = {{false, {}}};
    navigator.btnStep_Click(Next);
    EXPECT_EQ(calls(), Calls({"enable panel 0", "TextgotFocus 0"}));
    EXPECT_EQ(project.state.currentTab, 0);
    EXPECT_FALSE(system.msgAnswerYes);
    // The check before the warning sets the tag and paints nothing.
    EXPECT_EQ(rules.tag(0), u"WARNING");
}

TEST_F(WizardNavigatorTest, next_warns_once_per_attempt_until_it_is_told_not_to) {
    prompts.msgWindows = {{false, {}}, {false, {}}, {true, {true}}};
    for (int attempt = 0; attempt < 3; ++attempt)
        navigator.btnStep_Click(Next);
    EXPECT_EQ(boxes().size(), 3);
    EXPECT_EQ(project.state.currentTab, 1);
    navigator.btnStep_Click(Next);
    EXPECT_EQ(project.state.currentTab, 2);
    EXPECT_EQ(boxes().size(), 3);
    EXPECT_TRUE(settings.flag(settingsNames::ShowMsgTab));
}

TEST_F(WizardNavigatorTest, a_warning_switched_off_and_answered_no_still_stays_this_time) {
    prompts.msgWindows = {{false, {true}}};
    navigator.btnStep_Click(Next);
    EXPECT_EQ(project.state.currentTab, 0);
    navigator.btnStep_Click(Next);
    EXPECT_EQ(project.state.currentTab, 1);
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(WizardNavigatorTest, next_checks_the_section_anew) {
    rules.validateSection(0);
    complete(0);
    EXPECT_EQ(rules.tag(0), u"WARNING");
    navigator.btnStep_Click(Next);
    EXPECT_EQ(project.state.currentTab, 1);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(WizardNavigatorTest, there_is_nothing_behind_the_filing_page) {
    standOn(9);
    navigator.btnStep_Click(Next);
    EXPECT_EQ(calls(), Calls({"enable panel 9"}));
}

// Clicks on tabs

TEST_F(WizardNavigatorTest, clicking_the_current_tab_does_nothing_also_on_the_filing_page) {
    for (const int tab : {0, 4, 8, 9}) {
        standOn(tab);
        navigator.picTab_Click(tab);
    }
    EXPECT_EQ(calls(), Calls());
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(WizardNavigatorTest, a_click_from_a_complete_section_tints_it_and_then_switches) {
    complete(0);
    navigator.picTab_Click(2);
    EXPECT_EQ(Calls(calls().begin(), calls().begin() + 5),
              Calls({"tab 0 looks complete", "tab 8 looks incomplete", "draft commands off",
                     "tab 0 looks complete, selected", "TextHighLight 2"}));
    EXPECT_LT(log.find("TextHighLight 2"), log.find("HelpOn 2"));
    EXPECT_EQ(project.state.currentTab, 2);
}

TEST_F(WizardNavigatorTest, a_click_from_the_draft_never_warns) {
    standOn(8);
    navigator.picTab_Click(0);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_LT(log.find("TextHighLight 0"), log.find("HelpOn 0"));
    EXPECT_EQ(project.state.currentTab, 0);
}

TEST_F(WizardNavigatorTest, a_click_from_the_filing_page_to_the_draft_never_warns) {
    standOn(9);
    navigator.picTab_Click(8);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(project.state.currentTab, 8);
}

TEST_F(WizardNavigatorTest, a_click_answered_yes_switches_first_and_tints_the_new_section) {
    prompts.msgWindows = {{true, {}}};
    navigator.picTab_Click(2);
    EXPECT_EQ(boxes(), QStringList({WarningTitle}));
    EXPECT_EQ(project.state.currentTab, 2);
    EXPECT_LT(log.find("switched 2"), log.find("TextHighLight 2"));
}

TEST_F(WizardNavigatorTest, a_click_answered_no_stays_and_shows_what_is_missing) {
    prompts.msgWindows = {{false, {}}};
    navigator.picTab_Click(2);
    EXPECT_EQ(calls(),
              Calls({"tab 0 looks incomplete", "tab 8 looks incomplete", "draft commands off",
                     "tab 0 looks incomplete, selected", "TextHighLight 0", "TextgotFocus 0"}));
    EXPECT_EQ(project.state.currentTab, 0);
}

TEST_F(WizardNavigatorTest, a_click_with_the_warning_switched_off_only_marks_the_tab) {
    system.showmsgTab = true;
    navigator.picTab_Click(2);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(project.state.currentTab, 2);
    EXPECT_LT(log.find("switched 2"), log.find("TextHighLight 2"));
}

TEST_F(WizardNavigatorTest, the_filing_page_opens_from_a_complete_section_whatever_the_others_are) {
    complete(2);
    rules.validateSection(2);
    standOn(2);
    navigator.picTab_Click(9);
    EXPECT_EQ(project.state.currentTab, 9);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(WizardNavigatorTest, the_filing_page_stays_shut_for_an_incomplete_section) {
    rules.validateSection(0);
    log.calls.clear();
    navigator.picTab_Click(9);
    EXPECT_EQ(calls(), Calls());
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes.front(),
              (FakePrompts::Box{
                  UserPrompts::Icon::None, NotReadyTitle,
                  u"Some of the sections in Quillford are not complete yet.  Please complete these "
                  "sections and then return to this section."_s}));
}

TEST_F(WizardNavigatorTest, the_way_to_the_filing_page_is_judged_by_the_last_check) {
    complete(0);
    navigator.picTab_Click(9);
    EXPECT_EQ(boxes(), QStringList({NotReadyTitle}));
    rules.validateSection(0);
    project.fields.txtFileNo.setText(QString());
    prompts.msgWindows = {{false, {}}};
    // The tag lets the click pass, and the check behind it warns.
    navigator.picTab_Click(9);
    EXPECT_EQ(boxes(), QStringList({NotReadyTitle, WarningTitle}));
    EXPECT_EQ(project.state.currentTab, 0);
}

TEST_F(WizardNavigatorTest, the_filing_page_opens_from_the_draft_when_all_is_complete) {
    completeAll();
    standOn(8);
    navigator.picTab_Click(9);
    EXPECT_EQ(project.state.currentTab, 9);
}

// The Welcome page

TEST_F(WizardNavigatorTest, leaving_the_welcome_page_starts_the_work) {
    screen.welcome = true;
    navigator.showSectionOne();
    EXPECT_EQ(calls(),
              Calls({"hide Welcome page", "enable panel 0", "autosave on", "focus txtFileNo"}));
}

TEST_F(WizardNavigatorTest, the_welcome_page_disables_the_section_below_it) {
    navigator.showWelcomePage();
    EXPECT_EQ(calls(), Calls({"show Welcome page", "disable panel 0"}));
}

TEST_F(WizardNavigatorTest, filling_the_last_field_changes_no_tag_until_the_next_check) {
    rules.validateSection(7);
    project.fields.txtOperation.setText(u"It folds."_s);
    EXPECT_EQ(rules.tag(7), u"WARNING");
    standOn(7);
    navigator.btnStep_Click(Next);
    EXPECT_EQ(rules.tag(7), u"OK");
}
