#include "editors/pages/PageSubElements.h"

#include "controls/LineField.h"
#include "editors/pages/ElementPagesFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PageSubElementsTest : public ElementPagesFixture {
protected:
    /// Comes from Section 5 with this many elements.
    void enterWith(int count) {
        go(MainElementsTab);
        chooseCount(count);
        go(SubElementsTab);
    }

    int top(int element) { return subElements->column().panel(element).y(); }
};

} // namespace

TEST_F(PageSubElementsTest, the_captions_of_a_block_name_the_element_and_its_numerals) {
    enterWith(3);
    EXPECT_EQ(label(u"lblMainElementNums(0)"_s), u"First Main Element"_s);
    EXPECT_EQ(label(u"lblMainelemengReferenceNum(1)"_s),
              u"Second Main Element (and Reference Number)"_s);
    EXPECT_EQ(label(u"lblSubelemengReferenceNum(2)"_s),
              u"Sub-Elements for the Third Main Element"_s);
    EXPECT_EQ(label(u"lblElementMain(0)"_s), u"10:"_s);
    EXPECT_EQ(label(u"lblElementSub1(0)"_s), u"11:"_s);
    EXPECT_EQ(label(u"lblElementSub9(1)"_s), u"29:"_s);
    EXPECT_EQ(label(u"lblIndexElem"_s),
              u"REMINDER:Make sure to label each of the Main Elements and Sub-Elements within the "
              "figures you prepared in Step 4."_s);
}

TEST_F(PageSubElementsTest, the_last_of_15_blocks_is_numbered_150_to_159) {
    enterWith(15);
    EXPECT_EQ(label(u"lblMainElementNums(14)"_s), u"Fifteenth Main Element"_s);
    EXPECT_EQ(label(u"lblElementMain(14)"_s), u"150:"_s);
    for (int part = 1; part <= 9; ++part)
        EXPECT_EQ(label(u"lblElementSub%1(14)"_s.arg(part)), u"15%1:"_s.arg(part));
}

TEST_F(PageSubElementsTest, a_numeral_of_three_digits_pushes_the_star_2_to_the_right) {
    enterWith(15);
    EXPECT_EQ(control(u"imgMainElementValidate(8)"_s).x(), 32);
    EXPECT_EQ(control(u"imgMainElementValidate(9)"_s).x(), 34);
    for (const int i : {8, 14}) {
        const auto& numeral = control<QLabel>(controlName(u"lblElementMain", i));
        EXPECT_LT(numeral.x() + numeral.sizeHint().width(),
                  control(controlName(u"imgMainElementValidate", i)).x());
    }
}

TEST_F(PageSubElementsTest, the_scroll_bar_needs_two_blocks) {
    enterWith(1);
    EXPECT_FALSE(vscroll(4).isEnabled());
    EXPECT_EQ(vscroll(4).pageStep(), 376);
    enterWith(2);
    EXPECT_TRUE(vscroll(4).isEnabled());
    EXPECT_EQ(vscroll(4).maximum(), 308 - 68);
    EXPECT_EQ(vscroll(4).pageStep(), 308);
    vscroll(4).setValue(vscroll(4).maximum());
    EXPECT_EQ(top(1) + 308, 376);
    EXPECT_EQ(control(u"picElementUsersName"_s).height(), 376);
}

TEST_F(PageSubElementsTest, entering_the_section_starts_at_the_top) {
    enterWith(3);
    vscroll(4).setValue(200);
    EXPECT_EQ(top(0), -200);
    go(DescriptionsTab);
    go(SubElementsTab);
    EXPECT_EQ(vscroll(4).value(), 0);
    EXPECT_EQ(top(0), 0);
    EXPECT_EQ(top(2), 616);
}

TEST_F(PageSubElementsTest, a_new_name_shows_in_section_5_at_once_and_trimmed) {
    enterWith(3);
    type(u"txtElementMain(1)"_s, u" lid"_s);
    EXPECT_EQ(control<LineField>(u"txtElementName(1)"_s).text(), u"lid"_s);
}

TEST_F(PageSubElementsTest, a_name_of_two_words_can_be_typed) {
    enterWith(3);
    type(u"txtElementMain(1)"_s, u"canvas clamp"_s);
    EXPECT_EQ(fields.txtElementMain(1).text(), u"canvas clamp"_s);
    EXPECT_EQ(fields.txtElementName(1).text(), u"canvas clamp"_s);
    go(MainElementsTab);
    type(u"txtElementName(2)"_s, u"tilting mast"_s);
    EXPECT_EQ(fields.txtElementName(2).text(), u"tilting mast"_s);
    EXPECT_EQ(fields.txtElementMain(2).text(), u"tilting mast"_s);
}

