#include "app/ProgramFixture.h"
#include "controls/HtmlView.h"
#include "shell/dialogs/msgWindow.h"

using namespace quillford;

namespace {

class NavigationTest : public ProgramFixture {
protected:
    void clickTab(int index) { clickOn(tab(index)); }

    void next() { click(u"btnStep(1)"_s); }

    void back() { click(u"btnStep(0)"_s); }

    void empty(const QString& field) {
        control<TextField>(field).setFocus();
        control<TextField>(field).selectAll();
        QTest::keyClick(&control(field), Qt::Key_Delete);
    }

    [[nodiscard]] QString preview() { return control<HtmlView>(u"webPreview"_s).toPlainText(); }

    void expectAt(int index) {
        EXPECT_EQ(currentTab(), index);
        EXPECT_EQ(enabledPanel(), index);
    }
};

} // namespace

TEST_F(NavigationTest, on_the_first_section_back_is_disabled_and_nothing_moves) {
    startWithNewProject();
    EXPECT_FALSE(control(u"btnStep(0)"_s).isEnabled());
    back();
    expectAt(0);
}

TEST_F(NavigationTest, back_never_validates) {
    startWithNewProject();
    user.meets<msgWindow>(presses(u"cmdYes"_s));
    next();
    expectAt(1);
    EXPECT_TRUE(control(u"btnStep(0)"_s).isEnabled());
    back();
    expectAt(0);
    EXPECT_FALSE(control(u"btnStep(0)"_s).isEnabled());
}

TEST_F(NavigationTest, next_warns_at_each_attempt_until_the_box_is_ticked_and_then_never) {
    startWithNewProject();
    user.meets<msgWindow>(presses(u"cmdNo"_s))
        .meets<msgWindow>(presses(u"cmdNo"_s))
        .meets<msgWindow>(ticksAndPresses(u"cmdYes"_s));
    next();
    expectAt(0);
    next();
    expectAt(0);
    next();
    expectAt(1);
    next();
    expectAt(2);
    EXPECT_EQ(tab(0).look(), TabLook::Incomplete) << "only the pictures tell it now";
}

TEST_F(NavigationTest, a_warning_that_was_ticked_off_stays_away_at_the_next_start) {
    startWithNewProject();
    user.meets<msgWindow>(ticksAndPresses(u"cmdNo"_s));
    next();
    expectAt(0);
    startWithNewProject();
    next();
    expectAt(1);
}

TEST_F(NavigationTest, no_leads_into_the_first_field_that_needs_attention) {
    startWithNewProject();
    QTest::keyClicks(&line(u"txtFileNo"_s), u"QF-1"_s);
    user.meets<msgWindow>(presses(u"cmdNo"_s));
    next();
    EXPECT_EQ(form().focusWidget(), &line(u"txtInventionTitle"_s));
    EXPECT_TRUE(line(u"txtInventionTitle"_s).isTinted());
    EXPECT_FALSE(line(u"txtFileNo"_s).isTinted());
}

TEST_F(NavigationTest, the_drawings_are_advised_about_at_each_entry_until_ticked_off) {
    startWithSample();
    user.meets<msgWindow>(presses(u"cmdOK"_s)).meets<msgWindow>(ticksAndPresses(u"cmdOK"_s));
    clickTab(3);
    expectAt(3);
    clickTab(2);
    clickTab(3);
    clickTab(2);
    clickTab(3);
    expectAt(3);
}

TEST_F(NavigationTest, each_tab_can_be_reached_shows_its_panel_and_has_one_bar) {
    startWithSample();
    user.meets<msgWindow>(ticksAndPresses(u"cmdOK"_s));
    for (const int index : {1, 2, 3, 4, 5, 6, 7, 8, 9, 0}) {
        clickTab(index);
        expectAt(index);
        EXPECT_EQ(control(u"picBtnStepContainer"_s).isVisible(), index < 8) << index;
        EXPECT_EQ(control(u"picBtnStep9Container(1)"_s).isVisible(), index == 8) << index;
        EXPECT_EQ(panel(9).isVisible(), index == 9) << index;
        for (int other = 0; other < 10; ++other)
            EXPECT_EQ(tab(other).cursor().shape() == Qt::ArrowCursor, other == index) << other;
    }
}

TEST_F(NavigationTest, next_and_back_walk_all_sections_one_by_one) {
    startWithSample();
    user.meets<msgWindow>(ticksAndPresses(u"cmdOK"_s));
    for (int index = 1; index <= 8; ++index) {
        next();
        expectAt(index);
    }
    clickTab(7);
    for (int index = 6; index >= 0; --index) {
        back();
        expectAt(index);
    }
}

