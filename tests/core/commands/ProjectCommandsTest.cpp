#include "core/commands/ProjectCommands.h"

#include "base/Error.h"
#include "core/fields/SaveFlag.h"
#include "core/wizard/WizardFixture.h"
#include "support/FakeClock.h"
#include "support/FakeFolders.h"
#include "support/FakeProjectStore.h"
#include "support/FakeSaveStateLine.h"
#include "support/FakeSpellEngine.h"

#include <QTemporaryDir>

#include <deque>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = UserPrompts::Answer;
using Icon = UserPrompts::Icon;

class ProjectCommandsTest : public WizardFixture {
protected:
    ProjectCommandsTest() {
        folders.documents = home.path();
        screen.autoSave = true;
        saveState.text = u"saved 12:00"_s;
        store.answers = true;
        log.during = [this](const std::string& call) {
            if (call == "SaveFile")
                save();
        };
    }

    /// What a save does to the state, or what it raises; `answers` tells whether it took place.
    void save() {
        savedAs.append(state.projectFileName);
        autoSaving.push_back(state.isAutoSaving);
        timerAtSave.push_back(screen.autoSave);
        if (!saveResults.empty()) {
            store.answers = saveResults.front();
            saveResults.pop_front();
        }
        if (fails)
            throw Error(112, u"the disk is full"_s);
        if (store.answers && state.projectFileName.isEmpty())
            state.projectFileName = u"/p/named.ivd"_s;
        if (store.answers && !state.isAutoSaving)
            ResetSaveFlag(project.fields, state);
    }

    void change() { project.fields.txtPurpose.setText(u"to turn"_s); }

    /// A changed project without a name that the timer has saved.
    void drafted() {
        change();
        state.projectFileName = state.draftFileName = draft;
    }

    void opened() {
        state.projectFileName = state.realFileName = u"/p/easel.ivd"_s;
        state.shadowFileName = u"/q/Drafts/Project - 1.ivd"_s;
    }

    FakePrompts::Box question(const QString& text) const {
        return {Icon::Question, u"Save Project?"_s, text};
    }

    bool isNew() const { return log.has("reset recent counters"); }

    /// The store's calls, and what concerns the whole window.
    Calls filing() const {
        Calls kept;
        for (const std::string& call : calls())
            for (const char* part : {"SaveFile", "save as new", "OpenFile", "draft", "shadow",
                                     "marker", "counters", "recent", "caption", "Welcome"})
                if (call.find(part) != std::string::npos &&
                    call.find("commands") == std::string::npos) {
                    kept.push_back(call);
                    break;
                }
        return kept;
    }

    const QString draft = u"/q/Drafts/Draft -  1.ivd"_s;
    const QString newQuestion =
        u"Do you want to save the current project before you create a new Project?"_s;

    QTemporaryDir home;
    FakeFolders folders;
    WorkFolders workFolders{settings, folders};
    SaveDialog saveDialog{project.fields, workFolders, prompts};
    FakeProjectStore store{log};
    FakeSpellEngine spelling;
    FakeClock clock;
    NewProject newProject{project, system, rules, navigator, screen.all, store, spelling, clock};
    WindowTitle title{screen};
    FakeSaveStateLine saveState;
    ProjectCommands commands{project,    navigator,   screen.all, newProject, store,
                             saveDialog, workFolders, title,      saveState,  prompts};
    ProjectState& state = project.state;
    std::deque<bool> saveResults;
    bool fails = false;
    QStringList savedAs;
    std::vector<bool> autoSaving;
    std::vector<bool> timerAtSave;
};

} // namespace

// New

TEST_F(ProjectCommandsTest, new_leaves_the_welcome_page_and_does_no_more) {
    change();
    screen.welcome = true;
    commands.mnuFileNew_Click();
    EXPECT_FALSE(screen.welcome);
    EXPECT_FALSE(isNew());
    EXPECT_EQ(project.fields.txtPurpose.text(), u"to turn");
    EXPECT_TRUE(log.has("focus txtFileNo"));
}

