#include "editors/pages/PageDescriptions.h"

#include "controls/TextField.h"
#include "editors/pages/ElementPagesFixture.h"
#include "support/FakeTextMeasure.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PageDescriptionsTest : public ElementPagesFixture {
protected:
    /// Comes from Section 5 with this many elements.
    void enterWith(int count) {
        go(MainElementsTab);
        chooseCount(count);
        go(DescriptionsTab);
    }

    /// Gives an element a name in Section 5 and comes back.
    void rename(int element, const QString& name) {
        go(MainElementsTab);
        fields.txtElementName(element).setText(name);
        go(DescriptionsTab);
    }

    [[nodiscard]] int topOf(const QString& name) const { return control(name).y(); }

    [[nodiscard]] int bottomOf(const QString& name) const {
        return control(name).y() + control(name).height();
    }

    /// The bottom of a field of a panel as it stands in the view.
    [[nodiscard]] int bottomInView(const QString& name) const {
        const QWidget& field = control(name);
        return field.mapTo(field.window(), QPoint(0, field.height())).y() - 122;
    }
};

/// A font so narrow that no caption is ever cut.
class NarrowMeasure final : public TextMeasure {
public:
    [[nodiscard]] double width(QStringView, TextWeight) const override { return 1; }

    [[nodiscard]] int lineHeight() const override { return 13; }
};

} // namespace

TEST_F(PageDescriptionsTest, a_panel_without_a_name_has_its_designed_places) {
    enterWith(3);
    EXPECT_EQ(control(u"picfrmMainElementDes(1)"_s).height(), 224);
    EXPECT_EQ(control(u"shpDesOfMainElement(1)"_s).height(), 210);
    EXPECT_EQ(control(u"lblMainElementNameDetail(1)"_s).size(), QSize(343, 13));
    EXPECT_EQ(control(u"lblMainElementVariations(1)"_s).size(), QSize(343, 26));
    EXPECT_EQ(control(u"lblDesElementNameValidate(1)"_s).width(), 343);
    EXPECT_EQ(topOf(u"txtMainElementNameDetail(1)"_s), 45);
    EXPECT_EQ(topOf(u"lblMainElementVariations(1)"_s), 118);
    EXPECT_EQ(topOf(u"txtMainElementVariations(1)"_s), 150);
}

TEST_F(PageDescriptionsTest, a_blank_name_leaves_placeholders) {
    go(MainElementsTab);
    fields.txtElementName(0).setText(u"lid"_s);
    fields.txtElementName(1).setText(u"  "_s);
    fields.txtElementName(2).setText(u"leg"_s);
    go(DescriptionsTab);
    EXPECT_EQ(label(u"lblDesOfMainElement(1)"_s),
              u"[Main Element Name 2] (2 of 3 Main Elements)"_s);
    EXPECT_EQ(label(u"lblMainElementNameDetail(1)"_s),
              u"Detailed Description of the [MAIN ELEMENT 2 NAME]"_s);
    EXPECT_EQ(label(u"lblMainElementVariations(1)"_s),
              u"Describe All Possible Structural and Functional Variations of the [MAIN ELEMENT 2 "
              "NAME]"_s);
    EXPECT_EQ(label(u"lblDesOfMainElement(2)"_s), u"Leg (3 of 3 Main Elements)"_s);
}

TEST_F(PageDescriptionsTest, a_name_changed_in_section_5_shows_when_that_section_is_left) {
    enterWith(3);
    go(MainElementsTab);
    fields.txtElementName(0).setText(u"canvas clamp"_s);
    EXPECT_EQ(label(u"lblDesOfMainElement(0)"_s),
              u"[Main Element Name 1] (1 of 3 Main Elements)"_s);
    go(SubElementsTab);
    EXPECT_EQ(label(u"lblDesOfMainElement(0)"_s), u"Canvas Clamp (1 of 3 Main Elements)"_s);
    EXPECT_EQ(label(u"lblMainElementNameDetail(0)"_s),
              u"Detailed Description of the Canvas Clamp"_s);
    EXPECT_EQ(label(u"lblDesElementNameValidate(0)"_s),
              u"Detailed Description of the Canvas Clamp  *"_s);
}

