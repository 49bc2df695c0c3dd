#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/session/SessionFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectOpenerTest : public SessionFixture {
protected:
    ProjectOpenerTest() {
        easel = makeProject(inProjects(u"easel.ivd"_s), u"QF-1"_s, u"It folds."_s);
    }

    /// A project file that claims another version.
    QString makeVersion(const QString& path, const QString& version) {
        makeProject(path, u"9"_s, u"of another version"_s);
        Storage root = OpenStorageFile(path);
        root.CreateStream(u"Section Version"_s, StorageMode::ExclusiveCreate).WriteData(version);
        root.Commit(0);
        return path;
    }

    QString shadowOfEasel() const { return inDrafts(u"Project - QF-1.ivd"_s); }

    const ProjectState& state = project.state;
    QString easel;
};

const FakePrompts::Box NotFound{
    UserPrompts::Icon::Exclamation, u"File Does Not Exist or Has Been Renamed"_s,
    u"The project file you are trying to open from the Welcome Page either does not exist or the name has been changed outside of Quillford.  If you have not deleted this project file and want to find it, simply go to File/Open to locate the project file."_s};
const FakePrompts::Box Refused{
    UserPrompts::Icon::Exclamation, u"Error"_s,
    u"Can't open file. This file was been created by a higher verion of Quillford"_s};

} // namespace