TEST_F(ProjectCommandsTest, new_asks_nothing_about_an_unchanged_project) {
    commands.mnuFileNew_Click();
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_TRUE(isNew());
    EXPECT_EQ(saveState.text, u"");
}

TEST_F(ProjectCommandsTest, new_saves_a_changed_project_when_told_to) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    commands.mnuFileNew_Click();
    EXPECT_EQ(prompts.boxes, std::vector({question(newQuestion)}));
    EXPECT_EQ(savedAs, QStringList({QString()}));
    EXPECT_TRUE(isNew());
}

TEST_F(ProjectCommandsTest, new_stops_when_a_project_without_a_draft_is_not_saved) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false};
    commands.mnuFileNew_Click();
    EXPECT_FALSE(isNew());
    EXPECT_TRUE(GetSaveFlag(project.fields, state));
}

TEST_F(ProjectCommandsTest, new_goes_on_when_a_draft_keeps_what_got_no_name) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false, true};
    commands.mnuFileNew_Click();
    EXPECT_EQ(savedAs, QStringList({QString(), draft}));
    EXPECT_EQ(autoSaving, std::vector({false, true}));
    EXPECT_FALSE(log.has("delete draft"));
    EXPECT_TRUE(isNew());
}

TEST_F(ProjectCommandsTest, new_stops_when_not_even_the_draft_can_keep_it) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    fails = true;
    commands.mnuFileNew_Click();
    EXPECT_FALSE(isNew());
    EXPECT_EQ(boxes(), QStringList({u"Save Project?"_s, u"Error"_s, u"Error"_s}));
    EXPECT_EQ(state.projectFileName, draft);
}

TEST_F(ProjectCommandsTest, new_gives_up_or_stays_as_told) {
    opened();
    change();
    prompts.yesNoCancelAnswers = {Answer::Cancel, Answer::No};
    commands.mnuFileNew_Click();
    EXPECT_FALSE(isNew());
    commands.mnuFileNew_Click();
    EXPECT_TRUE(isNew());
    EXPECT_FALSE(log.has("SaveFile"));
    EXPECT_FALSE(log.has("put shadow back"));
    EXPECT_FALSE(log.has("drop draft"));
}

// Open

TEST_F(ProjectCommandsTest, open_asks_for_a_file_among_the_projects) {
    prompts.filesToOpen = {u"/p/a.ivd"_s};
    commands.mnuFileOpen_Click();
    const UserPrompts::FileQuestion& asked = prompts.fileQuestions.front();
    EXPECT_EQ(asked.folder, home.filePath(u"Quillford/Projects"_s));
    EXPECT_EQ(asked.name, u"");
    EXPECT_EQ(asked.filterDescription, u"Quillford File");
    EXPECT_EQ(asked.filterPattern, u"*.ivd");
    EXPECT_TRUE(log.has("OpenFile /p/a.ivd"));
}

TEST_F(ProjectCommandsTest, cancelling_the_dialog_leaves_everything_as_it_was) {
    opened();
    prompts.filesToOpen = {QString()};
    commands.mnuFileOpen_Click();
    EXPECT_EQ(filing(), Calls());
}

TEST_F(ProjectCommandsTest, open_asks_about_a_changed_project_first) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Cancel, Answer::Yes, Answer::No};
    saveResults = {false};
    commands.mnuFileOpen_Click();
    commands.mnuFileOpen_Click();
    EXPECT_EQ(prompts.fileQuestions.size(), 0U);
    EXPECT_EQ(
        prompts.boxes[0],
        question(u"Do you want to save the current project before you open the next file?"_s));
    prompts.filesToOpen = {u"/p/a.ivd"_s};
    commands.mnuFileOpen_Click();
    EXPECT_TRUE(log.has("OpenFile /p/a.ivd"));
}

