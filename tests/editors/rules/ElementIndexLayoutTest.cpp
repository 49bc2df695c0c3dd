#include "editors/rules/ElementIndexLayout.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace quillford {

static void PrintTo(const IndexLine& line, std::ostream* out) {
    *out << line.x << ", " << line.y << ' ';
    PrintTo(line.text, out);
    *out << (line.weight == TextWeight::Bold ? " bold" : " regular");
}

} // namespace quillford

namespace {

constexpr auto Bold = TextWeight::Bold;
constexpr auto Regular = TextWeight::Regular;

/// A line of the index holds 14 characters, 12 in bold.
class ElementIndexLayout : public testing::Test {
protected:
    [[nodiscard]] ElementIndex index() const { return layOutElementIndex(fields, measure); }

    /// What is printed, numbers and texts.
    [[nodiscard]] QStringList texts() const {
        QStringList texts;
        for (const IndexLine& line : index().lines)
            texts.append(line.text);
        return texts;
    }

    ProjectFields fields; // three Main Elements
    FakeTextMeasure measure;
};

} // namespace

TEST_F(ElementIndexLayout, without_any_text_the_surface_has_height_1_and_no_scroll_bar) {
    EXPECT_EQ(index().lines, QList<IndexLine>());
    EXPECT_EQ(index().height, 1);
    EXPECT_FALSE(elementIndexBar(1, 182).enabled);
}

TEST_F(ElementIndexLayout, blanks_are_no_text) {
    fields.txtElementName(0).setText(u"   "_s);
    fields.txtElementSub1(2).setText(u" "_s);
    EXPECT_EQ(index().lines, QList<IndexLine>());
    EXPECT_EQ(index().height, 1);
}

TEST_F(ElementIndexLayout, numbers_and_texts_stand_in_two_columns) {
    fields.txtElementName(0).setText(u"hinge"_s);
    fields.txtElementSub1(0).setText(u"pin"_s);
    EXPECT_EQ(index().lines, QList<IndexLine>({{6, 0, u"10:"_s, Bold},
                                               {30, 0, u"Hinge"_s, Bold},
                                               {6, 13, u"11:"_s, Regular},
                                               {30, 13, u"Pin"_s, Regular}}));
}

TEST_F(ElementIndexLayout, a_gap_stands_before_every_main_element_but_the_first) {
    for (int i = 0; i < 3; ++i)
        fields.txtElementName(i).setText(u"leg"_s);
    const auto lines = index().lines;
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[2], IndexLine(6, 18, u"20:"_s, Bold));
    EXPECT_EQ(lines[4], IndexLine(6, 36, u"30:"_s, Bold));
    EXPECT_EQ(index().height, 1 + 3 * 13 + 2 * 5);
}

TEST_F(ElementIndexLayout, an_element_without_a_name_leaves_its_gap_and_its_sub_elements) {
    fields.txtElementSub1(1).setText(u"pin"_s);
    EXPECT_EQ(index().lines,
              QList<IndexLine>({{6, 5, u"21:"_s, Regular}, {30, 5, u"Pin"_s, Regular}}));
    EXPECT_EQ(index().height, 1 + 13 + 2 * 5);
}

TEST_F(ElementIndexLayout, an_empty_slot_leaves_no_line_and_no_number) {
    fields.txtElementSub4(0).setText(u"pin"_s);
    EXPECT_EQ(texts(), QStringList({u"14:"_s, u"Pin"_s}));
}

TEST_F(ElementIndexLayout, a_sub_element_alone_keeps_the_numeral_of_its_slot) {
    fields.txtElementName(2).setText(u"strut"_s);
    fields.txtElementSub9(2).setText(u"pin"_s);
    EXPECT_EQ(texts(), QStringList({u"30:"_s, u"Strut"_s, u"39:"_s, u"Pin"_s}));
}

