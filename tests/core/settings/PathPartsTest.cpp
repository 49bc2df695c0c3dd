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
