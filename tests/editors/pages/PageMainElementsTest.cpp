#include "editors/pages/PageMainElements.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "editors/pages/ElementPagesFixture.h"

#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PageMainElementsTest : public ElementPagesFixture {
protected:
    PageMainElementsTest() {
        go(MainElementsTab);
        columns->layouts.clear();
    }

    int top(int element) { return mainElements->column().panel(element).y(); }
};

} // namespace

TEST_F(PageMainElementsTest, a_new_project_shows_three_panels_of_the_designed_height) {
    EXPECT_EQ(mainElements->column().panelCount(), 3);
    EXPECT_EQ(control(u"picElement(0)"_s).height(), 139);
    EXPECT_EQ(control(u"picMainElement"_s).height(), 278);
    EXPECT_EQ(top(1), 139);
    EXPECT_EQ(top(2), 278);
    EXPECT_FALSE(exists(u"picElement(3)"_s));
}

TEST_F(PageMainElementsTest, captions_name_the_element_and_the_first_is_spelt_in_lower_case) {
    EXPECT_EQ(label(u"lblMainElementName(0)"_s), u"First Main Element"_s);
    EXPECT_EQ(label(u"lblElementName(1)"_s), u"Name"_s);
    EXPECT_EQ(label(u"lblElementDes(0)"_s),
              u"Describe the structure and function of the First Main Element"_s);
    EXPECT_EQ(label(u"lblElementDes(1)"_s),
              u"Describe the Structure and Function of the Second Main Element"_s);
}

TEST_F(PageMainElementsTest, a_caption_stands_8_from_the_left_and_is_6_wider_than_its_text) {
    const auto& caption = control<QLabel>(u"lblMainElementName(1)"_s);
    EXPECT_EQ(caption.x(), 8);
    EXPECT_EQ(caption.width(), caption.fontMetrics().horizontalAdvance(caption.text()) + 6);
    EXPECT_EQ(caption.palette().color(QPalette::WindowText), QColor(50, 105, 196));
}

TEST_F(PageMainElementsTest, the_star_of_a_description_stands_2_behind_its_label) {
    for (int i = 0; i < 3; ++i) {
        const QRect text = control(controlName(u"lblElementDes", i)).geometry();
        const QWidget& star = control(controlName(u"imgElementDesValidate", i));
        EXPECT_EQ(star.x(), text.x() + text.width() + 2);
        EXPECT_EQ(text.width(),
                  control<QLabel>(controlName(u"lblElementDes", i)).sizeHint().width());
    }
}

TEST_F(PageMainElementsTest, the_scroll_bar_needs_three_panels) {
    EXPECT_TRUE(vscroll(3).isEnabled());
    EXPECT_EQ(vscroll(3).maximum(), 139);
    EXPECT_EQ(vscroll(3).pageStep(), 139);
    chooseCount(2);
    EXPECT_FALSE(vscroll(3).isEnabled());
    EXPECT_EQ(vscroll(3).maximum(), 0);
}

TEST_F(PageMainElementsTest, the_last_of_15_panels_ends_at_the_bottom_of_the_view) {
    chooseCount(15);
    EXPECT_EQ(label(u"lblMainElementName(14)"_s), u"Fifteenth Main Element"_s);
    vscroll(3).setValue(vscroll(3).maximum());
    EXPECT_EQ(top(14) + 139, 278);
}

TEST_F(PageMainElementsTest, choosing_the_count_that_stands_already_moves_the_column_to_its_top) {
    vscroll(3).setValue(100);
    EXPECT_EQ(top(0), -100);
    chooseCount(3);
    EXPECT_EQ(columns->layouts, QList<int>{3});
    EXPECT_EQ(top(0), 0);
    EXPECT_EQ(vscroll(3).value(), 0);
}

TEST_F(PageMainElementsTest, two_quick_choices_make_one_layout_with_the_second_count) {
    clickCount(9);
    clickCount(5);
    waitForLayout();
    EXPECT_EQ(columns->layouts, QList<int>{5});
    EXPECT_EQ(mainElements->column().panelCount(), 5);
}

TEST_F(PageMainElementsTest, a_count_choice_lays_out_later_and_not_from_within_the_click) {
    clickCount(5);
    EXPECT_EQ(mainElements->column().panelCount(), 3);
    waitForLayout();
    EXPECT_EQ(mainElements->column().panelCount(), 5);
}

