#include "verification/engine/MissingList.h"

#include "support/PrintQt.h"
#include "verification/engine/VerificationState.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(MissingList, a_separator_stands_between_entries_only) {
    MissingList list(u", "_s);
    EXPECT_EQ(list.text(), u""_s);
    list.add(u"11"_s, {0, 1});
    EXPECT_EQ(list.text(), u"11"_s);
    list.add(u"12"_s, {0, 2});
    list.add(u"23"_s, {1, 3});
    EXPECT_EQ(list.text(), u"11, 12, 23"_s);
}

TEST(MissingList, every_entry_keeps_its_cell) {
    MissingList list(u"\r\n"_s);
    list.add(u"pin"_s, {0, 4});
    list.add(u"leaf"_s, {2, 9});
    ASSERT_EQ(list.entries().size(), 2U);
    EXPECT_EQ(list.entries().at(0).cell, (ElementCell{0, 4}));
    EXPECT_EQ(list.entries().at(1).cell, (ElementCell{2, 9}));
    EXPECT_EQ(list.entries().at(1).text, u"leaf"_s);
}

TEST(MissingList, texts_and_cells_are_cleared_together) {
    MissingList list(u"\r\n"_s);
    list.add(u"pin"_s, {0, 4});
    list.clear();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.entries().empty());
    EXPECT_EQ(list.text(), u""_s);
}

TEST(VerificationState, is_new_until_the_first_run) {
    const VerificationState state;
    EXPECT_EQ(state.verifyErrorCount, -1);
    EXPECT_EQ(state.verifyState, StopRequest::None);
    EXPECT_EQ(state.exportFormat, ExportFormat::None);
    EXPECT_FALSE(state.verifyStopped);
    EXPECT_TRUE(state.lists.missingMainElements.isEmpty());
}

TEST(VerificationState, a_copy_of_the_lists_outlives_their_clearing) {
    VerificationState state;
    state.lists.missingMainElements.add(u"hinge"_s, {0, 0});
    state.lists.missingMainElements.add(u"leaf"_s, {1, 0});
    state.lists.missingSubElements.add(u"pin"_s, {0, 1});
    state.lists.missingNumerals.add(u"11"_s, {0, 1});
    state.lists.missingNumerals.add(u"12"_s, {0, 2});
    const MissingLists own = state.lists;
    state.lists.clear();
    EXPECT_TRUE(state.lists.missingMainElements.isEmpty());
    EXPECT_TRUE(state.lists.missingSubElements.isEmpty());
    EXPECT_TRUE(state.lists.missingNumerals.isEmpty());
    EXPECT_EQ(own.missingMainElements.text(), u"hinge\r\nleaf"_s);
    EXPECT_EQ(own.missingSubElements.text(), u"pin"_s);
    EXPECT_EQ(own.missingNumerals.text(), u"11, 12"_s);
}