TEST_F(ProjectCommandsTest, open_goes_on_when_a_draft_keeps_what_got_no_name) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false, true};
    prompts.filesToOpen = {QString()};
    commands.mnuFileOpen_Click();
    EXPECT_EQ(prompts.fileQuestions.size(), 1U);
    EXPECT_EQ(state.projectFileName, draft);
    EXPECT_EQ(state.draftFileName, draft);
}

// Save

TEST_F(ProjectCommandsTest, save_writes_a_named_project_and_its_shadow_with_the_timer_off) {
    opened();
    change();
    commands.mnuFileSave_Click();
    EXPECT_EQ(filing(), Calls({"SaveFile", "update shadow"}));
    EXPECT_EQ(savedAs, QStringList({u"/p/easel.ivd"_s}));
    EXPECT_EQ(timerAtSave, std::vector({false}));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, save_gives_a_draft_a_name_and_deletes_it) {
    drafted();
    commands.mnuFileSave_Click();
    EXPECT_EQ(savedAs, QStringList({QString()}));
    EXPECT_EQ(filing(), Calls({"SaveFile", "delete draft", "update shadow"}));
    EXPECT_EQ(state.projectFileName, u"/p/named.ivd");
    EXPECT_FALSE(GetSaveFlag(project.fields, state));
}

TEST_F(ProjectCommandsTest, a_draft_that_was_opened_counts_as_never_saved) {
    state.projectFileName = draft;
    log.during = [this](const std::string& call) {
        if (call == "SaveFile") {
            EXPECT_EQ(state.draftFileName, draft);
            save();
        }
    };
    commands.mnuFileSave_Click();
    EXPECT_EQ(savedAs, QStringList({QString()}));
    EXPECT_TRUE(log.has("delete draft"));
}

TEST_F(ProjectCommandsTest, a_save_without_a_name_leaves_the_names_as_they_were) {
    drafted();
    saveResults = {false, false};
    commands.mnuFileSave_Click();
    EXPECT_EQ(state.projectFileName, draft);
    EXPECT_EQ(state.draftFileName, draft);
    EXPECT_FALSE(log.has("delete draft"));
    EXPECT_FALSE(log.has("update shadow"));
    state.draftFileName.clear();
    commands.mnuFileSave_Click();
    EXPECT_EQ(state.projectFileName, draft);
    EXPECT_EQ(state.draftFileName, u"");
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, save_under_the_welcome_page_leaves_it_and_saves) {
    screen.welcome = true;
    screen.autoSave = false;
    commands.mnuFileSave_Click();
    EXPECT_FALSE(screen.welcome);
    EXPECT_TRUE(log.has("SaveFile"));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, a_save_that_fails_is_told_and_leaves_all_as_it_was) {
    drafted();
    fails = true;
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.boxes, std::vector({FakePrompts::Box{Icon::Exclamation, u"Error"_s,
                                                           u"the disk is full"_s}}));
    EXPECT_EQ(state.projectFileName, draft);
    EXPECT_EQ(state.draftFileName, draft);
    EXPECT_TRUE(screen.autoSave);
    EXPECT_EQ(state.commandsRunning, 0);
    EXPECT_TRUE(GetSaveFlag(project.fields, state));
}

TEST_F(ProjectCommandsTest, a_shadow_that_cannot_follow_is_told_and_the_save_stands) {
    opened();
    change();
    log.during = [this](const std::string& call) {
        if (call == "SaveFile")
            save();
        if (call == "update shadow")
            throw Error(112, u"the disk is full"_s);
    };
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.boxes,
              std::vector({FakePrompts::Box{
                  Icon::Exclamation, u"Error"_s,
                  u"The project is saved, but not its backup copy: the disk is full"_s}}));
    EXPECT_FALSE(GetSaveFlag(project.fields, state));
}

TEST_F(ProjectCommandsTest, save_may_be_part_of_another_command) {
    opened();
    const CommandScope buildsDraft(state);
    commands.mnuFileSave_Click();
    EXPECT_TRUE(log.has("SaveFile"));
}

