#include "core/commands/FileMenu.h"

#include <gtest/gtest.h>

using namespace quillford;

TEST(FileMenu, a_menu_that_was_never_opened_lets_the_key_save) {
    const FileMenu menu;
    EXPECT_TRUE(menu.isProjectEnabled());
    EXPECT_FALSE(menu.isDraftEnabled());
}

TEST(FileMenu, under_the_welcome_page_nothing_can_be_saved_or_closed) {
    FileMenu menu;
    menu.open(true, true);
    EXPECT_FALSE(menu.isProjectEnabled());
    EXPECT_TRUE(menu.isDraftEnabled());
}

TEST(FileMenu, a_complete_application_can_be_exported_and_printed) {
    FileMenu menu;
    menu.open(true, false);
    menu.open(false, true);
    EXPECT_TRUE(menu.isProjectEnabled());
    EXPECT_TRUE(menu.isDraftEnabled());
    menu.open(false, false);
    EXPECT_FALSE(menu.isDraftEnabled());
}
