#include "persistence/session/SessionFixture.h"
#include "support/ErrorOf.h"

#include <QRegularExpression>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectSaverTest : public SessionFixture {
protected:
    ProjectState& state = project.state;
};

} // namespace

TEST_F(ProjectSaverTest, a_project_without_a_name_asks_for_one) {
    type(u"It turns."_s);
    prompts.filesToSave = {inProjects(u"easel"_s)};
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(state.projectFileName, inProjects(u"easel.ivd"_s));
    EXPECT_EQ(operationIn(state.projectFileName), u"It turns.");
}

TEST_F(ProjectSaverTest, cancelling_gives_false_and_leaves_the_name_empty) {
    type(u"It turns."_s);
    prompts.filesToSave = {QString()};
    EXPECT_FALSE(saver.SaveFile());
    EXPECT_EQ(names3(), std::tuple(u""_s, u""_s, u""_s));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(saveState.text, u"");
}

TEST_F(ProjectSaverTest, the_folder_for_drafts_is_refused_for_a_first_name) {
    prompts.filesToSave = {inDrafts(u"a.ivd"_s), inProjects(u"a.ivd"_s)};
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(boxes(), QStringList({u"Potential Data Loss Detected!"_s}));
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(ProjectSaverTest, a_draft_that_was_opened_asks_once_and_takes_any_answer) {
    state.projectFileName = inDrafts(u"Draft -  1.ivd"_s);
    prompts.filesToSave = {inDrafts(u"b.ivd"_s)};
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(names3(), std::tuple(inDrafts(u"b.ivd"_s), inDrafts(u"b.ivd"_s), u""_s));
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(ProjectSaverTest, a_draft_that_was_opened_and_named_has_no_draft_any_more) {
    state.projectFileName = inDrafts(u"Draft -  1.ivd"_s);
    prompts.filesToSave = {inProjects(u"b.ivd"_s)};
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(names3(), std::tuple(inProjects(u"b.ivd"_s), u""_s, u""_s));
}

TEST_F(ProjectSaverTest, cancelling_for_an_opened_draft_empties_both_names) {
    state.projectFileName = inDrafts(u"Draft -  1.ivd"_s);
    prompts.filesToSave = {QString()};
    EXPECT_FALSE(saver.SaveFile());
    EXPECT_EQ(names3(), std::tuple(u""_s, u""_s, u""_s));
}

TEST_F(ProjectSaverTest, the_timer_never_asks) {
    state.projectFileName = inDrafts(u"Draft -  1.ivd"_s);
    state.isAutoSaving = true;
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(drafts(), QStringList({u"Draft -  1.ivd"_s}));
}

TEST_F(ProjectSaverTest, a_missing_folder_is_made_but_no_tree) {
    state.projectFileName = home.filePath(u"new/a.ivd"_s);
    EXPECT_TRUE(saver.SaveFile());
    state.projectFileName = home.filePath(u"newer/deep/a.ivd"_s);
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    EXPECT_FALSE(QFileInfo::exists(home.filePath(u"newer"_s)));
}

TEST_F(ProjectSaverTest, the_title_the_folder_and_the_list_follow_a_save) {
    type(project.fields.txtFileNo, u" A-1 "_s);
    type(project.fields.txtInventionTitle, u"Widget"_s);
    state.projectFileName = home.filePath(u"a.ivd"_s);
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_TRUE(log.has("caption: Quillford 3.1 - a.ivd"));
    EXPECT_EQ(setting(u"LastDir"_s), home.path());
    EXPECT_EQ(listed(), QStringList({home.filePath(u"a.ivd"_s) + u"|A-1|Widget|FILEOPEN"_s}));
    EXPECT_TRUE(QRegularExpression(u"^saved \\d\\d:\\d\\d$"_s).match(saveState.text).hasMatch());
}

TEST_F(ProjectSaverTest, a_working_copy_is_listed_and_its_folder_is_not_the_last_one) {
    state.projectFileName = state.draftFileName = inDrafts(u"Draft -  1.ivd"_s);
    state.isAutoSaving = true;
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(listed(), QStringList({state.draftFileName + u"|||FILEOPEN"_s}));
    EXPECT_EQ(setting(u"LastDir"_s), u"");
}

TEST_F(ProjectSaverTest, the_rows_follow_a_first_name_and_a_save_as_new_alone) {
    int changes = 0;
    QObject::connect(&recent, &RecentProjects::rowsChanged, [&] { ++changes; });
    prompts.filesToSave = {inProjects(u"a.ivd"_s)};
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(changes, 1);
    saver.saveAsNew();
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(changes, 2);
}

TEST_F(ProjectSaverTest, a_save_by_the_user_leaves_the_project_clean) {
    type(u"It turns."_s);
    state.projectFileName = inProjects(u"a.ivd"_s);
    state.isDraftProject = state.isRecovered = true;
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(state.isDraftProject || state.isRecovered);
}

TEST_F(ProjectSaverTest, a_save_by_the_timer_leaves_everything_to_be_saved) {
    type(u"It turns."_s);
    state.projectFileName = inProjects(u"a.ivd"_s);
    state.isDraftProject = state.isRecovered = state.isAutoSaving = true;
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(state.isDraftProject && state.isRecovered);
}

TEST_F(ProjectSaverTest, a_save_as_new_takes_nothing_over_from_a_file_that_is_no_project) {
    state.projectFileName = inProjects(u"a.ivd"_s);
    writeFile(state.projectFileName, "letters");
    type(u"It turns."_s);
    saver.saveAsNew();
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_EQ(operationIn(state.projectFileName), u"It turns.");
}

TEST_F(ProjectSaverTest, a_save_as_new_that_fails_does_not_spill_into_the_next_save) {
    state.projectFileName = home.filePath(u"no/such/folder/a.ivd"_s);
    saver.saveAsNew();
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    state.projectFileName = inProjects(u"a.ivd"_s);
    writeFile(state.projectFileName, "letters");
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    EXPECT_EQ(contentOf(state.projectFileName), "letters");
}

TEST_F(ProjectSaverTest, a_save_that_fails_leaves_the_project_changed_and_unlisted) {
    type(u"It turns."_s);
    state.projectFileName = home.filePath(u"no/such/folder/a.ivd"_s);
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(state.commandsRunning, 0);
    EXPECT_FALSE(log.has("caption: Quillford 3.1 - a.ivd"));
}

TEST_F(ProjectSaverTest, a_picture_that_cannot_be_read_is_told_to_a_user_and_not_by_the_timer) {
    state.projectFileName = inProjects(u"a.ivd"_s);
    type(project.fields.txtAttachFig(0), home.filePath(u"gone.png"_s));
    state.isAutoSaving = true;
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    EXPECT_EQ(boxes().size(), 0);
    state.isAutoSaving = false;
    errorOf([&] { static_cast<void>(saver.SaveFile()); });
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ProjectSaverTest, saving_is_a_command_at_work) {
    state.projectFileName = inProjects(u"a.ivd"_s);
    log.during = [this](const std::string&) { EXPECT_EQ(state.commandsRunning, 1); };
    EXPECT_TRUE(saver.SaveFile());
    EXPECT_TRUE(log.has("caption: Quillford 3.1 - a.ivd"));
    EXPECT_EQ(state.commandsRunning, 0);
}
