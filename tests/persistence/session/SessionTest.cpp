#include "persistence/compound/mdlStorage.h"
#include "persistence/session/SessionFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What the user does with commands, and what lies on the disk after it.
class SessionTest : public SessionFixture {
protected:
    QString openEasel() {
        const QString easel = makeProject(inProjects(u"easel.ivd"_s), u"QF-1"_s, u"It folds."_s);
        openFromDialog(easel);
        return easel;
    }

    /// The program starts again after it was killed: nothing is left but the disk.
    void startAgain() {
        project.state = ProjectState();
        shadow.forget();
        newProject.NewFile();
        screen.welcome = true;
        recent.loadRecentProjects(false);
    }

    void answer(Answer answer) { prompts.yesNoCancelAnswers.push_back(answer); }

    const ProjectState& state = project.state;
};

} // namespace

// Drafts of unnamed projects

TEST_F(SessionTest, saving_a_project_that_only_lives_among_the_drafts_names_it) {
    type(u"It turns."_s);
    waitForAutosave();
    saveUnder(inProjects(u"a"_s));
    EXPECT_EQ(names3(), std::tuple(inProjects(u"a.ivd"_s), u""_s, u""_s));
    EXPECT_EQ(operationIn(inProjects(u"a.ivd"_s)), u"It turns.");
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(listed(), QStringList({inProjects(u"a.ivd"_s) + u"|||FILEOPEN"_s}));
    EXPECT_EQ(recent.entry(1), listed()[0]);
    EXPECT_FALSE(isChanged());
}

TEST_F(SessionTest, saving_a_draft_that_was_opened_names_it_and_keeps_its_place_in_the_list) {
    const QString draft = makeProject(inDrafts(u"Draft -  1.ivd"_s), {}, u"It spins."_s);
    openFromDialog(draft);
    saveUnder(inProjects(u"a.ivd"_s));
    EXPECT_EQ(names3(), std::tuple(inProjects(u"a.ivd"_s), u""_s, u""_s));
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(listed(), QStringList({inProjects(u"a.ivd"_s) + u"|||FILEOPEN"_s}));
}

TEST_F(SessionTest, a_save_that_is_cancelled_keeps_the_draft) {
    type(u"It turns."_s);
    waitForAutosave();
    const auto before = names3();
    saveUnder({});
    EXPECT_EQ(names3(), before);
    EXPECT_EQ(drafts().size(), 1);
    waitForAutosave();
    EXPECT_EQ(drafts().size(), 1);
}

TEST_F(SessionTest, save_as_turns_a_draft_into_the_project) {
    type(u"It turns."_s);
    waitForAutosave();
    prompts.filesToSave = {inDrafts(u"b.ivd"_s), inProjects(u"b.ivd"_s)};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(names3(), std::tuple(inProjects(u"b.ivd"_s), u""_s, u""_s));
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(listed(), QStringList({inProjects(u"b.ivd"_s) + u"|||FILEOPEN"_s}));
}

TEST_F(SessionTest, a_dropped_draft_leaves_no_trace) {
    type(u"It turns."_s);
    waitForAutosave();
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(listed(), QStringList());
    waitForAutosave();
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(SessionTest, a_draft_that_got_no_name_at_exit_keeps_the_last_letter) {
    type(u"It tur"_s);
    waitForAutosave();
    type(u"It turns."_s);
    answer(Answer::Yes);
    prompts.filesToSave = {QString()};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(inDrafts(u"Draft -  1.ivd"_s)), u"It turns.");
    EXPECT_EQ(listed(), QStringList({inDrafts(u"Draft -  1.ivd"_s) + u"||"_s}));
}

TEST_F(SessionTest, a_provisional_draft_asks_to_be_saved_and_is_given_a_name) {
    const QString draft =
        makeProject(inDrafts(u"Provisional Project [1] (01-02-2026).ivd"_s), u"1"_s, u"x"_s);
    openFromDialog(draft);
    answer(Answer::Yes);
    prompts.filesToSave = {inProjects(u"one.ivd"_s)};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(operationIn(inProjects(u"one.ivd"_s)), u"x");
    EXPECT_EQ(listed(), QStringList({inProjects(u"one.ivd"_s) + u"|1|"_s}));
}

