#include "verification/dialogs/ReportLines.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LineHeight = 13;
/// Where the words of an entry begin, and how many characters of the fake font a line then takes.
constexpr int WordsLeft = 50;
constexpr int Width = WordsLeft + 200;
constexpr int Characters = 20;

class ReportLinesTest : public testing::Test {
protected:
    [[nodiscard]] Report report() const { return layOutReport(lists, Width, measure); }

    [[nodiscard]] static QStringList texts(const Report& report, TextWeight weight) {
        QStringList texts;
        for (const ReportLine& line : report.lines)
            if (line.weight == weight && line.text != u"-"_s)
                texts.append(line.text);
        return texts;
    }

    [[nodiscard]] QStringList heads() const { return texts(report(), TextWeight::Bold); }

    [[nodiscard]] QStringList entries() const { return texts(report(), TextWeight::Regular); }

    MissingLists lists;
    FakeTextMeasure measure;
};

} // namespace

TEST_F(ReportLinesTest, each_head_has_three_blanks_behind_its_number) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    lists.missingNumerals.add(u"10"_s, {0, 0});
    EXPECT_EQ(heads(), (QStringList{u"1.   Main Elements (Possible Errors)"_s,
                                    u"2.   Sub-Elements (Possible Errors)"_s,
                                    u"3.   Reference Numerals (Possible Errors)"_s}));
}

TEST_F(ReportLinesTest, with_only_numerals_missing_the_first_two_heads_read_verified) {
    lists.missingNumerals.add(u"10"_s, {0, 0});
    lists.missingNumerals.add(u"12"_s, {0, 2});
    EXPECT_EQ(heads(),
              (QStringList{u"1.   Main Elements (Verified)"_s, u"2.   Sub-Elements (Verified)"_s,
                           u"3.   Reference Numerals (Possible Errors)"_s}));
    EXPECT_EQ(entries().join(u' '), u"Reference Numerals 10, 12 appear to be missing."_s);
}

TEST_F(ReportLinesTest, the_entries_stand_under_their_heads_in_the_order_of_the_lists) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    lists.missingMainElements.add(u"leg"_s, {1, 0});
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    const Report drawn = report();
    QStringList read;
    int y = 0;
    for (const ReportLine& line : drawn.lines) {
        EXPECT_GE(line.y, y);
        y = line.y;
        if (line.text != u"-"_s)
            read.append(line.text);
    }
    EXPECT_EQ(read, (QStringList{u"1.   Main Elements (Possible Errors)"_s, u"hinge"_s, u"leg"_s,
                                 u"2.   Sub-Elements (Possible Errors)"_s, u"pin"_s,
                                 u"3.   Reference Numerals (Verified)"_s}));
    EXPECT_EQ(drawn.height, 6 * LineHeight);
}

TEST_F(ReportLinesTest, an_entry_stands_behind_a_hyphen_at_the_indent_of_forty) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    const Report drawn = report();
    ASSERT_EQ(drawn.lines.size(), 5);
    EXPECT_EQ(drawn.lines[1].text, u"-"_s);
    EXPECT_EQ(drawn.lines[1].x, 40);
    EXPECT_EQ(drawn.lines[1].y, LineHeight);
    EXPECT_EQ(drawn.lines[2].text, u"hinge"_s);
    EXPECT_EQ(drawn.lines[2].x, WordsLeft);
    EXPECT_EQ(drawn.lines[2].y, drawn.lines[1].y);
}

TEST_F(ReportLinesTest, a_long_entry_is_set_line_by_line_and_keeps_its_indent) {
    lists.missingMainElements.add(u"a leg of wood with no foot"_s, {0, 0});
    EXPECT_EQ(entries(), (QStringList{u"a leg of wood with"_s, u"no foot"_s}));
    const Report drawn = report();
    EXPECT_EQ(drawn.lines[2].x, drawn.lines[3].x);
    EXPECT_EQ(drawn.lines[3].y, drawn.lines[2].y + LineHeight);
    EXPECT_EQ(drawn.lines[1].text, u"-"_s);
    EXPECT_NE(drawn.lines[3].text, u"-"_s) << "one hyphen an entry";
}

TEST_F(ReportLinesTest, a_line_that_is_filled_exactly_leaves_no_blank_before_the_next) {
    lists.missingMainElements.add(u"a leg of wood with a foot"_s, {0, 0});
    EXPECT_EQ(entries(), (QStringList{u"a leg of wood with a"_s, u"foot"_s}));
}

TEST_F(ReportLinesTest, a_name_longer_than_the_width_breaks_inside_the_word) {
    lists.missingMainElements.add(u"x"_s.repeated(50), {0, 0});
    const QStringList lines = entries();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines.join(QString()), u"x"_s.repeated(50));
    for (const QString& line : lines)
        EXPECT_LE(line.size(), Characters);
}

TEST_F(ReportLinesTest, a_long_word_behind_short_ones_loses_no_character) {
    const QString word = u"y"_s.repeated(45);
    lists.missingSubElements.add(u"the "_s + word, {0, 1});
    QString joined = entries().join(QString());
    EXPECT_EQ(joined.remove(u' '), u"the"_s + word);
}

TEST_F(ReportLinesTest, a_blank_entry_draws_nothing) {
    lists.missingMainElements.add(u"   "_s, {0, 0});
    lists.missingMainElements.add(u"leg"_s, {1, 0});
    EXPECT_EQ(entries(), QStringList{u"leg"_s});
    const Report drawn = report();
    EXPECT_EQ(drawn.height, 4 * LineHeight);
    EXPECT_EQ(drawn.cells, (QList<ElementCell>{{1, 0}})) << "nor can it be activated";
}

TEST_F(ReportLinesTest, a_name_with_a_line_end_is_two_entries_of_one_cell) {
    lists.missingMainElements.add(u"leg\r\nfoot"_s, {2, 0});
    EXPECT_EQ(entries(), (QStringList{u"leg"_s, u"foot"_s}));
    const Report drawn = report();
    EXPECT_EQ(drawn.height, 5 * LineHeight);
    EXPECT_EQ(drawn.cells, (QList<ElementCell>{{2, 0}, {2, 0}}));
}

TEST_F(ReportLinesTest, each_line_knows_its_entry_and_each_entry_its_cell) {
    lists.missingMainElements.add(u"a leg of wood with a foot"_s, {2, 0});
    lists.missingSubElements.add(u"pin"_s, {1, 3});
    lists.missingNumerals.add(u"24"_s, {1, 4});
    lists.missingNumerals.add(u"30"_s, {2, 0});
    const Report drawn = report();
    EXPECT_EQ(drawn.cells, (QList<ElementCell>{{2, 0}, {1, 3}, {1, 4}}))
        << "the numerals are one entry, which leads to the first";
    for (const ReportLine& line : drawn.lines)
        EXPECT_EQ(line.entry.has_value(), line.weight == TextWeight::Regular)
            << qPrintable(line.text);
    EXPECT_EQ(drawn.lines[2].entry, 0);
    EXPECT_EQ(drawn.lines[3].entry, 0) << "the second line of the first entry";
}

TEST_F(ReportLinesTest, all_lists_empty_are_three_verified_heads) {
    EXPECT_EQ(report().height, 3 * LineHeight);
    EXPECT_TRUE(report().cells.isEmpty());
}
