#include "persistence/compound/Chain.h"

#include <gtest/gtest.h>

using quillford::compound::Chain;

namespace {

Chain sample() {
    Chain chain;
    for (const quint32 sector : {10U, 11U, 12U, 5U, 20U, 21U})
        chain.append(sector);
    return chain;
}

} // namespace

TEST(Chain, keeps_consecutive_sectors_as_one_run) {
    EXPECT_EQ(sample().runs().size(), 3U);
    EXPECT_EQ(sample().length(), 6U);
}

TEST(Chain, finds_the_sector_at_each_position) {
    const Chain chain = sample();
    EXPECT_EQ(chain.at(0), 10U);
    EXPECT_EQ(chain.at(2), 12U);
    EXPECT_EQ(chain.at(3), 5U);
    EXPECT_EQ(chain.at(5), 21U);
    EXPECT_EQ(chain.first(), 10U);
    EXPECT_EQ(chain.last(), 21U);
}

TEST(Chain, is_cut_within_a_run) {
    Chain chain = sample();
    const Chain tail = chain.cutTo(2);
    EXPECT_EQ(chain.last(), 11U);
    EXPECT_EQ(tail.length(), 4U);
    EXPECT_EQ(tail.first(), 12U);
    EXPECT_EQ(tail.runs().front().position, 0U);
}

TEST(Chain, without_a_sector_begins_with_the_mark_of_the_end) {
    EXPECT_EQ(Chain().firstOrEnd(), 0xFFFFFFFEU);
    EXPECT_EQ(Chain().length(), 0U);
}