// Opened projects and their shadow

TEST_F(SessionTest, answering_no_at_exit_leaves_the_file_as_it_was_when_opened) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It folds.");
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1|"_s}));
}

TEST_F(SessionTest, answering_no_at_exit_goes_back_to_the_last_save_by_the_user) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    commands.mnuFileSave_Click();
    type(u"It falls."_s);
    waitForAutosave();
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
}

TEST_F(SessionTest, a_save_before_an_opening_that_is_cancelled_counts_as_one_by_the_user) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    answer(Answer::Yes);
    openFromDialog({});
    type(u"It falls."_s);
    waitForAutosave();
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
}

TEST_F(SessionTest, the_file_of_the_old_name_goes_back_when_a_project_is_saved_under_another) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    prompts.filesToSave = {inProjects(u"variant.ivd"_s)};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(operationIn(easel), u"It folds.");
    EXPECT_EQ(operationIn(inProjects(u"variant.ivd"_s)), u"It unfolds.");
    type(u"It falls."_s);
    waitForAutosave();
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It folds.");
    EXPECT_EQ(operationIn(inProjects(u"variant.ivd"_s)), u"It unfolds.");
}

TEST_F(SessionTest, a_copy_that_the_old_name_still_needs_is_not_taken_for_that_of_the_new_one) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    ASSERT_TRUE(QFile::remove(easel) && QDir().mkdir(easel));
    prompts.filesToSave = {inProjects(u"variant.ivd"_s)};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(boxes(), QStringList({u"Error"_s})) << "the file of the old name cannot go back";
    type(u"It falls."_s);
    waitForAutosave();
    ASSERT_TRUE(QDir().rmdir(easel));
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It folds.");
    EXPECT_EQ(operationIn(inProjects(u"variant.ivd"_s)), u"It falls.");
    EXPECT_EQ(boxes(), QStringList({u"Error"_s, u"Save Project?"_s, u"Error"_s}));
}

TEST_F(SessionTest, a_shadow_that_cannot_be_put_back_keeps_the_program_open) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    answer(Answer::No);
    {
        const FullDisk full(1000);
        EXPECT_FALSE(commands.queryUnload());
    }
    EXPECT_EQ(drafts().size(), 1);
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(operationIn(easel), u"It folds.");
}

TEST_F(SessionTest, a_project_that_cannot_be_written_can_be_left_without_saving) {
    const QString easel = openEasel();
    const QByteArray before = contentOf(easel);
    {
        const Storage elsewhere = OpenStorageFile(easel);
        type(u"It unfolds."_s);
        waitForAutosave();
        EXPECT_TRUE(saveState.text.startsWith(u"not saved: "_s));
        answer(Answer::No);
        EXPECT_TRUE(commands.queryUnload());
    }
    EXPECT_EQ(contentOf(easel), before);
}

TEST_F(SessionTest, after_new_answered_no_nothing_is_put_back) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    answer(Answer::No);
    commands.mnuFileNew_Click();
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    EXPECT_EQ(drafts(), QStringList({u"Project - QF-1.ivd"_s}));
    EXPECT_EQ(operationIn(inDrafts(u"Project - QF-1.ivd"_s)), u"It folds.");
    EXPECT_EQ(names3(), std::tuple(u""_s, u""_s, u""_s));
}

// The mark of an open project

TEST_F(SessionTest, new_and_the_welcome_page_take_the_mark_out_and_opening_another_does_not) {
    const QString easel = openEasel();
    commands.mnuFileSave_Click();
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1||FILEOPEN"_s}));
    const QString other = makeProject(inProjects(u"other.ivd"_s), u"7"_s, u"x"_s);
    openFromDialog(other);
    commands.mnuFileSave_Click();
    EXPECT_EQ(listed(), QStringList({other + u"|7||FILEOPEN"_s, easel + u"|QF-1||FILEOPEN"_s}));
    commands.mnuFileNew_Click();
    EXPECT_EQ(listed(), QStringList({other + u"|7|"_s, easel + u"|QF-1||FILEOPEN"_s}));
    openFromDialog(easel);
    commands.mnuGotoWelcomePage_Click();
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1|"_s, other + u"|7|"_s}));
}