TEST_F(ProjectOpenerTest, the_fields_are_those_of_the_file_and_clean) {
    type(u"old"_s);
    EXPECT_TRUE(opener.OpenFile(easel));
    EXPECT_EQ(project.fields.txtOperation.text(), u"It folds.");
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(names3(), std::tuple(easel, u""_s, shadowOfEasel()));
    EXPECT_EQ(state.realFileName, easel);
    EXPECT_EQ(state.fileOrigin, u"open");
    EXPECT_FALSE(state.isOpening || state.isLoading || state.draftCurrent);
    EXPECT_EQ(state.commandsRunning, 0);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(ProjectOpenerTest, the_shadow_holds_the_project_as_it_was_opened) {
    opener.OpenFile(easel);
    EXPECT_EQ(drafts(), QStringList({u"Project - QF-1.ivd"_s}));
    EXPECT_EQ(operationIn(shadowOfEasel()), u"It folds.");
    EXPECT_TRUE(shadow.isOwn(shadowOfEasel()));
}

TEST_F(ProjectOpenerTest, the_shadow_takes_nothing_over_from_what_had_its_name) {
    writeFile(shadowOfEasel(), "letters");
    opener.OpenFile(easel);
    EXPECT_EQ(operationIn(shadowOfEasel()), u"It folds.");
}

TEST_F(ProjectOpenerTest, the_caption_the_folder_and_the_list_are_those_of_the_project) {
    opener.OpenFile(easel);
    EXPECT_TRUE(log.has("caption: Quillford 3.1 - easel.ivd"));
    EXPECT_FALSE(log.has("caption: Quillford 3.1 - Project - QF-1.ivd"));
    EXPECT_EQ(setting(u"LastDir"_s), workDir + u"/Projects/"_s);
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1|"_s}));
}

TEST_F(ProjectOpenerTest, an_entry_of_the_list_is_opened_by_its_path) {
    EXPECT_TRUE(opener.OpenFile(easel + u"|QF-1|Easel|FILEOPEN"_s));
    EXPECT_EQ(state.projectFileName, easel);
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1|Easel|FILEOPEN"_s}));
}

TEST_F(ProjectOpenerTest, the_screen_shows_the_project_in_order) {
    screen.welcome = true;
    log.calls.clear();
    opener.OpenFile(easel);
    const Calls first(calls().begin(), calls().begin() + 10);
    EXPECT_EQ(first, Calls({"hourglass", "blank preview", "clear index", "LayoutInventors 1",
                            "LayoutObjects 4", "LayoutFigures 1", "LayoutMainElements 3",
                            "LayoutSubElements 3", "LayoutDescriptions 3", "remove picture 0"}));
    EXPECT_LT(log.find("TextHighLight 8"), log.find("RebuildElementIndex"));
    EXPECT_LT(log.find("RebuildElementIndex"), log.find("caption: Quillford 3.1 - easel.ivd"));
    EXPECT_LT(log.find("caption: Quillford 3.1 - easel.ivd"), log.find("hide Welcome page"));
    EXPECT_LT(log.find("hide Welcome page"), log.find("switched 0"));
    EXPECT_EQ(Calls(calls().end() - 2, calls().end()), Calls({"autosave on", "default pointer"}));
}

TEST_F(ProjectOpenerTest, the_welcome_page_is_seen_for_two_seconds) {
    screen.welcome = true;
    clock.factor = 1;
    clock.waits.clear();
    opener.OpenFile(easel);
    EXPECT_EQ(clock.waits, std::vector<qint64>({2000}));
    EXPECT_FALSE(screen.welcome);
    clock.waits.clear();
    opener.OpenFile(easel);
    EXPECT_EQ(clock.waits, std::vector<qint64>());
}

TEST_F(ProjectOpenerTest, the_verdicts_are_those_on_the_project) {
    opener.OpenFile(easel);
    EXPECT_EQ(rules.tag(7), u"OK");
    EXPECT_EQ(rules.tag(2), u"WARNING");
    EXPECT_EQ(rules.tag(8), u"WARNING");
}

TEST_F(ProjectOpenerTest, the_fields_are_loading_while_they_are_read_and_not_after) {
    class Watch final : public FieldObserver {
    public:
        explicit Watch(const ProjectState& state) : state_(state) {}

        void fieldChanged(FieldId, int) override {
            ++changes;
            loading += state_.isLoading && state_.isOpening ? 1 : 0;
        }

        int changes = 0;
        int loading = 0;

    private:
        const ProjectState& state_;
    };

    Watch watch(state);
    project.fields.setObserver(&watch);
    opener.OpenFile(easel);
    project.fields.setObserver(nullptr);
    EXPECT_GE(watch.changes, 2);
    EXPECT_EQ(watch.loading, watch.changes);
}

TEST_F(ProjectOpenerTest, leaving_section_5_on_the_way_leaves_the_project_clean) {
    Project uneven;
    uneven.fields.txtElementName(0).setText(u"leg"_s);
    ProjectWriter(uneven).write(easel, ProjectWriter::Durability::Flushed);
    standOn(4);
    opener.OpenFile(easel);
    EXPECT_EQ(project.fields.txtElementMain(0).text(), u"leg");
    EXPECT_FALSE(isChanged());
}

TEST_F(ProjectOpenerTest, a_draft_has_no_shadow) {
    const QString draft = makeProject(inDrafts(u"Draft -  1.ivd"_s), {}, u"It spins."_s);
    EXPECT_TRUE(opener.OpenFile(draft));
    EXPECT_EQ(names3(), std::tuple(draft, u""_s, u""_s));
    EXPECT_EQ(drafts(), QStringList({u"Draft -  1.ivd"_s}));
    EXPECT_FALSE(state.isDraftProject);
}

TEST_F(ProjectOpenerTest, a_provisional_draft_is_a_draft_project) {
    const QString draft =
        makeProject(inDrafts(u"Provisional Project [1] (01-02-2026).ivd"_s), u"1"_s, u"x"_s);
    EXPECT_TRUE(opener.OpenFile(draft + u"|1|"_s));
    EXPECT_TRUE(state.isDraftProject);
    opener.OpenFile(easel);
    EXPECT_FALSE(state.isDraftProject);
}

TEST_F(ProjectOpenerTest, an_entry_that_is_shown_as_recovered_is_a_recovered_project) {
    settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file1",
                      easel + u"|QF-1||FILEOPEN"_s);
    recent.loadRecentProjects(false);
    opener.OpenFile(recent.entry(1));
    EXPECT_TRUE(state.isRecovered);
    EXPECT_FALSE(isChanged());
}