// Save As

TEST_F(ProjectCommandsTest, save_as_writes_a_new_file_under_the_chosen_name) {
    opened();
    change();
    prompts.filesToSave = {u"/p/copy"_s};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(filing(), Calls({"save as new", "SaveFile", "delete draft", "update shadow"}));
    EXPECT_EQ(savedAs, QStringList({u"/p/copy.ivd"_s}));
    EXPECT_EQ(state.projectFileName, u"/p/copy.ivd");
    EXPECT_EQ(timerAtSave, std::vector({false}));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, save_as_turns_a_draft_into_the_project) {
    state.projectFileName = draft;
    change();
    prompts.filesToSave = {u"/p/copy.ivd"_s};
    log.during = [this](const std::string& call) {
        if (call == "SaveFile") {
            EXPECT_EQ(state.draftFileName, draft);
        }
    };
    commands.mnuFileSaveAs_Click();
    EXPECT_TRUE(log.has("delete draft"));
    EXPECT_FALSE(GetSaveFlag(project.fields, state));
}

TEST_F(ProjectCommandsTest, save_as_refuses_the_folder_for_drafts_until_the_user_cancels) {
    opened();
    prompts.filesToSave = {u"/q/Drafts/a.ivd"_s, u"/q/Drafts/b.ivd"_s, QString()};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(boxes(), QStringList({u"Potential Data Loss Detected!"_s,
                                    u"Potential Data Loss Detected!"_s}));
    EXPECT_EQ(filing(), Calls());
    EXPECT_EQ(state.projectFileName, u"/p/easel.ivd");
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, save_as_that_fails_goes_back_to_the_old_name) {
    drafted();
    fails = true;
    prompts.filesToSave = {u"/p/copy.ivd"_s};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(boxes(), QStringList({u"Error"_s}));
    EXPECT_EQ(state.projectFileName, draft);
    EXPECT_EQ(state.draftFileName, draft);
    EXPECT_FALSE(log.has("delete draft"));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, save_as_under_the_welcome_page_leaves_it_and_stops) {
    screen.welcome = true;
    commands.mnuFileSaveAs_Click();
    EXPECT_FALSE(screen.welcome);
    EXPECT_EQ(prompts.fileQuestions.size(), 0U);
}

// Go to Welcome Page

TEST_F(ProjectCommandsTest, the_welcome_page_closes_the_project_in_order) {
    opened();
    title.SetWindowTitle(u"easel.ivd"_s);
    log.calls.clear();
    commands.mnuGotoWelcomePage_Click();
    EXPECT_EQ(filing(),
              Calls({"clear open marker", "reset recent counters", "reset recent counters",
                     "caption: Quillford 3.1", "reload recent projects", "show Welcome page"}));
    EXPECT_TRUE(screen.welcome);
    EXPECT_FALSE(screen.enabled[0]);
    EXPECT_FALSE(screen.autoSave);
    EXPECT_EQ(saveState.text, u"");
}

TEST_F(ProjectCommandsTest, the_welcome_page_asks_in_the_words_of_new) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Cancel};
    commands.mnuGotoWelcomePage_Click();
    EXPECT_EQ(prompts.boxes, std::vector({question(newQuestion)}));
    EXPECT_FALSE(screen.welcome);
}

TEST_F(ProjectCommandsTest, the_welcome_page_answered_no_drops_a_draft) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::No};
    commands.mnuGotoWelcomePage_Click();
    EXPECT_TRUE(log.has("drop draft"));
    EXPECT_FALSE(log.has("put shadow back"));
    EXPECT_TRUE(screen.welcome);
}

TEST_F(ProjectCommandsTest, the_welcome_page_answered_no_puts_the_shadow_back) {
    opened();
    change();
    prompts.yesNoCancelAnswers = {Answer::No};
    commands.mnuGotoWelcomePage_Click();
    EXPECT_LT(log.find("put shadow back"), log.find("clear open marker"));
    EXPECT_TRUE(screen.welcome);
}

