#include "draft/pages/PageCuts.h"

#include <gtest/gtest.h>
#include <ostream>

namespace quillford {

static void PrintTo(const PageCut& cut, std::ostream* out) {
    *out << cut.top << " to " << cut.bottom;
}

} // namespace quillford

using namespace quillford;

namespace {

constexpr double Line = 10;

/// Lines one below the other; the number of a line's paragraph stands in `paragraphs`.
QList<Band> lines(const QList<int>& paragraphs) {
    QList<Band> bands;
    for (const int paragraph : paragraphs) {
        const double top = static_cast<double>(bands.size()) * Line;
        bands.append({top, top + Line, paragraph});
    }
    return bands;
}

} // namespace

TEST(PageCutsTest, an_empty_document_has_one_page) {
    EXPECT_EQ(cutPages({}, 100), QList<PageCut>{PageCut{}});
}

TEST(PageCutsTest, what_fits_exactly_stands_on_one_page) {
    EXPECT_EQ(cutPages(lines({1, 2, 3}), 30), (QList<PageCut>{{0, 30}}));
}

TEST(PageCutsTest, a_page_takes_what_fits_and_the_next_begins_with_the_line_after_it) {
    EXPECT_EQ(cutPages(lines({1, 2, 3, 4, 5}), 25), (QList<PageCut>{{0, 20}, {20, 40}, {40, 50}}));
}

TEST(PageCutsTest, space_between_two_pages_is_dropped) {
    const QList<Band> bands{{0, 10, 1}, {30, 40, 2}, {60, 70, 3}};
    EXPECT_EQ(cutPages(bands, 40), (QList<PageCut>{{0, 40}, {60, 70}}));
}

TEST(PageCutsTest, a_band_that_begins_a_page_does_so_though_there_is_room) {
    QList<Band> bands = lines({1, 2, 3});
    bands[1].beginsPage = true;
    EXPECT_EQ(cutPages(bands, 100), (QList<PageCut>{{0, 10}, {10, 30}}));
}

TEST(PageCutsTest, a_first_band_that_begins_a_page_makes_no_empty_one) {
    QList<Band> bands = lines({1});
    bands[0].beginsPage = true;
    EXPECT_EQ(cutPages(bands, 100), (QList<PageCut>{{0, 10}}));
}

TEST(PageCutsTest, a_heading_goes_along_with_what_it_heads) {
    QList<Band> bands = lines({1, 2, 3, 4});
    bands[1].keepsWithNext = true;
    bands[2].keepsWithNext = true;
    EXPECT_EQ(cutPages(bands, 30), (QList<PageCut>{{0, 10}, {10, 40}}));
}

TEST(PageCutsTest, no_page_ends_with_the_first_line_of_a_paragraph) {
    EXPECT_EQ(cutPages(lines({1, 1, 2, 2, 2, 2}), 30),
              (QList<PageCut>{{0, 20}, {20, 40}, {40, 60}}));
    EXPECT_EQ(cutPages(lines({1, 1, 2, 2, 2, 2}), 40), (QList<PageCut>{{0, 40}, {40, 60}}));
}

TEST(PageCutsTest, no_page_begins_with_the_last_line_of_a_paragraph) {
    EXPECT_EQ(cutPages(lines({1, 2, 2, 2, 2}), 40), (QList<PageCut>{{0, 30}, {30, 50}}));
}

TEST(PageCutsTest, a_paragraph_of_three_lines_is_never_cut) {
    EXPECT_EQ(cutPages(lines({1, 2, 2, 2}), 30), (QList<PageCut>{{0, 10}, {10, 40}}));
}

TEST(PageCutsTest, headings_without_end_are_cut_where_the_page_ends) {
    QList<Band> bands = lines({1, 2, 3});
    for (Band& band : bands)
        band.keepsWithNext = true;
    EXPECT_EQ(cutPages(bands, 20), (QList<PageCut>{{0, 20}, {20, 30}}));
}

TEST(PageCutsTest, bands_beside_each_other_stay_together) {
    const QList<Band> bands{{0, 10, 1}, {10, 20, 2}, {20, 30, 3}, {10, 20, 4}, {30, 40, 5}};
    EXPECT_EQ(cutPages(bands, 20), (QList<PageCut>{{0, 10}, {10, 30}, {30, 40}}));
}

TEST(PageCutsTest, a_band_that_begins_a_page_is_joined_to_none) {
    const QList<Band> bands{{0, 20, 1}, {15, 25, 2, true}};
    EXPECT_EQ(cutPages(bands, 100), (QList<PageCut>{{0, 20}, {15, 25}}));
}

TEST(PageCutsTest, lines_that_touch_by_rounding_are_cut_apart) {
    const QList<Band> bands{{0, 10.4, 1}, {10, 20.4, 2}, {20, 30, 3}};
    EXPECT_EQ(cutPages(bands, 20.5), (QList<PageCut>{{0, 20.4}, {20, 30}}));
}

TEST(PageCutsTest, a_band_higher_than_a_page_goes_on_over_several) {
    const QList<Band> bands{{0, 10, 1}, {10, 60, 2}, {60, 70, 3}};
    EXPECT_EQ(cutPages(bands, 20),
              (QList<PageCut>{{0, 10}, {10, 30}, {30, 50}, {50, 60}, {60, 70}}));
}
