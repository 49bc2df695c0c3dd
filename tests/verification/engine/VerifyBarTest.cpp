#include "verification/engine/VerifyBar.h"

#include "support/PrintQt.h"
#include "verification/engine/RecordingScreen.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What the bar shows at step `counter` when `cells` cells are filled.
QString percentAt(int counter, int cells) {
    RecordingScreen screen;
    VerifyBar(screen, cells).step(counter);
    return screen.percentText;
}

} // namespace

TEST(VerifyBar, ends_at_one_less_than_the_filled_cells) {
    RecordingScreen screen;
    EXPECT_EQ(VerifyBar(screen, 150).maximum(), 149);
    EXPECT_EQ(VerifyBar(screen, 3).maximum(), 2);
    EXPECT_EQ(VerifyBar(screen, 2).maximum(), 1);
}

TEST(VerifyBar, ends_at_1_for_one_cell_and_for_none) {
    RecordingScreen screen;
    EXPECT_EQ(VerifyBar(screen, 1).maximum(), 1);
    EXPECT_EQ(VerifyBar(screen, 0).maximum(), 1);
}

TEST(VerifyBar, starts_empty_with_a_blank_before_the_zero) {
    RecordingScreen screen;
    VerifyBar(screen, 11).start();
    EXPECT_EQ(screen.calls, QStringList({u"maximum 10"_s, u" 0%"_s, u"value 0"_s}));
}

TEST(VerifyBar, one_filled_cell_jumps_to_the_end) {
    RecordingScreen screen;
    int counter = 0;
    VerifyBar(screen, 1).step(counter);
    EXPECT_EQ(screen.calls, QStringList({u"value 1"_s, u"100%"_s}));
    EXPECT_EQ(counter, 0);
}

TEST(VerifyBar, two_filled_cells_jump_to_the_end_as_well) {
    EXPECT_EQ(percentAt(0, 2), u"100%"_s);
}

TEST(VerifyBar, no_filled_cell_shows_a_full_bar_and_nothing_below_zero) {
    RecordingScreen screen;
    int counter = 0;
    VerifyBar(screen, 0).step(counter);
    EXPECT_EQ(screen.value, 1);
    EXPECT_EQ(screen.percentText, u"100%"_s);
}

TEST(VerifyBar, a_counter_beyond_the_end_is_held_there) {
    RecordingScreen screen;
    VerifyBar bar(screen, 4);
    QList<int> values;
    int counter = 0;
    for (int step = 0; step < 10; ++step) {
        bar.step(counter);
        values << screen.value;
        ++counter;
    }
    EXPECT_EQ(values, QList<int>({0, 1, 2, 3, 3, 3, 3, 3, 3, 3}));
    EXPECT_EQ(counter, 4);
}

TEST(VerifyBar, percentages_are_rounded_to_whole_ones) {
    EXPECT_EQ(percentAt(0, 4), u"0%"_s);
    EXPECT_EQ(percentAt(1, 4), u"33%"_s);
    EXPECT_EQ(percentAt(2, 4), u"67%"_s);
    EXPECT_EQ(percentAt(3, 4), u"100%"_s);
    EXPECT_EQ(percentAt(148, 150), u"99%"_s);
}

TEST(VerifyBar, half_a_percent_is_rounded_up) {
    EXPECT_EQ(percentAt(1, 9), u"13%"_s) << "0.125";
    EXPECT_EQ(percentAt(3, 9), u"38%"_s) << "0.375";
    EXPECT_EQ(percentAt(1, 41), u"3%"_s) << "0.025";
    EXPECT_EQ(percentAt(3, 41), u"8%"_s) << "0.075, which no binary fraction holds exactly";
}

TEST(VerifyBar, nearly_all_can_read_as_100_percent) {
    EXPECT_EQ(percentAt(139, 141), u"99%"_s);
    RecordingScreen screen;
    int counter = 199;
    VerifyBar(screen, 201).step(counter);
    EXPECT_EQ(screen.percentText, u"100%"_s) << "0.995";
}