TEST_F(PageDescriptionsTest, a_very_long_name_ends_in_dots_at_200_315_and_330) {
    enterWith(2);
    rename(0, QString(200, u'w'));
    const QString frame = label(u"lblDesOfMainElement(0)"_s);
    const QString dots = u"..."_s;
    ASSERT_TRUE(frame.endsWith(u"... (1 of 2 Main Elements)"_s));
    const auto width = [&](const QString& text) {
        return measure.width(text.left(text.indexOf(dots)), TextWeight::Regular);
    };
    EXPECT_LE(width(frame), 200 + 2); // the capital is wider than the letter that was measured
    EXPECT_GT(width(frame), 190);
    const QString detail = label(u"lblMainElementNameDetail(0)"_s);
    ASSERT_TRUE(detail.endsWith(dots));
    EXPECT_LE(width(detail), 315);
    EXPECT_GT(width(detail), 305);
    const QString variations = label(u"lblMainElementVariations(0)"_s);
    ASSERT_TRUE(variations.endsWith(dots));
    EXPECT_LE(width(variations), 330);
    EXPECT_GT(width(variations), 320);
    const QWidget& caption = control(u"lblDesOfMainElement(0)"_s);
    EXPECT_LT(caption.x() + caption.width(), control(u"shpDesOfMainElement(0)"_s).width());
}

TEST_F(PageDescriptionsTest, a_caption_is_plain_text) {
    enterWith(1);
    rename(0, u"<b>lid</b> & leg"_s);
    EXPECT_EQ(control<QLabel>(u"lblDesOfMainElement(0)"_s).textFormat(), Qt::PlainText);
    EXPECT_EQ(control<QLabel>(u"lblMainElementNameDetail(0)"_s).textFormat(), Qt::PlainText);
    EXPECT_EQ(control<QLabel>(u"lblMainElementVariations(0)"_s).textFormat(), Qt::PlainText);
}

TEST_F(PageDescriptionsTest, a_line_more_in_a_question_lowers_everything_under_it_by_a_line) {
    enterWith(3);
    rename(1, u"x"_s); // a question of one line
    const int panel = control(u"picfrmMainElementDes(1)"_s).height();
    const int next = topOf(u"picfrmMainElementDes(2)"_s);
    const int connections = topOf(u"picDesMainAndSub"_s);
    const int alternative = topOf(u"picAlternativeFrm"_s);
    const int page = control(u"picMElements"_s).height();
    const int maximum = vscroll(5).maximum();
    rename(1, u""_s); // the placeholder takes two
    EXPECT_EQ(control(u"picfrmMainElementDes(1)"_s).height(), panel + 13);
    EXPECT_EQ(topOf(u"picfrmMainElementDes(2)"_s), next + 13);
    EXPECT_EQ(topOf(u"picDesMainAndSub"_s), connections + 13);
    EXPECT_EQ(topOf(u"picAlternativeFrm"_s), alternative + 13);
    EXPECT_EQ(control(u"picMElements"_s).height(), page + 13);
    EXPECT_EQ(vscroll(5).maximum(), maximum + 13);
}

TEST_F(PageDescriptionsTest, a_name_that_wraps_both_questions_raises_a_panel_by_all_its_lines) {
    const NarrowMeasure narrow;
    QWidget panel(&form());
    ProjectFields own;
    BoundFields ownBound(own);
    FocusOrder ownOrder;
    own.txtElementName(1).setText(
        u"tilting mast of the second chamber with its collars "_s.repeated(4));
    PageDescriptions page(panel, own, ownBound, ownOrder, narrow, [] {});
    const auto part = [&](const QString& name) -> QWidget& {
        return *panel.findChild<QWidget*>(name);
    };
    const int detail = part(u"lblMainElementNameDetail(1)"_s).height();
    const int variations = part(u"lblMainElementVariations(1)"_s).height();
    EXPECT_GE(detail, 39);
    EXPECT_GE(variations, 52);
    EXPECT_EQ(detail,
              static_cast<QLabel&>(part(u"lblMainElementNameDetail(1)"_s)).heightForWidth(343));
    EXPECT_EQ(part(u"picfrmMainElementDes(1)"_s).height(), 224 + detail - 13 + variations - 26);
    EXPECT_EQ(part(u"picfrmMainElementDes(2)"_s).y(),
              part(u"picfrmMainElementDes(1)"_s).y() + part(u"picfrmMainElementDes(1)"_s).height());
    EXPECT_EQ(part(u"txtMainElementNameDetail(1)"_s).y(),
              part(u"lblMainElementNameDetail(1)"_s).geometry().bottom() + 1 + 8);
}

TEST_F(PageDescriptionsTest, with_one_element_the_page_is_852_high_and_scrolls_420) {
    enterWith(1);
    EXPECT_EQ(control(u"picMElements"_s).height(), 852);
    EXPECT_EQ(vscroll(5).maximum(), 420);
    EXPECT_EQ(topOf(u"lblTab7Part1(1)"_s), 224 + 41);
    EXPECT_EQ(topOf(u"picDesMainAndSub"_s), 224 + 62);
    EXPECT_EQ(topOf(u"lblTab7Part1(2)"_s), bottomOf(u"picDesMainAndSub"_s) + 13);
    EXPECT_EQ(topOf(u"picAlternativeFrm"_s), topOf(u"lblTab7Part1(2)"_s) + 20);
}