TEST_F(SessionTest, a_clean_exit_never_shows_as_recovered) {
    openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    answer(Answer::Yes);
    EXPECT_TRUE(commands.queryUnload());
    startAgain();
    EXPECT_EQ(recent.menuCaption(1), u"&1 - easel");
}

TEST_F(SessionTest, after_a_crash_the_file_holds_what_the_timer_saved_and_shows_as_recovered) {
    const QString easel = openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    startAgain();
    EXPECT_EQ(recent.menuCaption(1), u"&1 - easel (RECOVERED FILE)");
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    commands.lblRecentPatents_Click(1);
    EXPECT_TRUE(state.isRecovered);
    EXPECT_EQ(project.fields.txtOperation.text(), u"It unfolds.");
    answer(Answer::Yes);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(boxes(), QStringList({u"Save Project?"_s}));
}

TEST_F(SessionTest, the_first_save_of_a_recovered_project_makes_it_an_ordinary_one) {
    openEasel();
    type(u"It unfolds."_s);
    waitForAutosave();
    startAgain();
    commands.lblRecentPatents_Click(1);
    commands.mnuFileSave_Click();
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(SessionTest, after_a_crash_an_unnamed_project_is_there_as_a_recovered_one) {
    type(project.fields.txtFileNo, u"A-1"_s);
    type(u"It turns."_s);
    waitForAutosave();
    startAgain();
    EXPECT_EQ(recent.menuCaption(1), u"&1 - Project - 1 Recovered");
    commands.lblRecentPatents_Click(1);
    EXPECT_TRUE(state.isDraftProject);
    EXPECT_EQ(project.fields.txtOperation.text(), u"It turns.");
}

// The Welcome page and the list

TEST_F(SessionTest, the_welcome_page_shows_what_was_open_last) {
    openEasel();
    commands.mnuGotoWelcomePage_Click();
    EXPECT_TRUE(screen.welcome);
    EXPECT_EQ(recent.labelCaption(1), u"Project - easel");
    EXPECT_EQ(names3(), std::tuple(u""_s, u""_s, u""_s));
    commands.lblRecentPatents_Click(1);
    EXPECT_FALSE(screen.welcome);
    EXPECT_EQ(project.fields.txtOperation.text(), u"It folds.");
}

TEST_F(SessionTest, a_sixth_project_that_is_dropped_brings_the_oldest_back) {
    for (const char16_t name : u"abcde")
        if (name != 0)
            openFromDialog(makeProject(inProjects(QString(QChar(name)) + u".ivd"_s),
                                       QString(QChar(name)), u"x"_s));
    const QStringList five = listed();
    ASSERT_EQ(five.size(), 5);
    commands.mnuFileNew_Click();
    type(u"It turns."_s);
    waitForAutosave();
    EXPECT_FALSE(listed().contains(five[4]));
    answer(Answer::No);
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(listed(), five);
}

TEST_F(SessionTest, cancelling_an_opening_leaves_everything_as_it_was) {
    const QString easel = openEasel();
    const auto before = names3();
    openFromDialog({});
    EXPECT_EQ(names3(), before);
    EXPECT_EQ(project.fields.txtOperation.text(), u"It folds.");
}

TEST_F(SessionTest, a_full_disk_at_a_save_leaves_the_project_named_and_changed) {
    const QString easel = openEasel();
    type(QString(100000, u'x'));
    {
        const FullDisk full(20000);
        commands.mnuFileSave_Click();
    }
    EXPECT_EQ(boxes(), QStringList({u"Error"_s}));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(state.projectFileName, easel);
    commands.mnuFileSave_Click();
    EXPECT_EQ(operationIn(easel), QString(100000, u'x'));
}