TEST_F(PageMainElementsTest, a_dropped_element_comes_back_empty_with_all_that_belonged_to_it) {
    type(u"txtElementName(2)"_s, u"hinge"_s);
    type(u"txtElementDes(2)"_s, u"It turns."_s);
    go(SubElementsTab);
    type(u"txtElementSub4(2)"_s, u"pin"_s);
    go(DescriptionsTab);
    type(u"txtMainElementNameDetail(2)"_s, u"It is made of steel."_s);
    type(u"txtMainElementVariations(2)"_s, u"Or of brass."_s);
    go(MainElementsTab);
    chooseCount(2);
    EXPECT_FALSE(exists(u"txtElementName(2)"_s));
    EXPECT_EQ(control<LineField>(u"txtElementSub4(2)"_s).text(), u""_s); // before Section 6 is seen
    EXPECT_EQ(control<TextField>(u"txtMainElementNameDetail(2)"_s).text(), u""_s);
    chooseCount(3);
    go(SubElementsTab);
    go(DescriptionsTab);
    EXPECT_EQ(control<LineField>(u"txtElementName(2)"_s).text(), u""_s);
    EXPECT_EQ(control<TextField>(u"txtElementDes(2)"_s).text(), u""_s);
    EXPECT_EQ(control<LineField>(u"txtElementMain(2)"_s).text(), u""_s);
    EXPECT_EQ(control<LineField>(u"txtElementSub4(2)"_s).text(), u""_s);
    EXPECT_EQ(control<TextField>(u"txtMainElementNameDetail(2)"_s).text(), u""_s);
    EXPECT_EQ(control<TextField>(u"txtMainElementVariations(2)"_s).text(), u""_s);
}

TEST_F(PageMainElementsTest, the_panels_of_the_other_sections_stand_until_the_section_is_left) {
    chooseCount(2);
    EXPECT_TRUE(exists(u"picElementUsers(2)"_s));
    EXPECT_TRUE(exists(u"picfrmMainElementDes(2)"_s));
    go(SubElementsTab);
    EXPECT_FALSE(exists(u"picElementUsers(2)"_s));
    EXPECT_FALSE(exists(u"picfrmMainElementDes(2)"_s));
}

TEST_F(PageMainElementsTest, a_new_name_shows_in_section_6_at_once_when_it_has_as_many_panels) {
    type(u"txtElementName(1)"_s, u"lid "_s);
    EXPECT_EQ(control<LineField>(u"txtElementMain(1)"_s).text(), u"lid"_s);
    EXPECT_EQ(control<LineField>(u"txtElementName(1)"_s).text(), u"lid "_s);
}

// The partner passes its trimmed text back.
TEST_F(PageMainElementsTest, blanks_before_a_name_go_and_what_is_typed_next_goes_on_behind_it) {
    type(u"txtElementName(1)"_s, u"  tilting mast"_s);
    EXPECT_EQ(fields.txtElementName(1).text(), u"tilting mast"_s);
    EXPECT_EQ(control<LineField>(u"txtElementName(1)"_s).text(), u"tilting mast"_s);
}

TEST_F(PageMainElementsTest, otherwise_it_shows_as_soon_as_section_6_has_its_panels) {
    chooseCount(4);
    type(u"txtElementName(1)"_s, u" lid "_s);
    EXPECT_EQ(control<LineField>(u"txtElementMain(1)"_s).text(), u""_s);
    go(SubElementsTab);
    EXPECT_EQ(control<LineField>(u"txtElementMain(1)"_s).text(), u"lid"_s);
}

TEST_F(PageMainElementsTest, enter_adds_nothing_to_the_sentence_and_a_line_to_a_description) {
    type(u"txtMainElement"_s, u"a lid"_s);
    QTest::keyClick(&control(u"txtMainElement"_s), Qt::Key_Return);
    QTest::keyClick(&control(u"txtMainElement"_s), Qt::Key_Enter);
    EXPECT_EQ(fields.txtMainElement.text(), u"a lid"_s);
    type(u"txtElementDes(0)"_s, u"It"_s);
    QTest::keyClick(&control(u"txtElementDes(0)"_s), Qt::Key_Return);
    QTest::keyClicks(&control(u"txtElementDes(0)"_s), u"closes."_s);
    EXPECT_EQ(fields.txtElementDes(0).text(), u"It\r\ncloses."_s);
}

TEST_F(PageMainElementsTest, the_tab_key_brings_a_field_below_the_view_into_it) {
    chooseCount(5);
    tabTo(u"txtElementDes(3)"_s);
    const QWidget& field = control(u"txtElementDes(3)"_s);
    EXPECT_EQ(vscroll(3).value(), field.y() + field.height() + 3 * 139 - 278);
    EXPECT_EQ(top(3) + field.y() + field.height(), 278);
}