TEST_F(NavigationTest, a_click_on_the_current_tab_does_nothing) {
    startWithNewProject();
    clickTab(0);
    expectAt(0);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(NavigationTest, a_click_on_the_filing_tab_does_nothing_there_too) {
    startWithSample();
    clickTab(9);
    expectAt(9);
    clickTab(9);
    expectAt(9);
    EXPECT_FALSE(QApplication::activeModalWidget());
    clickTab(0);
    EXPECT_EQ(tab(9).look(), TabLook::Incomplete);
}

TEST_F(NavigationTest, an_incomplete_section_does_not_lead_to_the_filing_page) {
    startWithNewProject();
    whenAsked(
        u"Your Provisional Is Not Ready to File"_s, QMessageBox::Ok,
        u"Some of the sections in Quillford are not complete yet.  Please complete these sections and then return to this section."_s);
    clickTab(9);
    expectAt(0);
}

TEST_F(NavigationTest, a_complete_section_leads_to_the_filing_page_while_others_are_incomplete) {
    startWithSample();
    clickTab(7);
    empty(u"txtOperation"_s);
    user.meets<msgWindow>(presses(u"cmdYes"_s));
    clickTab(0);
    EXPECT_EQ(tab(7).look(), TabLook::Incomplete);
    clickTab(9);
    expectAt(9);
}

TEST_F(NavigationTest, the_final_draft_is_shown_when_every_section_is_complete) {
    startWithSample();
    EXPECT_EQ(tab(8).look(), TabLook::Complete);
    clickTab(8);
    EXPECT_TRUE(preview().contains(u"Folding Field Easel"_s));
    EXPECT_FALSE(preview().contains(u"Data is missing"_s));
    EXPECT_TRUE(control(u"lblPopTab9"_s).isVisible());
    for (const QString& button :
         {u"imgCreateToFile(1)"_s, u"imgCreateToFile(2)"_s, u"imgPrintFile(1)"_s})
        EXPECT_TRUE(control(button).isEnabled()) << qPrintable(button);
}

TEST_F(NavigationTest, one_missing_section_is_named_as_a_section) {
    startWithSample();
    clickTab(2);
    empty(u"txtPurpose"_s);
    user.meets<msgWindow>(presses(u"cmdYes"_s));
    clickTab(8);
    EXPECT_EQ(
        preview(),
        u"Data is missing from Section 3. The Final Draft will be displayed after each section is complete."_s);
    EXPECT_FALSE(control(u"imgPrintFile(1)"_s).isEnabled());
}

TEST_F(NavigationTest, several_missing_sections_are_named_in_order) {
    startWithSample();
    user.meets<msgWindow>(presses(u"cmdYes"_s)).meets<msgWindow>(presses(u"cmdYes"_s));
    clickTab(4);
    empty(u"txtMainElement"_s);
    clickTab(2);
    empty(u"txtPurpose"_s);
    clickTab(8);
    EXPECT_EQ(
        preview(),
        u"Data is missing from Sections 3, 5. The Final Draft will be displayed after each section is complete."_s);
}

TEST_F(NavigationTest, without_a_change_the_draft_is_built_once_and_any_change_builds_it_again) {
    startWithSample();
    clickTab(8);
    const QString first = preview();
    // What stands in the preview is lost, unless the draft is built anew.
    control<HtmlView>(u"webPreview"_s).setPlainText(u"still the old one"_s);
    clickTab(7);
    clickTab(8);
    EXPECT_EQ(preview(), u"still the old one"_s);
    clickTab(0);
    QTest::keyClicks(&line(u"txtCompany"_s), u"x"_s);
    whenAsked(
        u"Save Project?"_s, QMessageBox::No,
        u"It is recommended you save your project before creating a final draft. Do you wish to save your project now?"_s);
    clickTab(8);
    EXPECT_EQ(preview(), first);
}

TEST_F(NavigationTest, a_cancelled_export_does_nothing_further) {
    startWithSample();
    clickTab(8);
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdCancel"_s));
    click(u"imgCreateToFile(2)"_s);
    EXPECT_FALSE(QApplication::activeModalWidget());
    expectAt(8);
}

TEST_F(NavigationTest, names_of_main_elements_are_taken_over_when_their_section_is_left) {
    startWithSample();
    clickTab(4);
    auto& name = line(u"txtElementName(0)"_s);
    name.selectAll();
    QTest::keyClicks(&name, u" tripod "_s);
    clickTab(5);
    EXPECT_EQ(line(u"txtElementMain(0)"_s).text(), u"tripod"_s);
}

TEST_F(NavigationTest, the_index_is_disabled_on_the_filing_page_alone) {
    startWithSample();
    clickTab(9);
    EXPECT_FALSE(control(u"picIndexContainer"_s).isEnabled());
    clickTab(8);
    EXPECT_TRUE(control(u"picIndexContainer"_s).isEnabled());
}
