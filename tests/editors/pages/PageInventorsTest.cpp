#include "editors/pages/PageInventors.h"

#include "editors/pages/FirstPagesFixture.h"

#include <QCheckBox>
#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList NineFields = {
    u"txtNameStep2"_s,     u"txtMIStep2"_s,       u"txtLastStep2"_s,
    u"txtAddress1Step2"_s, u"txtAddress2Step2"_s, u"txtCityStep2"_s,
    u"cboStateStep2"_s,    u"txtZipStep2"_s,      u"cboCitizenshipStep2"_s};

class PageInventorsTest : public FirstPagesFixture {
protected:
    PageInventorsTest() {
        go(InventorsTab);
        columns->layouts.clear();
    }

    void chooseInventors(int count) { chooseCount(u"cboInventorsNum"_s, count); }

    [[nodiscard]] QStringList shownOf(int inventor) const {
        QStringList texts;
        for (const QString& name : NineFields)
            texts.append(shown(controlName(name, inventor)));
        return texts;
    }

    [[nodiscard]] bool isPanelShown(int inventor) const {
        const QWidget& panel = control(controlName(u"picInventors", inventor));
        EXPECT_EQ(panel.isVisible(), panel.isEnabled());
        return panel.isVisible();
    }

    [[nodiscard]] int top(int inventor) const {
        return control(controlName(u"picInventors", inventor)).y();
    }

    [[nodiscard]] int countEnabled(int inventor) const {
        return static_cast<int>(
            std::count_if(NineFields.begin(), NineFields.end(), [&](const QString& name) {
                return control(controlName(name, inventor)).isEnabled();
            }));
    }

    [[nodiscard]] bool isSameAsContact() const {
        return control<QCheckBox>(u"chkSameAsContact"_s).isChecked();
    }

    void fillContact() {
        go(IntroductionTab);
        type(u"txtNameStep1"_s, u" Ada "_s);
        type(u"txtMIStep1"_s, u"K."_s);
        type(u"txtLastStep1"_s, u"Byron"_s);
        type(u"txtAddress1Step1"_s, u"1 Mill Lane"_s);
        type(u"txtCityStep1"_s, u"Dover"_s);
        choose(u"cboStateStep1"_s, u"DE"_s);
        type(u"txtZipStep1"_s, u"19901"_s);
        choose(u"cboCountryStep1"_s, u"Canada"_s);
        go(InventorsTab);
    }

    void answer(bool yes) {
        prompts.yesNoAnswers.push_back(yes);
        click(u"chkSameAsContact"_s);
    }
};

} // namespace

// The panels and their count.

TEST_F(PageInventorsTest, all_eight_panels_stand_from_the_start_and_one_is_shown) {
    EXPECT_EQ(inventors->column().panelCount(), 8);
    EXPECT_TRUE(isPanelShown(0));
    for (int i = 1; i < 8; ++i)
        EXPECT_FALSE(isPanelShown(i));
}

TEST_F(PageInventorsTest, the_first_panel_is_270_high_and_the_others_246) {
    EXPECT_EQ(control(u"picInventors(0)"_s).height(), 270);
    for (int i = 1; i < 8; ++i)
        EXPECT_EQ(control(controlName(u"picInventors", i)).height(), 246);
}

TEST_F(PageInventorsTest, captions_count_the_inventors_from_first_to_eighth) {
    EXPECT_EQ(label(u"lblInventor(0)"_s), u"First Inventor"_s);
    EXPECT_EQ(label(u"lblInventor(3)"_s), u"Fourth Inventor"_s);
    EXPECT_EQ(label(u"lblInventor(7)"_s), u"Eighth Inventor"_s);
}

TEST_F(PageInventorsTest, the_first_inventor_alone_has_the_box_of_the_contact) {
    EXPECT_EQ(control<QCheckBox>(u"chkSameAsContact"_s).text(), u"Same As Contact"_s);
    EXPECT_EQ(control(u"chkSameAsContact"_s).parentWidget(), &control(u"picInventors(0)"_s));
    EXPECT_FALSE(exists(u"chkSameAsContact(1)"_s));
    EXPECT_FALSE(isSameAsContact());
}

