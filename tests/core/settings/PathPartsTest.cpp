#include "core/settings/PathParts.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(GetFolderOf, goes_up_to_and_includes_the_last_separator) {
    EXPECT_EQ(getFolderOf(u"/home/ann/My Projects/Jürgen.ivd"_s), u"/home/ann/My Projects/"_s);
    EXPECT_EQ(getFolderOf(u"/home/ann/"_s), u"/home/ann/"_s);
    EXPECT_EQ(getFolderOf(u"/easel.ivd"_s), u"/"_s);
}

TEST(GetFolderOf, a_path_stored_under_windows_has_its_folder_too) {
    EXPECT_EQ(getFolderOf(u"C:\\Users\\ann\\easel.ivd"_s), u"C:\\Users\\ann\\"_s);
    EXPECT_EQ(getFolderOf(u"C:\\Users/ann\\easel.ivd"_s), u"C:\\Users/ann\\"_s);
    EXPECT_EQ(getFolderOf(u"C:\\Users\\ann/easel.ivd"_s), u"C:\\Users\\ann/"_s);
}

TEST(GetFolderOf, a_name_of_this_system_may_hold_a_backslash) {
    EXPECT_EQ(getFolderOf(u"/home/ann/one\\two.ivd"_s), u"/home/ann/"_s);
}

TEST(GetFolderOf, a_path_without_a_separator_has_no_folder) {
    EXPECT_EQ(getFolderOf(u"easel.ivd"_s), QString());
    EXPECT_EQ(getFolderOf(QString()), QString());
}

TEST(PathParts, a_path_with_the_folder_for_drafts_anywhere_in_it_is_a_draft) {
    EXPECT_TRUE(isDraftPath(u"/home/ann/Documents/Quillford/Drafts/Draft -  1.ivd"_s));
    EXPECT_TRUE(isDraftPath(u"/home/ann/Drafts/2026/easel.ivd"_s));
    EXPECT_FALSE(isDraftPath(u"/home/ann/Drafts"_s));
    EXPECT_FALSE(isDraftPath(u"/home/ann/My Drafts/easel.ivd"_s));
    EXPECT_FALSE(isDraftPath({}));
}

TEST(PathParts, a_provisional_draft_is_known_by_its_name_in_that_folder) {
    EXPECT_TRUE(isProvisionalDraftPath(u"/q/Drafts/Provisional Project [1] (01-02-2026).ivd"_s));
    EXPECT_FALSE(isProvisionalDraftPath(u"/q/Projects/Provisional Project [1].ivd"_s));
    EXPECT_FALSE(isProvisionalDraftPath(u"/q/Drafts/Draft -  1.ivd"_s));
}