TEST_F(ProjectCommandsTest, the_welcome_page_stays_away_when_the_shadow_cannot_be_put_back) {
    opened();
    change();
    store.answers = false;
    prompts.yesNoCancelAnswers = {Answer::No};
    commands.mnuGotoWelcomePage_Click();
    EXPECT_FALSE(isNew());
    EXPECT_FALSE(screen.welcome);
}

TEST_F(ProjectCommandsTest, the_welcome_page_stays_away_from_a_project_that_is_not_saved) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false};
    commands.mnuGotoWelcomePage_Click();
    EXPECT_FALSE(screen.welcome);
}

// The recent list

TEST_F(ProjectCommandsTest, a_recent_entry_is_opened_whole) {
    store.entries = {u"/p/a.ivd|1|Easel"_s, u"/p/b.ivd||"_s};
    commands.mnuFileRecent_Click(2);
    EXPECT_EQ(filing(), Calls({"OpenFile /p/b.ivd||"}));
    commands.lblRecentPatents_Click(1);
    EXPECT_TRUE(log.has("OpenFile /p/a.ivd|1|Easel"));
}

TEST_F(ProjectCommandsTest, the_first_entry_is_the_open_project) {
    store.entries = {u"/p/easel.ivd||"_s};
    opened();
    commands.mnuFileRecent_Click(1);
    EXPECT_EQ(filing(), Calls());
    screen.welcome = true;
    commands.mnuFileRecent_Click(1);
    EXPECT_TRUE(log.has("OpenFile /p/easel.ivd||"));
}

TEST_F(ProjectCommandsTest, the_first_entry_opens_over_a_project_without_a_name) {
    store.entries = {u"/p/easel.ivd||"_s};
    commands.mnuFileRecent_Click(1);
    EXPECT_TRUE(log.has("OpenFile /p/easel.ivd||"));
}

TEST_F(ProjectCommandsTest, a_row_that_is_not_shown_opens_nothing) {
    commands.mnuFileRecent_Click(3);
    EXPECT_EQ(filing(), Calls());
}

TEST_F(ProjectCommandsTest, a_recent_entry_asks_about_a_changed_project_with_a_capital_file) {
    store.entries = {u"/p/a.ivd||"_s, u"/p/b.ivd||"_s};
    change();
    prompts.yesNoCancelAnswers = {Answer::Cancel, Answer::No};
    commands.mnuFileRecent_Click(2);
    EXPECT_EQ(filing(), Calls());
    EXPECT_EQ(
        prompts.boxes[0],
        question(u"Do you want to save the current project before you open the next File?"_s));
    commands.mnuFileRecent_Click(2);
    EXPECT_EQ(filing(), Calls({"OpenFile /p/b.ivd||"}));
}

TEST_F(ProjectCommandsTest, a_recent_entry_waits_for_a_save_with_or_without_a_draft) {
    store.entries = {u"/p/a.ivd||"_s, u"/p/b.ivd||"_s};
    drafted();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false};
    commands.mnuFileRecent_Click(2);
    EXPECT_FALSE(log.has("OpenFile /p/b.ivd||"));
    EXPECT_EQ(state.projectFileName, draft);
}

TEST_F(ProjectCommandsTest, a_save_that_moves_the_rows_still_opens_what_was_clicked) {
    store.entries = {u"/p/a.ivd||"_s, u"/p/b.ivd||"_s};
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    log.during = [this](const std::string& call) {
        if (call == "SaveFile") {
            save();
            store.entries.prepend(u"/p/named.ivd||"_s);
        }
    };
    commands.mnuFileRecent_Click(2);
    EXPECT_TRUE(log.has("OpenFile /p/b.ivd||"));
}

