#include "core/wizard/SectionMessages.h"

#include "core/wizard/WizardFixture.h"

using namespace quillford;

using SectionMessagesTest = WizardFixture;

TEST_F(SectionMessagesTest, the_warning_asks_until_it_is_switched_off) {
    prompts.msgWindows = {{false, {}}, {true, {}}};
    EXPECT_FALSE(messages.mayLeaveIncompleteSection());
    EXPECT_TRUE(messages.mayLeaveIncompleteSection());
    system.showmsgTab = true;
    EXPECT_TRUE(messages.mayLeaveIncompleteSection());
    EXPECT_EQ(boxes().size(), 2);
}

TEST_F(SectionMessagesTest, each_change_of_the_box_counts_at_once_and_the_last_one_stays) {
    prompts.msgWindows = {{true, {true, false}}, {true, {true, false, true}}};
    EXPECT_TRUE(messages.mayLeaveIncompleteSection());
    EXPECT_EQ(store.changes, 2);
    EXPECT_FALSE(system.showmsgTab);
    EXPECT_FALSE(settings.flag(settingsNames::ShowMsgTab));
    EXPECT_EQ(Settings(store).regRead(Hive::CurrentUser, settingsNames::SettingsKey,
                                      settingsNames::ShowMsgTab),
              QStringLiteral("False"));
    EXPECT_TRUE(messages.mayLeaveIncompleteSection());
    EXPECT_TRUE(system.showmsgTab);
    EXPECT_TRUE(settings.flag(settingsNames::ShowMsgTab));
}

TEST_F(SectionMessagesTest, a_window_that_is_left_unchanged_writes_nothing) {
    prompts.msgWindows = {{true, {}}};
    prompts.tab4MsgWindows = {{true, {}}};
    EXPECT_TRUE(messages.mayLeaveIncompleteSection());
    messages.adviseAboutDrawings();
    EXPECT_EQ(store.changes, 0);
}

TEST_F(SectionMessagesTest, settings_that_cannot_be_written_still_hold_for_this_run) {
    store.cannotWrite = true;
    prompts.tab4MsgWindows = {{true, {true}}};
    messages.adviseAboutDrawings();
    messages.adviseAboutDrawings();
    EXPECT_EQ(boxes().size(), 1);
}