TEST_F(ElementIndexLayout, a_name_in_capitals_shows_in_proper_case_but_for_small_words) {
    fields.txtElementSub1(0).setText(u"PIN of LEG"_s);
    EXPECT_EQ(texts().last(), u"Pin of Leg"_s);
    EXPECT_EQ(fields.txtElementSub1(0).text(), u"PIN of LEG"_s);
}

TEST_F(ElementIndexLayout, a_long_text_goes_on_below_without_a_number) {
    fields.txtElementSub1(0).setText(u"adjustable leg of easel"_s);
    EXPECT_EQ(index().lines, QList<IndexLine>({{6, 0, u"11:"_s, Regular},
                                               {30, 0, u"Adjustable Leg"_s, Regular},
                                               {30, 13, u"of Easel"_s, Regular}}));
    EXPECT_EQ(index().height, 1 + 2 * 13 + 2 * 5);
}

TEST_F(ElementIndexLayout, a_word_longer_than_the_line_is_cut_between_characters) {
    fields.txtElementSub1(0).setText(u"counterbalancing"_s);
    EXPECT_EQ(texts(), QStringList({u"11:"_s, u"Counterbalanci"_s, u"ng"_s}));
}

TEST_F(ElementIndexLayout, a_line_as_wide_as_the_surface_leaves_stays_whole) {
    class NarrowMeasure final : public TextMeasure {
    public:
        [[nodiscard]] double width(QStringView text, TextWeight) const override {
            return static_cast<double>(text.size());
        }

        [[nodiscard]] int lineHeight() const override { return 13; }
    };

    const auto lines = [this](const QString& text) {
        fields.txtElementSub1(0).setText(text);
        return layOutElementIndex(fields, NarrowMeasure()).lines.size() - 1;
    };
    const QString word(100, u'x'); // 179 less 30 before and 3 behind the text are 146
    EXPECT_EQ(lines(word + u' ' + QString(45, u'y')), 1);
    EXPECT_EQ(lines(word + u' ' + QString(46, u'y')), 2);
}

TEST_F(ElementIndexLayout, bold_text_is_measured_bold) {
    fields.txtElementName(0).setText(u"counterbalancing"_s);
    EXPECT_EQ(texts(), QStringList({u"10:"_s, u"Counterbalan"_s, u"cing"_s}));
}

TEST_F(ElementIndexLayout, the_name_is_that_of_section_5) {
    fields.txtElementMain(0).setText(u"hinge"_s);
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(ElementIndexLayout, sub_elements_show_as_far_as_section_6_has_panels) {
    fields.setPanelCount(FieldGroup::MainElements, 4);
    fields.cboMainElementNum.setText(u"4"_s);
    fields.txtElementName(3).setText(u"foot"_s);
    EXPECT_EQ(texts(), QStringList({u"40:"_s, u"Foot"_s}));
    fields.setPanelCount(FieldGroup::SubElements, 4);
    fields.txtElementSub1(3).setText(u"pad"_s);
    EXPECT_EQ(texts(), QStringList({u"40:"_s, u"Foot"_s, u"41:"_s, u"Pad"_s}));
}

TEST_F(ElementIndexLayout, elements_above_the_count_are_left_out_before_and_after_their_panels_go) {
    fields.txtElementName(2).setText(u"strut"_s);
    fields.cboMainElementNum.setText(u"2"_s);
    EXPECT_EQ(texts(), QStringList());
    fields.cboMainElementNum.setText(u"5"_s); // ahead of its panels
    EXPECT_EQ(texts(), QStringList({u"30:"_s, u"Strut"_s}));
}

TEST_F(ElementIndexLayout, the_scroll_bar_goes_10_beyond_the_end_of_the_surface) {
    EXPECT_EQ(elementIndexBar(172, 182), ScrollBarState(false, 0, 0, 182));
    EXPECT_EQ(elementIndexBar(173, 182), ScrollBarState(true, 0, 1, 182));
    EXPECT_EQ(elementIndexBar(500, 182).maximum, 328);
}