TEST_F(ProjectOpenerTest, nothing_of_the_project_before_stays_tied_to_this_one) {
    opener.OpenFile(easel);
    const QString other = makeProject(inProjects(u"other.ivd"_s), u"7"_s, u"x"_s);
    opener.OpenFile(other);
    EXPECT_EQ(names3(), std::tuple(other, u""_s, inDrafts(u"Project - 7.ivd"_s)));
    EXPECT_EQ(state.realFileName, other);
}

TEST_F(ProjectOpenerTest, two_projects_of_one_number_use_one_shadow) {
    opener.OpenFile(easel);
    const QString other = makeProject(inProjects(u"other.ivd"_s), u"QF-1"_s, u"It spins."_s);
    opener.OpenFile(other);
    EXPECT_EQ(drafts(), QStringList({u"Project - QF-1.ivd"_s}));
    EXPECT_EQ(operationIn(shadowOfEasel()), u"It spins.");
}

// Figures

TEST_F(ProjectOpenerTest, pictures_get_working_copies_and_are_shown) {
    Project drawn;
    drawn.fields.txtAttachFig(0).setText(home.filePath(u"fig.png"_s));
    writeFile(home.filePath(u"fig.png"_s), "picture");
    ProjectWriter(drawn).write(easel, ProjectWriter::Durability::Flushed);
    opener.OpenFile(easel);
    const QString copy = folders.temporary + u"/fig.png"_s;
    EXPECT_EQ(project.fields.figureState(0).workingCopy, copy);
    EXPECT_EQ(contentOf(copy), "picture");
    EXPECT_TRUE(log.has("show picture 0"));
}

TEST_F(ProjectOpenerTest, a_figure_of_the_project_before_is_not_carried_over) {
    ProjectFields& fields = project.fields;
    fields.txtAttachFig(0).setText(u"/p/old.png"_s);
    fields.txtFigureDetail(0).setText(u"old"_s);
    fields.figureState(0).workingCopy = u"/t/old.png"_s;
    Project none;
    none.fields.cboFiguresNum.setText(u"0"_s);
    ProjectWriter(none).write(easel, ProjectWriter::Durability::Flushed);
    opener.OpenFile(easel);
    EXPECT_EQ(fields.txtAttachFig(0).text() + fields.txtFigureDetail(0).text(), u"");
    EXPECT_EQ(fields.figureState(0).workingCopy, u"");
    EXPECT_FALSE(isChanged());
}

// Files that are not opened

TEST_F(ProjectOpenerTest, a_file_that_is_not_there_leaves_the_open_project) {
    opener.OpenFile(easel);
    project.state.isDraftProject = true;
    project.fields.figureState(0) = {u"/t/fig.png"_s, u"3, 4"_s};
    const auto before = names3();
    type(u"It folds twice."_s);
    screen.autoSave = false;
    log.calls.clear();
    EXPECT_FALSE(opener.OpenFile(home.filePath(u"Drafts/Provisional Project.ivd"_s)));
    EXPECT_EQ(prompts.boxes, std::vector({NotFound}));
    EXPECT_EQ(names3(), before);
    EXPECT_TRUE(state.isDraftProject);
    EXPECT_EQ(project.fields.txtOperation.text(), u"It folds twice.");
    EXPECT_EQ(project.fields.figureState(0).workingCopy, u"/t/fig.png");
    EXPECT_EQ(project.fields.figureState(0).sizeText, u"3, 4");
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(calls(), Calls({"hourglass", "default pointer"}));
}

TEST_F(ProjectOpenerTest, after_a_file_that_is_not_there_opening_goes_on_and_the_timer_stays) {
    screen.autoSave = false;
    opener.OpenFile(home.filePath(u"nothing.ivd"_s));
    EXPECT_TRUE(state.isOpening);
    EXPECT_FALSE(screen.autoSave);
    EXPECT_EQ(state.commandsRunning, 0);
    opener.OpenFile(easel);
    EXPECT_FALSE(state.isOpening);
}