TEST_F(PageInventorsTest, an_assistive_program_hears_whose_field_it_is) {
    EXPECT_EQ(control(u"txtNameStep2(1)"_s).accessibleName(), u"Second Inventor: First Name"_s);
    EXPECT_EQ(control(u"cboCitizenshipStep2(7)"_s).accessibleName(),
              u"Eighth Inventor: Citizenship"_s);
}

TEST_F(PageInventorsTest, lowering_the_count_empties_those_who_go_and_raising_shows_empty_panels) {
    chooseInventors(5);
    for (int i = 0; i < 5; ++i)
        type(controlName(u"txtNameStep2", i), u"Ann"_s);
    choose(u"cboStateStep2(3)"_s, u"TX"_s);
    choose(u"cboCitizenshipStep2(3)"_s, u"Canada"_s);
    chooseInventors(2);
    EXPECT_TRUE(isPanelShown(1));
    EXPECT_FALSE(isPanelShown(2));
    EXPECT_EQ(fields.txtNameStep2(2).text(), u""_s);
    chooseInventors(5);
    EXPECT_EQ(shown(u"txtNameStep2(0)"_s), u"Ann"_s);
    EXPECT_EQ(shown(u"txtNameStep2(1)"_s), u"Ann"_s);
    for (int i = 2; i < 5; ++i) {
        EXPECT_TRUE(isPanelShown(i));
        EXPECT_EQ(shownOf(i), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s,
                                           u"United States"_s}));
    }
    EXPECT_FALSE(isPanelShown(5));
}

TEST_F(PageInventorsTest, one_inventor_has_no_scroll_bar_and_two_scroll_by_110) {
    EXPECT_FALSE(vscroll(0).isEnabled());
    EXPECT_EQ(vscroll(0).height(), 430 - 2) << "the section's frame stays whole";
    chooseInventors(2);
    EXPECT_TRUE(vscroll(0).isEnabled());
    EXPECT_EQ(vscroll(0).maximum(), 110);
    EXPECT_EQ(vscroll(0).pageStep(), 270);
}

TEST_F(PageInventorsTest, eight_panels_stand_below_each_other_without_gaps) {
    chooseInventors(8);
    EXPECT_EQ(vscroll(0).maximum(), 270 + 246 - 430 + 24 + 6 * 246);
    for (int i = 1; i < 8; ++i)
        EXPECT_EQ(top(i), 270 + 246 * (i - 1));
    vscroll(0).setValue(vscroll(0).maximum());
    EXPECT_EQ(top(7) + 246, 430 - 24);
}

TEST_F(PageInventorsTest, hidden_panels_are_not_moved) {
    chooseInventors(2);
    const int before = top(2);
    vscroll(0).setValue(100);
    EXPECT_EQ(top(0), -100);
    EXPECT_EQ(top(1), 170);
    EXPECT_EQ(top(2), before);
}

TEST_F(PageInventorsTest, choosing_the_count_that_stands_moves_the_column_to_its_top) {
    chooseInventors(3);
    type(u"txtNameStep2(2)"_s, u"Ann"_s);
    vscroll(0).setValue(200);
    columns->layouts.clear();
    chooseInventors(3);
    EXPECT_EQ(columns->layouts, QList<int>{3});
    EXPECT_EQ(vscroll(0).value(), 0);
    EXPECT_EQ(top(0), 0);
    EXPECT_EQ(shown(u"txtNameStep2(2)"_s), u"Ann"_s);
}

TEST_F(PageInventorsTest, two_quick_choices_make_one_layout_with_the_second_count) {
    choose(u"cboInventorsNum"_s, u"7"_s);
    choose(u"cboInventorsNum"_s, u"4"_s);
    waitForLayout();
    EXPECT_EQ(columns->layouts, QList<int>{4});
    EXPECT_TRUE(isPanelShown(3));
    EXPECT_FALSE(isPanelShown(4));
}

TEST_F(PageInventorsTest, the_count_stands_still_while_the_column_is_scrolled) {
    chooseInventors(8);
    vscroll(0).setValue(vscroll(0).maximum());
    EXPECT_FALSE(control(u"cboInventorsNum"_s).visibleRegion().isEmpty());
}

// The first inventor as a copy of the contact.