TEST_F(ProjectCommandsTest, row_0_of_the_welcome_page_begins_a_new_application) {
    screen.welcome = true;
    commands.lblRecentPatents_Click(0);
    EXPECT_FALSE(screen.welcome);
    EXPECT_FALSE(isNew());
}

// Exit

TEST_F(ProjectCommandsTest, an_unchanged_project_may_close_at_once) {
    opened();
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"clear open marker", "delete shadow"}));
    EXPECT_FALSE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, exit_cancelled_changes_nothing) {
    state.projectFileName = draft;
    state.isDraftProject = true;
    prompts.yesNoCancelAnswers = {Answer::Cancel};
    EXPECT_FALSE(commands.queryUnload());
    EXPECT_EQ(
        prompts.boxes,
        std::vector({question(u"Do you want to save the current project before you exit?"_s)}));
    EXPECT_EQ(filing(), Calls());
    EXPECT_EQ(state.draftFileName, u"");
    EXPECT_FALSE(state.saveFlag);
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, exit_saves_a_named_project) {
    opened();
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"SaveFile", "update shadow", "clear open marker", "delete shadow"}));
}

TEST_F(ProjectCommandsTest, exit_waits_for_a_project_without_a_draft_to_be_saved) {
    change();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false};
    EXPECT_FALSE(commands.queryUnload());
    EXPECT_FALSE(log.has("clear open marker"));
}

TEST_F(ProjectCommandsTest, exit_waits_where_a_save_fails) {
    opened();
    change();
    fails = true;
    prompts.yesNoCancelAnswers = {Answer::Yes};
    EXPECT_FALSE(commands.queryUnload());
    EXPECT_EQ(boxes(), QStringList({u"Save Project?"_s, u"Error"_s}));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, exit_goes_on_when_a_draft_keeps_what_got_no_name) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::Yes};
    saveResults = {false, true};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"SaveFile", "SaveFile", "clear open marker", "delete shadow"}));
    EXPECT_EQ(autoSaving, std::vector({false, true}));
}

TEST_F(ProjectCommandsTest, exit_answered_no_drops_a_draft_and_closes_cleanly) {
    drafted();
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"drop draft", "clear open marker", "delete shadow"}));
}

TEST_F(ProjectCommandsTest, exit_answered_no_puts_the_shadow_back_and_closes_cleanly) {
    opened();
    change();
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"put shadow back", "clear open marker", "delete shadow"}));
}

TEST_F(ProjectCommandsTest, exit_waits_when_the_shadow_cannot_be_put_back) {
    opened();
    change();
    store.answers = false;
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_FALSE(commands.queryUnload());
    EXPECT_EQ(filing(), Calls({"put shadow back"}));
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(ProjectCommandsTest, a_recovered_project_counts_as_changed_at_exit) {
    opened();
    state.isRecovered = true;
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ProjectCommandsTest, a_provisional_draft_is_dropped_at_exit_as_an_unnamed_project) {
    state.projectFileName = draft;
    state.isDraftProject = true;
    log.during = [this](const std::string& call) {
        if (call == "drop draft") {
            EXPECT_EQ(state.draftFileName, draft);
        }
    };
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_TRUE(log.has("drop draft"));
}

TEST_F(ProjectCommandsTest, after_a_preview_an_unsaved_project_closes_without_a_question) {
    state.saveFlag = false;
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(boxes(), QStringList());
}

// Inside each other

TEST_F(ProjectCommandsTest, every_question_is_asked_with_a_command_at_work) {
    change();
    prompts.yesNoCancelAnswers = {Answer::No, Answer::No};
    prompts.filesToOpen = {u"/p/a.ivd"_s};
    int running = 0;
    log.during = [&](const std::string& call) {
        if (call == "OpenFile /p/a.ivd")
            running = state.commandsRunning;
    };
    commands.mnuFileOpen_Click();
    EXPECT_EQ(running, 1);
    EXPECT_EQ(state.commandsRunning, 0);
}