TEST_F(ProjectOpenerTest, what_is_no_project_is_not_found) {
    writeFile(inProjects(u"letters.ivd"_s), "letters");
    writeFile(inProjects(u"empty.ivd"_s));
    bool props = false;
    bool overwrite = false;
    CreateStorageFile(inProjects(u"foreign.ivd"_s), props, true, overwrite).Commit(0);
    for (const QString& name : {u"letters.ivd"_s, u"empty.ivd"_s, u"foreign.ivd"_s, u""_s}) {
        prompts.boxes.clear();
        EXPECT_FALSE(opener.OpenFile(inProjects(name))) << name.toStdString();
        EXPECT_EQ(prompts.boxes, std::vector({NotFound}));
    }
}

TEST_F(ProjectOpenerTest, a_file_that_is_open_elsewhere_is_not_found) {
    const Storage elsewhere = OpenStorageFile(easel);
    EXPECT_FALSE(opener.OpenFile(easel));
    EXPECT_EQ(prompts.boxes, std::vector({NotFound}));
}

TEST_F(ProjectOpenerTest, a_file_that_has_gone_is_looked_for_in_the_virtual_store) {
    const QString twin = folders.localData + u"/VirtualStore"_s + home.filePath(u"old/a.ivd"_s);
    makeProject(twin, u"1"_s, u"from the store"_s);
    EXPECT_TRUE(opener.OpenFile(home.filePath(u"old/a.ivd"_s)));
    EXPECT_EQ(project.fields.txtOperation.text(), u"from the store");
    EXPECT_EQ(state.projectFileName, twin);
}

TEST_F(ProjectOpenerTest, an_entry_whose_file_has_gone_stays_in_the_list) {
    const QString gone = inProjects(u"gone.ivd"_s) + u"||"_s;
    settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file1", gone);
    opener.OpenFile(gone);
    EXPECT_EQ(listed(), QStringList({gone}));
}