TEST_F(PageDescriptionsTest, with_more_elements_the_parts_follow_in_smaller_steps) {
    enterWith(3);
    const int sum = 3 * 224 + 28;
    EXPECT_EQ(topOf(u"lblTab7Part1(1)"_s), sum + 15);
    EXPECT_EQ(topOf(u"picDesMainAndSub"_s), sum + 35);
    EXPECT_EQ(topOf(u"lblTab7Part1(2)"_s), bottomOf(u"picDesMainAndSub"_s) + 11);
    EXPECT_EQ(topOf(u"picAlternativeFrm"_s), topOf(u"lblTab7Part1(2)"_s) + 17);
    EXPECT_EQ(control(u"picMElements"_s).height(), sum + 852);
    EXPECT_EQ(vscroll(5).maximum(), sum + 164);
    EXPECT_EQ(vscroll(5).pageStep(), 224 + 15);
}

TEST_F(PageDescriptionsTest, the_headings_and_captions_are_those_of_the_three_parts) {
    enterWith(1);
    EXPECT_EQ(label(u"lblTab7Part1(0)"_s), u"Part 1 of 3: Description of Main Elements"_s);
    EXPECT_EQ(label(u"lblTab7Part1(1)"_s),
              u"Part 2 of 3: Connections of Main Elements and Sub-Elements"_s);
    EXPECT_EQ(label(u"lblTab7Part1(2)"_s), u"Part 3 of 3: Alternative Variation of Invention"_s);
    EXPECT_EQ(label(u"lblTab7(0)"_s), u"Describe the Connections"_s);
    EXPECT_EQ(label(u"lblTab7Des(0)"_s),
              u"Describe the Connections of the Main Elements and Sub-Elements"_s);
    EXPECT_EQ(label(u"lblTab7(1)"_s), u"Alternative Variation of Invention"_s);
    EXPECT_EQ(label(u"lblTab7Des(1)"_s),
              u"Describe Any and All Alternative Variations of Your Invention"_s);
}

TEST_F(PageDescriptionsTest, the_page_moves_as_a_whole) {
    enterWith(3);
    vscroll(5).setValue(100);
    EXPECT_EQ(topOf(u"picMElements"_s), -100);
    EXPECT_EQ(topOf(u"picfrmMainElementDes(0)"_s), 28);
    columns->scrollDescriptionsToTop();
    EXPECT_EQ(topOf(u"picMElements"_s), 0);
    EXPECT_EQ(vscroll(5).value(), 0);
}

TEST_F(PageDescriptionsTest, the_end_of_the_page_can_be_scrolled_to) {
    for (const int count : {1, 2, 15}) {
        enterWith(count);
        vscroll(5).setValue(vscroll(5).maximum());
        EXPECT_LE(bottomInView(u"picAlternativeFrm"_s), 430) << count;
        EXPECT_GE(bottomInView(u"picAlternativeFrm"_s), 380) << count;
    }
}

TEST_F(PageDescriptionsTest, refreshing_the_captions_scrolls_the_sub_elements_to_their_top) {
    enterWith(3);
    vscroll(4).setValue(150);
    columns->RefreshDescriptionCaptions();
    EXPECT_EQ(vscroll(4).value(), 0);
    EXPECT_EQ(topOf(u"picElementUsers(0)"_s), 0);
}

TEST_F(PageDescriptionsTest, refreshing_the_captions_makes_the_panels_of_the_count) {
    fields.cboMainElementNum.setText(u"5"_s);
    columns->RefreshDescriptionCaptions();
    EXPECT_EQ(descriptions->column().panelCount(), 5);
    EXPECT_EQ(fields.panelCount(FieldGroup::Descriptions), 5);
    EXPECT_EQ(label(u"lblDesOfMainElement(4)"_s),
              u"[Main Element Name 5] (5 of 5 Main Elements)"_s);
}

TEST_F(PageDescriptionsTest, the_single_texts_survive_any_count) {
    enterWith(3);
    type(u"txtDesConnections"_s, u"All are screwed."_s);
    type(u"txtDesAlterative"_s, u"Or glued."_s);
    enterWith(1);
    enterWith(15);
    EXPECT_EQ(control<TextField>(u"txtDesConnections"_s).text(), u"All are screwed."_s);
    EXPECT_EQ(control<TextField>(u"txtDesAlterative"_s).text(), u"Or glued."_s);
}

