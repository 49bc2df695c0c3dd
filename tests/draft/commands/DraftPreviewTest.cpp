#include "draft/commands/DraftPreview.h"

#include "core/fields/SaveFlag.h"
#include "core/wizard/FinalDraftEntry.h"
#include "draft/commands/DraftFixture.h"

using namespace quillford;

using DraftPreviewTest = DraftFixture;

TEST_F(DraftPreviewTest, shows_the_composed_page_under_the_hourglass) {
    EXPECT_TRUE(preview.buildFinalDraft());
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].contains(u"widget holder"));
    EXPECT_TRUE(shown[0].contains(u"onselectstart"));
    EXPECT_EQ(preview.previewHtml(), shown[0]);
    EXPECT_EQ(calls(), (Calls{"hourglass", "show preview", "default pointer"}));
    EXPECT_EQ(clock.waits, std::vector<qint64>{0}) << "window events run once";
    EXPECT_TRUE(state.draftCurrent);
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_FALSE(QFile::exists(u"temp.html"_s));
}

TEST_F(DraftPreviewTest, builds_nothing_while_sections_are_missing) {
    ASSERT_TRUE(preview.buildFinalDraft());
    rules.setSectionStatus(SectionRules::FinalDraftTab, u"WARNING"_s);
    change();
    EXPECT_FALSE(preview.buildFinalDraft());
    EXPECT_EQ(shown.size(), 1) << "the previous draft stays on screen";
    EXPECT_FALSE(state.draftCurrent);
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(DraftPreviewTest, offers_to_save_a_changed_project) {
    change();
    prompts.yesNoAnswers = {true};
    EXPECT_TRUE(preview.buildFinalDraft());
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, u"Save Project?"_s);
    EXPECT_EQ(prompts.boxes[0].text,
              u"It is recommended you save your project before creating a final draft. Do you wish "
              "to save your project now?"_s);
    EXPECT_EQ(calls(), (Calls{"File Save", "hourglass", "show preview", "default pointer"}));
}

TEST_F(DraftPreviewTest, the_project_counts_as_unchanged_though_it_was_not_saved) {
    change();
    prompts.yesNoAnswers = {false, false};
    EXPECT_TRUE(preview.buildFinalDraft());
    EXPECT_FALSE(log.has("File Save"));
    EXPECT_FALSE(state.saveFlag);
    EXPECT_TRUE(GetSaveFlag(project.fields, state)) << "the changed marks are not taken away";
    EXPECT_TRUE(preview.buildFinalDraft());
    EXPECT_EQ(prompts.boxes.size(), 2U);
}

TEST_F(DraftPreviewTest, the_tab_builds_it_again_only_after_a_change) {
    FinalDraftEntry tab(project.fields, state, rules, screen.looks);
    const auto build = [this] { return preview.buildFinalDraft(); };
    (void)tab.switched(build);
    (void)tab.switched(build);
    EXPECT_EQ(shown.size(), 1);
    change();
    prompts.yesNoAnswers = {false};
    (void)tab.switched(build);
    EXPECT_EQ(shown.size(), 2);
}

TEST_F(DraftPreviewTest, a_composition_that_fails_leaves_a_blank_preview) {
    folders.temporary = place(u"gone"_s);
    EXPECT_FALSE(preview.buildFinalDraft());
    EXPECT_EQ(shown, QStringList{u" "_s});
    EXPECT_FALSE(state.draftCurrent);
    EXPECT_EQ(calls().back(), "default pointer");
}

TEST_F(DraftPreviewTest, the_timer_saves_nothing_while_it_asks_or_composes) {
    int during = 0;
    log.during = [&](const std::string&) { during = state.commandsRunning; };
    preview.buildFinalDraft();
    EXPECT_EQ(during, 1);
    EXPECT_EQ(state.commandsRunning, 0);
}