TEST_F(PageInventorsTest, yes_copies_the_contact_and_locks_the_nine_fields) {
    fillContact();
    answer(true);
    EXPECT_EQ(prompts.boxes.back(),
              (FakePrompts::Box{UserPrompts::Icon::Question, u"Information"_s,
                                u"Do you want Quillford 3.1 to use the information provided in "
                                u"section 1.Introduction for the First Inventor?"_s}));
    EXPECT_EQ(shownOf(0), QStringList({u"Ada"_s, u"K."_s, u"Byron"_s, u"1 Mill Lane"_s, u""_s,
                                       u"Dover"_s, u"DE"_s, u"19901"_s, u"Canada"_s}));
    EXPECT_EQ(countEnabled(0), 0);
    EXPECT_TRUE(isSameAsContact());
}

TEST_F(PageInventorsTest, no_clears_the_box_and_leaves_the_fields_as_they_were) {
    fillContact();
    type(u"txtNameStep2(0)"_s, u"Eve"_s);
    const QStringList before = shownOf(0);
    answer(false);
    EXPECT_FALSE(isSameAsContact());
    EXPECT_EQ(shownOf(0), before);
    EXPECT_EQ(countEnabled(0), 9);
    EXPECT_EQ(prompts.boxes.size(), 1U);
}

TEST_F(PageInventorsTest, without_a_city_the_zip_code_does_not_pass_over) {
    fillContact();
    go(IntroductionTab);
    clickTo(u"txtCityStep1"_s);
    empty(u"txtCityStep1"_s);
    go(InventorsTab);
    answer(true);
    EXPECT_EQ(fields.txtZipStep1.text(), u"19901"_s);
    EXPECT_EQ(shown(u"txtZipStep2(0)"_s), u""_s);
}

TEST_F(PageInventorsTest, a_checked_box_passes_each_key_with_its_blanks) {
    fillContact();
    answer(true);
    go(IntroductionTab);
    for (const QString& key : {u" "_s, u"B"_s, u"a"_s, u"y"_s, u" "_s}) {
        type(u"txtCityStep1"_s, key);
        EXPECT_EQ(shown(u"txtCityStep2(0)"_s), shown(u"txtCityStep1"_s));
    }
    EXPECT_EQ(shown(u"txtCityStep2(0)"_s), u"Dover Bay "_s);
}

TEST_F(PageInventorsTest, leaving_the_contacts_state_passes_it_on_even_without_the_box) {
    choose(u"cboStateStep2(0)"_s, u"TX"_s);
    go(IntroductionTab);
    clickTo(u"cboStateStep1"_s);
    empty(u"cboStateStep1"_s);
    QTest::keyClicks(&control(u"cboStateStep1"_s), u"OH"_s);
    EXPECT_EQ(shown(u"cboStateStep2(0)"_s), u"TX"_s);
    clickTo(u"txtZipStep1"_s);
    EXPECT_EQ(shown(u"cboStateStep2(0)"_s), u"OH"_s);
}

TEST_F(PageInventorsTest, clearing_the_box_keeps_the_text_and_sets_the_fields_free) {
    fillContact();
    answer(true);
    const QStringList copied = shownOf(0);
    click(u"chkSameAsContact"_s);
    EXPECT_EQ(shownOf(0), copied);
    EXPECT_EQ(countEnabled(0), 9);
    EXPECT_EQ(prompts.boxes.size(), 1U);
    type(u"txtLastStep2(0)"_s, u"-King"_s);
    EXPECT_EQ(shown(u"txtLastStep2(0)"_s), u"Byron-King"_s);
    EXPECT_EQ(fields.txtLastStep1.text(), u"Byron"_s);
}