TEST_F(PageSubElementsTest, a_sub_element_in_the_last_slot_alone_keeps_its_numeral) {
    enterWith(3);
    type(u"txtElementMain(2)"_s, u"hinge"_s);
    type(u"txtElementSub9(2)"_s, u"pin"_s);
    go(DescriptionsTab);
    EXPECT_EQ(indexText(), u"30: Hinge 39: Pin"_s);
}

TEST_F(PageSubElementsTest, the_index_shows_a_sub_element_when_its_field_is_left) {
    enterWith(3);
    type(u"txtElementSub4(0)"_s, u"pin"_s);
    EXPECT_EQ(indexText(), u""_s);
    clickTo(u"txtElementSub5(0)"_s);
    EXPECT_EQ(indexText(), u"14: Pin"_s);
}

TEST_F(PageSubElementsTest, a_block_may_have_the_focus_when_a_project_with_fewer_is_read) {
    go(SubElementsTab);
    type(u"txtElementSub3(2)"_s, u"pin"_s);
    ASSERT_TRUE(control(u"txtElementSub3(2)"_s).hasFocus());
    fields.setPanelCount(FieldGroup::SubElements, 1);
    columns->LayoutSubElements(1);
    EXPECT_FALSE(exists(u"txtElementSub3(2)"_s));
}

TEST_F(PageSubElementsTest, the_tab_key_brings_a_field_below_the_view_into_it) {
    enterWith(4);
    tabTo(u"txtElementSub9(2)"_s);
    const QWidget& field = control(u"txtElementSub9(2)"_s);
    EXPECT_EQ(vscroll(4).value(), field.y() + field.height() + 2 * 308 - 376);
    EXPECT_EQ(top(2) + field.y() + field.height(), 376);
    tabTo(u"txtElementMain(0)"_s);
    EXPECT_EQ(vscroll(4).value(), 0);
}

TEST_F(PageSubElementsTest, a_field_in_view_and_focus_by_the_mouse_move_nothing) {
    enterWith(4);
    tabTo(u"txtElementSub9(0)"_s);
    clickTo(u"txtElementSub9(3)"_s);
    EXPECT_EQ(vscroll(4).value(), 0);
}

TEST_F(PageSubElementsTest, the_tab_order_takes_ten_numbers_a_block_and_closes_on_itself) {
    enterWith(3);
    EXPECT_EQ(order.tabIndex(u"txtElementMain(2)"_s), order.tabIndex(u"txtElementMain(0)"_s) + 20);
    EXPECT_EQ(order.tabIndex(u"txtElementSub9(2)"_s), order.tabIndex(u"txtElementMain(0)"_s) + 29);
    tabTo(u"txtElementSub9(2)"_s);
    EXPECT_EQ(order.tabIndex(u"txtElementMain(0)"_s), order.tabIndex(u"txtElementSub9(2)"_s) + 1);
    tabTo(u"txtElementMain(0)"_s);
    EXPECT_EQ(order.tabIndex(u"txtElementMain(0)"_s), 0);
}

TEST_F(PageSubElementsTest, names_alone_are_required) {
    enterWith(2);
    guidance->TextHighLight(SubElementsTab);
    EXPECT_TRUE(control<LineField>(u"txtElementMain(1)"_s).isTinted());
    EXPECT_FALSE(control<LineField>(u"txtElementSub1(1)"_s).isTinted());
}

TEST_F(PageSubElementsTest, the_way_to_an_empty_name_scrolls_to_the_top) {
    enterWith(3);
    fields.txtElementMain(0).setText(u"lid"_s);
    fields.txtElementMain(1).setText(u"leg"_s);
    vscroll(4).setValue(100);
    guidance->TextgotFocus(SubElementsTab);
    EXPECT_EQ(vscroll(4).value(), 0);
    EXPECT_TRUE(control(u"txtElementMain(2)"_s).hasFocus());
}

TEST_F(PageSubElementsTest, neither_blocks_nor_page_are_crowded) {
    enterWith(15);
    EXPECT_EQ(crowded(container(SubElementsTab)), QStringList());
    for (int i = 0; i < 15; ++i)
        EXPECT_EQ(crowded(subElements->column().panel(i)), QStringList());
}
