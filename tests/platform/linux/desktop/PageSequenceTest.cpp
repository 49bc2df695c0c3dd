#include "platform/linux/desktop/PageSequence.h"

#include <gtest/gtest.h>

using namespace quillford;

TEST(PageSequenceTest, all_pages_come_once_and_in_order) {
    PageSequence sequence;
    sequence.pageCount = 3;
    EXPECT_EQ(sequence.pages(), (QList<int>{1, 2, 3}));
}

TEST(PageSequenceTest, ranges_choose_among_the_pages_that_there_are) {
    PageSequence sequence;
    sequence.pageCount = 5;
    sequence.ranges = QPageRanges::fromString(QStringLiteral("2,4-9"));
    EXPECT_EQ(sequence.pages(), (QList<int>{2, 4, 5}));
    sequence.ranges = QPageRanges::fromString(QStringLiteral("7-9"));
    EXPECT_EQ(sequence.pages(), QList<int>());
}

TEST(PageSequenceTest, copies_follow_each_other_whole_or_page_by_page) {
    PageSequence sequence;
    sequence.pageCount = 2;
    sequence.copies = 2;
    EXPECT_EQ(sequence.pages(), (QList<int>{1, 2, 1, 2}));
    sequence.collated = false;
    EXPECT_EQ(sequence.pages(), (QList<int>{1, 1, 2, 2}));
}

TEST(PageSequenceTest, the_last_page_may_come_first) {
    PageSequence sequence;
    sequence.pageCount = 3;
    sequence.lastFirst = true;
    EXPECT_EQ(sequence.pages(), (QList<int>{3, 2, 1}));
}