TEST_F(PageMainElementsTest, a_field_that_is_in_view_moves_nothing) {
    chooseCount(5);
    tabTo(u"txtElementDes(1)"_s);
    EXPECT_EQ(vscroll(3).value(), 0);
}

TEST_F(PageMainElementsTest, focus_by_mouse_or_program_moves_nothing) {
    chooseCount(5);
    clickTo(u"txtElementName(4)"_s);
    control(u"txtElementDes(4)"_s).setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(vscroll(3).value(), 0);
}

TEST_F(PageMainElementsTest, the_tab_order_walks_each_panel_and_closes_on_itself) {
    chooseCount(4);
    EXPECT_EQ(order.tabIndex(u"txtElementDes(3)"_s), order.tabIndex(u"txtElementName(0)"_s) + 7);
    tabTo(u"txtElementDes(3)"_s);
    EXPECT_EQ(order.tabIndex(u"txtMainElement"_s), order.tabIndex(u"txtElementDes(3)"_s) + 1);
    tabTo(u"txtMainElement"_s);
    EXPECT_EQ(order.tabIndex(u"txtMainElement"_s), 0);
}

TEST_F(PageMainElementsTest, empty_required_fields_are_tinted_until_something_is_typed) {
    fields.txtElementName(1).setText(u"lid"_s);
    guidance->TextHighLight(MainElementsTab);
    EXPECT_TRUE(control<TextField>(u"txtMainElement"_s).isTinted());
    EXPECT_TRUE(control<LineField>(u"txtElementName(0)"_s).isTinted());
    EXPECT_FALSE(control<LineField>(u"txtElementName(1)"_s).isTinted());
    EXPECT_TRUE(control<TextField>(u"txtElementDes(1)"_s).isTinted());
    type(u"txtElementName(0)"_s, u" "_s);
    EXPECT_TRUE(control<LineField>(u"txtElementName(0)"_s).isTinted());
    type(u"txtElementName(0)"_s, u"b"_s);
    EXPECT_FALSE(control<LineField>(u"txtElementName(0)"_s).isTinted());
    empty(u"txtElementName(0)"_s);
    EXPECT_FALSE(control<LineField>(u"txtElementName(0)"_s).isTinted());
    guidance->TextHighLight(MainElementsTab);
    EXPECT_TRUE(control<LineField>(u"txtElementName(0)"_s).isTinted());
}

TEST_F(PageMainElementsTest,
       the_way_to_an_empty_field_scrolls_to_the_top_and_focuses_it_all_the_same) {
    chooseCount(5);
    fields.txtMainElement.setText(u"a lid"_s);
    for (int i = 0; i < 5; ++i) {
        fields.txtElementName(i).setText(u"lid"_s);
        fields.txtElementDes(i).setText(i == 4 ? u"  "_s : u"It closes."_s);
    }
    vscroll(3).setValue(200);
    guidance->TextgotFocus(MainElementsTab);
    EXPECT_EQ(vscroll(3).value(), 0);
    EXPECT_TRUE(control(u"txtElementDes(4)"_s).hasFocus());
}

TEST_F(PageMainElementsTest, the_count_goes_from_1_to_15_and_back_with_names_of_1_and_200_letters) {
    for (int count = 1; count <= 15; ++count) {
        chooseCount(count);
        ASSERT_EQ(mainElements->column().panelCount(), count);
        fields.txtElementName(count - 1).setText(QString(count % 2 ? 1 : 200, u'w'));
    }
    for (int i = 0; i < 15; ++i) {
        EXPECT_EQ(crowded(mainElements->column().panel(i)), QStringList());
        EXPECT_EQ(control<LineField>(controlName(u"txtElementName", i)).text().size(),
                  i % 2 ? 200 : 1);
    }
    for (int count = 15; count >= 1; --count) {
        chooseCount(count);
        EXPECT_EQ(mainElements->column().panelCount(), count);
        EXPECT_EQ(fields.panelCount(FieldGroup::MainElements), count);
    }
    EXPECT_EQ(control<LineField>(u"txtElementName(0)"_s).text(), u"w"_s);
}

TEST_F(PageMainElementsTest, the_panel_that_has_the_focus_can_be_dropped) {
    type(u"txtElementName(2)"_s, u"hinge"_s);
    control(u"txtElementName(2)"_s).setFocus();
    columns->LayoutMainElements(1);
    EXPECT_EQ(mainElements->column().panelCount(), 1);
}

TEST_F(PageMainElementsTest, nothing_on_the_page_is_crowded) {
    EXPECT_EQ(crowded(container(MainElementsTab)), QStringList());
}