TEST_F(PageInventorsTest, loading_a_project_with_the_box_checked_asks_nothing) {
    project.state.isLoading = true;
    fields.chkSameAsContact.setText(u"1"_s);
    project.state.isLoading = false;
    EXPECT_TRUE(isSameAsContact());
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(PageInventorsTest, locked_fields_stay_locked_when_the_count_changes) {
    fillContact();
    answer(true);
    chooseInventors(3);
    EXPECT_EQ(countEnabled(0), 0);
    EXPECT_EQ(countEnabled(2), 9);
}

// The Tab key.

TEST_F(PageInventorsTest, the_tab_key_walks_the_fields_and_closes_on_the_count) {
    chooseInventors(2);
    go(InventorsTab); // numbers the fields
    clickTo(u"cboInventorsNum"_s);
    QStringList walked;
    for (int i = 0; i < 20; ++i)
        walked.append(pressTab());
    QStringList expected{u"chkSameAsContact"_s};
    for (int i = 0; i < 2; ++i)
        for (const QString& name : NineFields)
            expected.append(controlName(name, i));
    expected.append(u"cboInventorsNum"_s);
    EXPECT_EQ(walked, expected);
}

TEST_F(PageInventorsTest, an_inventor_who_is_shown_later_is_walked_at_once) {
    chooseInventors(3);
    EXPECT_EQ(order.tabIndex(u"txtZipStep2(2)"_s), order.tabIndex(u"txtZipStep2(0)"_s) + 18);
    clickTo(u"cboCitizenshipStep2(1)"_s);
    EXPECT_EQ(pressTab(), u"txtNameStep2(2)"_s);
}

TEST_F(PageInventorsTest, locked_fields_are_passed_by) {
    fillContact();
    answer(true);
    chooseInventors(2);
    go(InventorsTab);
    clickTo(u"chkSameAsContact"_s);
    EXPECT_EQ(pressTab(), u"txtNameStep2(1)"_s);
}

TEST_F(PageInventorsTest, the_view_follows_the_tab_key_to_a_field_that_lies_below_it) {
    chooseInventors(3);
    clickTo(u"txtAddress2Step2(1)"_s);
    EXPECT_EQ(top(0), 0);
    ASSERT_EQ(pressTab(), u"txtCityStep2(1)"_s);
    // The end of the field in its panel, and the second panel's place less the fitting constant.
    const QWidget& city = control(u"txtCityStep2(1)"_s);
    EXPECT_EQ(vscroll(0).value(),
              std::clamp(city.geometry().bottom() + 1 + 246 + 24 - 404, 0, vscroll(0).maximum()));
    EXPECT_FALSE(city.visibleRegion().isEmpty());
}

TEST_F(PageInventorsTest, each_text_field_that_the_tab_key_reaches_comes_into_view) {
    chooseInventors(8);
    go(InventorsTab);
    clickTo(u"cboInventorsNum"_s);
    for (int i = 0; i < 73; ++i) {
        const QString name = pressTab();
        if (name.startsWith(u"cbo"_s))
            continue;
        EXPECT_EQ(control(name).visibleRegion().boundingRect(), control(name).rect())
            << name.toStdString();
    }
}

TEST_F(PageInventorsTest, tabbing_into_a_field_in_view_moves_nothing) {
    chooseInventors(2);
    vscroll(0).setValue(40);
    tabTo(u"txtLastStep2(0)"_s);
    EXPECT_EQ(vscroll(0).value(), 40);
}

TEST_F(PageInventorsTest, clicking_a_field_out_of_view_moves_nothing) {
    chooseInventors(8);
    clickTo(u"txtNameStep2(7)"_s);
    EXPECT_EQ(focused(), u"txtNameStep2(7)"_s);
    EXPECT_EQ(vscroll(0).value(), 0);
}

TEST_F(PageInventorsTest, the_lists_are_not_followed) {
    chooseInventors(8);
    tabTo(u"cboCitizenshipStep2(5)"_s);
    EXPECT_EQ(vscroll(0).value(), 0);
}

TEST_F(PageInventorsTest, the_box_is_followed_back_to_the_top) {
    chooseInventors(8);
    vscroll(0).setValue(vscroll(0).maximum());
    tabTo(u"chkSameAsContact"_s);
    EXPECT_EQ(vscroll(0).value(), 0);
}

// Guidance.

TEST_F(PageInventorsTest, required_fields_that_are_empty_or_blank_are_tinted) {
    chooseInventors(2);
    type(u"txtNameStep2(1)"_s, u"Ann"_s);
    type(u"txtLastStep2(1)"_s, u"  "_s);
    guidance->TextHighLight(InventorsTab);
    EXPECT_FALSE(isTinted(u"txtNameStep2(1)"_s));
    EXPECT_TRUE(isTinted(u"txtLastStep2(1)"_s));
    EXPECT_FALSE(isTinted(u"txtMIStep2(1)"_s));
    EXPECT_FALSE(isTinted(u"txtAddress2Step2(1)"_s));
    EXPECT_TRUE(isTinted(u"txtZipStep2(1)"_s));
    EXPECT_FALSE(isTinted(u"cboStateStep2(0)"_s)); // a new project names a state
}

TEST_F(PageInventorsTest, a_filled_field_that_is_emptied_again_stays_white_until_the_next_look) {
    guidance->TextHighLight(InventorsTab);
    type(u"txtNameStep2(0)"_s, u"A"_s);
    empty(u"txtNameStep2(0)"_s);
    EXPECT_FALSE(isTinted(u"txtNameStep2(0)"_s));
    guidance->TextHighLight(InventorsTab);
    EXPECT_TRUE(isTinted(u"txtNameStep2(0)"_s));
}

TEST_F(PageInventorsTest, a_chosen_state_and_any_citizenship_turn_white) {
    chooseInventors(2);
    chooseInventors(1);
    chooseInventors(2);
    guidance->TextHighLight(InventorsTab);
    EXPECT_TRUE(isTinted(u"cboStateStep2(1)"_s));
    choose(u"cboStateStep2(1)"_s, u"NY"_s);
    EXPECT_FALSE(isTinted(u"cboStateStep2(1)"_s));
    clickTo(u"cboCitizenshipStep2(1)"_s);
    empty(u"cboCitizenshipStep2(1)"_s);
    guidance->TextHighLight(InventorsTab);
    EXPECT_TRUE(isTinted(u"cboCitizenshipStep2(1)"_s));
    QTest::keyClicks(&control(u"cboCitizenshipStep2(1)"_s), u"M"_s);
    EXPECT_FALSE(isTinted(u"cboCitizenshipStep2(1)"_s));
}

TEST_F(PageInventorsTest, a_blank_in_a_locked_first_inventor_scrolls_up_and_moves_no_focus) {
    chooseInventors(4);
    fillContact();
    go(IntroductionTab);
    clickTo(u"txtLastStep1"_s);
    empty(u"txtLastStep1"_s);
    go(InventorsTab);
    answer(true);
    vscroll(0).setValue(300);
    clickTo(u"txtZipStep2(3)"_s);
    guidance->TextgotFocus(InventorsTab);
    EXPECT_EQ(vscroll(0).value(), 0);
    EXPECT_EQ(focused(), u"txtZipStep2(3)"_s);
}

TEST_F(PageInventorsTest, the_cursor_goes_to_an_empty_field_and_the_column_to_its_top) {
    chooseInventors(4);
    for (int i = 0; i < 3; ++i)
        for (const QString& name : NineFields)
            fields.at(findFieldRow(name)->id, i).setText(u"x"_s);
    vscroll(0).setValue(500);
    guidance->TextgotFocus(InventorsTab);
    EXPECT_EQ(focused(), u"txtNameStep2(3)"_s);
    EXPECT_EQ(vscroll(0).value(), 0);
}

// The look.

TEST_F(PageInventorsTest, nothing_lies_over_anything_and_no_label_is_cut) {
    EXPECT_EQ(crowded(container(InventorsTab)), QStringList());
    for (int i = 0; i < 8; ++i) {
        const QWidget& panel = control(controlName(u"picInventors", i));
        EXPECT_EQ(crowded(panel), QStringList());
        EXPECT_EQ(clipped(panel), QStringList());
    }
    EXPECT_EQ(clipped(container(InventorsTab)), QStringList());
}

TEST_F(PageInventorsTest, required_fields_have_their_stars_and_the_others_none) {
    for (const char* star :
         {"imgFirstValidate", "imgLastValidate", "imgAddressValidate", "imgCityValidate",
          "imgStateValidate", "imgZipValidate", "imgCitizenshipValidate"})
        EXPECT_TRUE(exists(controlName(QString::fromLatin1(star), 7))) << star;
    EXPECT_EQ(
        control(u"picInventors(7)"_s).findChildren<QWidget*>(QRegularExpression(u"^img"_s)).size(),
        7);
}