TEST_F(ProjectOpenerTest, a_damaged_project_opens_with_what_could_be_read) {
    {
        Storage root = OpenStorageFile(easel);
        root.DestroyElement(u"Section 8"_s);
        root.Commit(0);
    }
    type(u"old"_s);
    EXPECT_TRUE(opener.OpenFile(easel));
    EXPECT_EQ(project.fields.txtFileNo.text(), u"QF-1");
    EXPECT_EQ(project.fields.txtOperation.text(), u"");
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(ProjectOpenerTest, a_shadow_that_cannot_be_written_does_not_keep_a_project_shut) {
    ASSERT_TRUE(QDir(inDrafts({})).removeRecursively());
    writeFile(workDir + u"/Drafts"_s);
    EXPECT_TRUE(opener.OpenFile(easel));
    EXPECT_EQ(names3(), std::tuple(easel, u""_s, shadowOfEasel()));
    EXPECT_TRUE(saveState.text.startsWith(u"no backup: "_s));
    EXPECT_FALSE(shadow.isOwn(shadowOfEasel()));
}

// Versions

TEST_F(ProjectOpenerTest, equal_and_lower_versions_are_read) {
    for (const QString& version : {u"3.10"_s, u"3.0"_s, u"1"_s}) {
        EXPECT_TRUE(opener.OpenFile(makeVersion(inProjects(u"v.ivd"_s), version)));
        EXPECT_EQ(project.fields.txtOperation.text(), u"of another version");
    }
}

TEST_F(ProjectOpenerTest, a_higher_version_is_refused_and_becomes_the_projects_file) {
    type(project.fields.txtFileNo, u"5"_s);
    type(u"mine"_s);
    const QString higher = makeVersion(inProjects(u"v.ivd"_s), u"3.2"_s);
    const QByteArray before = contentOf(higher);
    EXPECT_FALSE(opener.OpenFile(higher));
    EXPECT_EQ(prompts.boxes, std::vector({Refused}));
    EXPECT_EQ(project.fields.txtOperation.text(), u"mine");
    EXPECT_EQ(names3(), std::tuple(higher, u""_s, inDrafts(u"Project - 5.ivd"_s)));
    EXPECT_EQ(operationIn(inDrafts(u"Project - 5.ivd"_s)), u"mine");
    EXPECT_EQ(contentOf(higher), before);
    EXPECT_TRUE(state.isRefused);
    EXPECT_FALSE(state.isOpening);
    EXPECT_TRUE(screen.autoSave);
    EXPECT_EQ(state.fileOrigin, u"open");
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ProjectOpenerTest, a_version_that_is_no_number_is_refused) {
    EXPECT_FALSE(opener.OpenFile(makeVersion(inProjects(u"v.ivd"_s), u"three"_s)));
    EXPECT_EQ(prompts.boxes, std::vector({Refused}));
    EXPECT_EQ(project.fields.txtOperation.text(), u"");
}

TEST_F(ProjectOpenerTest, the_timer_spares_a_refused_file_until_the_user_saves) {
    const QString higher = makeVersion(inProjects(u"v.ivd"_s), u"3.2"_s);
    const QByteArray before = contentOf(higher);
    opener.OpenFile(higher);
    type(u"mine"_s);
    waitForAutosave();
    EXPECT_EQ(contentOf(higher), before);
    EXPECT_EQ(operationIn(state.shadowFileName), u"mine");
    EXPECT_TRUE(isChanged());
    commands.mnuFileSave_Click();
    EXPECT_EQ(operationIn(higher), u"mine");
    EXPECT_FALSE(state.isRefused);
    type(u"mine again"_s);
    waitForAutosave();
    EXPECT_EQ(operationIn(higher), u"mine again");
}

TEST_F(ProjectOpenerTest,
       the_line_of_the_save_state_tells_how_the_text_beside_a_refused_file_does) {
    type(u"It turns."_s);
    waitForAutosave();
    ASSERT_TRUE(saveState.text.startsWith(u"saved "_s));
    opener.OpenFile(makeVersion(inProjects(u"v.ivd"_s), u"3.2"_s));
    EXPECT_EQ(saveState.text, u"") << "that was another project's";
    type(QString(100000, u'x'));
    {
        const FullDisk full(20000);
        waitForAutosave();
        EXPECT_EQ(saveState.text, u"not saved: disk full");
    }
    waitForAutosave();
    EXPECT_TRUE(saveState.text.startsWith(u"saved "_s)) << saveState.text.toStdString();
}

TEST_F(ProjectOpenerTest, nothing_is_put_back_over_a_refused_file) {
    const QString higher = makeVersion(inProjects(u"v.ivd"_s), u"3.2"_s);
    const QByteArray before = contentOf(higher);
    opener.OpenFile(higher);
    type(u"mine"_s);
    waitForAutosave();
    prompts.yesNoCancelAnswers = {Answer::No};
    EXPECT_TRUE(commands.queryUnload());
    EXPECT_EQ(contentOf(higher), before);
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(ProjectOpenerTest, a_refused_file_that_is_saved_elsewhere_stays_as_it_was) {
    const QString higher = makeVersion(inProjects(u"v.ivd"_s), u"3.2"_s);
    const QByteArray before = contentOf(higher);
    opener.OpenFile(higher);
    type(u"mine"_s);
    waitForAutosave();
    prompts.filesToSave = {inProjects(u"mine.ivd"_s)};
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(contentOf(higher), before);
    EXPECT_EQ(operationIn(inProjects(u"mine.ivd"_s)), u"mine");
    EXPECT_EQ(state.realFileName, inProjects(u"mine.ivd"_s));
}

TEST_F(ProjectOpenerTest, a_refused_draft_changes_no_name) {
    opener.OpenFile(easel);
    const auto before = names3();
    const QString draft =
        makeVersion(inDrafts(u"Provisional Project [1] (01-02-2026).ivd"_s), u"4"_s);
    EXPECT_FALSE(opener.OpenFile(draft));
    EXPECT_EQ(names3(), before);
    EXPECT_FALSE(state.isDraftProject || state.isRefused);
    EXPECT_TRUE(shadow.isOwn(shadowOfEasel()));
}