TEST_F(PageDescriptionsTest, the_tab_key_brings_a_field_of_a_panel_into_view) {
    enterWith(4);
    tabTo(u"txtMainElementVariations(0)"_s);
    EXPECT_EQ(vscroll(5).value(), 0);
    tabTo(u"txtMainElementVariations(2)"_s);
    const QWidget& field = control(u"txtMainElementVariations(2)"_s);
    EXPECT_EQ(vscroll(5).value(), field.y() + field.height() + 2 * 224 - 399);
    EXPECT_LE(bottomInView(u"txtMainElementVariations(2)"_s), 430);
}

TEST_F(PageDescriptionsTest, focus_by_the_mouse_moves_nothing) {
    enterWith(4);
    clickTo(u"txtMainElementVariations(3)"_s);
    clickTo(u"txtDesConnections"_s);
    clickTo(u"txtDesAlterative"_s);
    EXPECT_EQ(vscroll(5).value(), 0);
}

TEST_F(PageDescriptionsTest, the_tab_key_brings_the_connections_to_the_bottom_of_the_view) {
    enterWith(3);
    tabTo(u"txtDesConnections"_s);
    const QWidget& field = control(u"txtDesConnections"_s);
    EXPECT_EQ(vscroll(5).value(), field.y() + field.height() + 3 * 224 - 368);
}

TEST_F(PageDescriptionsTest, behind_the_last_panel_the_tab_key_brings_the_end_of_the_page) {
    enterWith(3);
    tabTo(u"txtMainElementVariations(1)"_s);
    const int before = vscroll(5).value();
    tabTo(u"txtDesAlterative"_s);
    EXPECT_EQ(vscroll(5).value(), before);
    tabTo(u"txtMainElementVariations(2)"_s);
    tabTo(u"txtDesAlterative"_s);
    EXPECT_EQ(vscroll(5).value(), vscroll(5).maximum());
}

TEST_F(PageDescriptionsTest, the_tab_order_goes_through_the_panels_to_the_parts_and_closes) {
    enterWith(3);
    const int first = order.tabIndex(u"txtMainElementNameDetail(0)"_s);
    EXPECT_EQ(order.tabIndex(u"txtMainElementVariations(0)"_s), first + 1);
    EXPECT_EQ(order.tabIndex(u"txtMainElementNameDetail(2)"_s), first + 4);
    EXPECT_EQ(order.tabIndex(u"txtDesConnections"_s), first + 6);
    EXPECT_EQ(order.tabIndex(u"txtDesAlterative"_s), first + 7);
    tabTo(u"txtDesAlterative"_s);
    EXPECT_LT(order.tabIndex(u"txtDesAlterative"_s), first);
    tabTo(u"txtMainElementNameDetail(0)"_s);
    EXPECT_EQ(order.tabIndex(u"txtDesAlterative"_s), first + 7);
}

TEST_F(PageDescriptionsTest, details_and_connections_are_required_and_the_rest_is_not) {
    enterWith(2);
    guidance->TextHighLight(DescriptionsTab);
    EXPECT_TRUE(control<TextField>(u"txtMainElementNameDetail(1)"_s).isTinted());
    EXPECT_TRUE(control<TextField>(u"txtDesConnections"_s).isTinted());
    EXPECT_FALSE(control<TextField>(u"txtMainElementVariations(1)"_s).isTinted());
    EXPECT_FALSE(control<TextField>(u"txtDesAlterative"_s).isTinted());
}

TEST_F(PageDescriptionsTest, the_way_to_the_connections_scrolls_to_the_top_and_focuses_them) {
    enterWith(2);
    fields.txtMainElementNameDetail(0).setText(u"x"_s);
    fields.txtMainElementNameDetail(1).setText(u"x"_s);
    vscroll(5).setValue(300);
    guidance->TextgotFocus(DescriptionsTab);
    EXPECT_EQ(vscroll(5).value(), 0);
    EXPECT_TRUE(control(u"txtDesConnections"_s).hasFocus());
}

TEST_F(PageDescriptionsTest, neither_panels_nor_parts_are_crowded_whatever_the_names) {
    for (const int count : {1, 2, 15}) {
        enterWith(count);
        go(MainElementsTab);
        for (int i = 0; i < count; ++i)
            fields.txtElementName(i).setText(i % 3 == 2 ? QString()
                                                        : QString(i % 3 ? 200 : 1, u'w'));
        go(DescriptionsTab);
        EXPECT_EQ(crowded(control(u"picMElements"_s)), QStringList());
        EXPECT_EQ(crowded(control(u"picDesMainAndSub"_s)), QStringList());
        EXPECT_EQ(crowded(control(u"picAlternativeFrm"_s)), QStringList());
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(crowded(descriptions->column().panel(i)), QStringList()) << i;
    }
}
