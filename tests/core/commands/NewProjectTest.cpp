#include "core/commands/NewProject.h"

#include "core/fields/SaveFlag.h"
#include "core/wizard/WizardFixture.h"
#include "support/FakeClock.h"
#include "support/FakeProjectStore.h"
#include "support/FakeSpellEngine.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class NewProjectTest : public WizardFixture {
protected:
    NewProjectTest() {
        clock.events = [this] { log.take("wait"); };
        system.appFolder = u"/opt/Quillford/"_s;
    }

    /// A project in the middle of its life, with more panels than a new one has.
    void work() {
        ProjectFields& fields = project.fields;
        const std::pair<FieldGroup, int> counts[] = {
            {FieldGroup::Inventors, 3},   {FieldGroup::Objects, 6},
            {FieldGroup::Figures, 2},     {FieldGroup::MainElements, 5},
            {FieldGroup::SubElements, 5}, {FieldGroup::Descriptions, 5},
        };
        for (const auto& [group, count] : counts) {
            fields.setPanelCount(group, count);
            fields.at(groupLimits(group).count).setText(QString::number(count));
        }
        for (const FieldRow& row : fieldTable())
            for (int i = 0; row.list == FieldListId::None && i < fields.count(row.id); ++i)
                fields.at(row.id, i).setText(row.kind == FieldKind::Check ? u"1"_s : u"text"_s);
        for (int i = 0; i < 8; ++i) {
            fields.cboStateStep2(i).setText(u"TX"_s);
            fields.cboCitizenshipStep2(i).setText(u"India"_s);
        }
        fields.cboFigureType(0).setText(u"front view"_s);
        ProjectState& state = project.state;
        state.projectFileName = u"/home/ann/easel.ivd"_s;
        state.shadowFileName = u"/home/ann/shadow.ivd"_s;
        state.realFileName = u"/home/ann/easel.ivd"_s;
        state.draftFileName = u"/home/ann/draft.ivd"_s;
        state.isDraftProject = state.isRecovered = state.isRefused = true;
        state.draftCurrent = state.saveFlag = true;
        state.fileOrigin = u"open"_s;
        system.tabSwitchCount = 12;
    }

    /// What happens between two calls, both included.
    Calls callsBetween(const std::string& first, const std::string& last) const {
        return {calls().begin() + log.find(first), calls().begin() + log.find(last) + 1};
    }

    FakeProjectStore projectStore{log};
    FakeSpellEngine spelling;
    FakeClock clock;
    NewProject newProject{project,    system,       rules,    navigator,
                          screen.all, projectStore, spelling, clock};
};

} // namespace

TEST_F(NewProjectTest, takes_its_steps_in_order) {
    work();
    screen.welcome = true;
    newProject.NewFile();
    EXPECT_EQ(callsBetween("clear open marker", "hide Welcome page"), Calls({
                                                                          "clear open marker",
                                                                          "blank preview",
                                                                          "remove picture 0",
                                                                          "remove picture 1",
                                                                          "reset recent counters",
                                                                          "LayoutInventors 1",
                                                                          "LayoutObjects 4",
                                                                          "LayoutFigures 1",
                                                                          "LayoutMainElements 3",
                                                                          "LayoutSubElements 3",
                                                                          "LayoutDescriptions 3",
                                                                          "remove picture 0",
                                                                          "whiten all",
                                                                          "title line: ",
                                                                          "clear index",
                                                                          "wait",
                                                                          "tab 0 looks incomplete",
                                                                          "tab 1 looks incomplete",
                                                                          "tab 2 looks incomplete",
                                                                          "tab 3 looks incomplete",
                                                                          "tab 4 looks incomplete",
                                                                          "tab 5 looks incomplete",
                                                                          "tab 6 looks incomplete",
                                                                          "tab 7 looks incomplete",
                                                                          "tab 8 looks incomplete",
                                                                          "tab 9 looks incomplete",
                                                                          "hide Welcome page",
                                                                      }));
    EXPECT_EQ(callsBetween("hide Welcome page", "HelpOn 0"),
              Calls({"hide Welcome page", "HelpOn 0"}));
    EXPECT_EQ(Calls(calls().end() - 4, calls().end()),
              Calls({"switched 0", "autosave on", "TextHighLight 0", "HelpOn 0"}));
    EXPECT_EQ(clock.waits, std::vector<qint64>({1000}));
}

TEST_F(NewProjectTest, leaves_the_fields_of_a_new_project) {
    work();
    newProject.NewFile();
    const ProjectFields fresh;
    for (const FieldRow& row : fieldTable()) {
        ASSERT_EQ(project.fields.count(row.id), fresh.count(row.id)) << row.name.toUtf8().data();
        for (int i = 0; row.kind != FieldKind::Check && i < fresh.count(row.id); ++i)
            EXPECT_EQ(project.fields.at(row.id, i).text(), fresh.at(row.id, i).text())
                << row.name.toUtf8().data() << ' ' << i;
    }
    for (const FieldGroup group : RepeatingGroups)
        EXPECT_EQ(project.fields.panelCount(group), fresh.panelCount(group));
}

TEST_F(NewProjectTest, the_index_is_emptied_after_the_last_layout_that_draws_it) {
    work();
    newProject.NewFile();
    EXPECT_GT(log.find("clear index"), log.find("LayoutMainElements 3"));
    EXPECT_GT(log.find("clear index"), log.find("whiten all"));
}

TEST_F(NewProjectTest, sets_the_named_defaults) {
    work();
    newProject.NewFile();
    const ProjectFields& fields = project.fields;
    EXPECT_EQ(fields.cboCountryStep1.text(), u"United States");
    EXPECT_EQ(fields.cboStateStep1.text(), u"AK");
    EXPECT_EQ(fields.cboInventorsNum.text(), u"1");
    EXPECT_EQ(fields.cboObjectNum.text(), u"4");
    EXPECT_EQ(fields.cboFiguresNum.text(), u"1");
    EXPECT_EQ(fields.cboFigureType(0).text(), u"SELECT A VIEW");
    EXPECT_EQ(fields.cboMainElementNum.text(), u"3");
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(fields.cboStateStep2(i).text(), u"AK") << i;
        EXPECT_EQ(fields.cboCitizenshipStep2(i).text(), u"United States") << i;
    }
}

TEST_F(NewProjectTest, keeps_the_check_box_and_clears_its_mark) {
    work();
    newProject.NewFile();
    EXPECT_EQ(project.fields.chkSameAsContact.text(), u"1");
    EXPECT_FALSE(project.fields.chkSameAsContact.isChanged());
}

TEST_F(NewProjectTest, leaves_nothing_to_be_saved) {
    work();
    newProject.NewFile();
    EXPECT_FALSE(GetSaveFlag(project.fields, project.state));
}

TEST_F(NewProjectTest, forgets_every_file_of_the_old_project_at_once) {
    work();
    log.during = [this](const std::string& call) {
        if (call == "remove picture 1") {
            EXPECT_EQ(project.state.projectFileName, u"/home/ann/easel.ivd");
        }
        if (call == "clear index") {
            const ProjectState& state = project.state;
            EXPECT_EQ(state.projectFileName + state.draftFileName + state.realFileName +
                          state.shadowFileName,
                      u"");
            EXPECT_FALSE(state.isDraftProject);
            EXPECT_FALSE(state.isRecovered);
            EXPECT_FALSE(state.isRefused);
        }
    };
    newProject.NewFile();
    EXPECT_EQ(project.state.projectFileName, u"");
}

TEST_F(NewProjectTest, is_resetting_from_the_counters_to_the_new_looks) {
    work();
    Calls resetting;
    log.during = [&](const std::string& call) {
        if (project.state.resetting)
            resetting.push_back(call);
    };
    newProject.NewFile();
    EXPECT_EQ(resetting, callsBetween("reset recent counters", "tab 9 looks incomplete"));
    EXPECT_FALSE(project.state.resetting);
}

TEST_F(NewProjectTest, is_a_command_at_work_while_it_waits) {
    log.during = [this](const std::string& call) {
        if (call == "wait") {
            EXPECT_EQ(project.state.commandsRunning, 1);
        }
    };
    newProject.NewFile();
    EXPECT_TRUE(log.has("wait"));
    EXPECT_EQ(project.state.commandsRunning, 0);
}

TEST_F(NewProjectTest, empties_the_fields_before_it_waits) {
    work();
    log.during = [this](const std::string& call) {
        if (call == "wait") {
            EXPECT_EQ(project.fields.txtOperation.text(), u"");
            EXPECT_FALSE(project.fields.txtOperation.isChanged());
            EXPECT_TRUE(project.state.saveFlag);
        }
    };
    newProject.NewFile();
    EXPECT_FALSE(project.state.saveFlag);
}

TEST_F(NewProjectTest, a_project_that_was_never_saved_has_no_marker) {
    newProject.NewFile();
    EXPECT_FALSE(log.has("clear open marker"));
}

TEST_F(NewProjectTest, reloads_a_dictionary_only_where_there_is_one) {
    newProject.NewFile();
    EXPECT_EQ(spelling.loaded, QStringList({u"/opt/Quillford/Dictionary/SpellUS.lex"_s}));
    spelling.has = false;
    newProject.NewFile();
    EXPECT_EQ(spelling.loaded.size(), 1);
}

TEST_F(NewProjectTest, the_welcome_page_stays_at_the_start_of_the_program) {
    screen.welcome = true;
    newProject.NewFile();
    EXPECT_TRUE(screen.welcome);
    newProject.NewFile();
    EXPECT_FALSE(screen.welcome);
}

TEST_F(NewProjectTest, a_welcome_page_that_is_not_shown_is_not_hidden) {
    work();
    newProject.NewFile();
    EXPECT_FALSE(log.has("hide Welcome page"));
}

TEST_F(NewProjectTest, ends_on_section_1_with_the_timer_running) {
    work();
    standOn(6);
    newProject.NewFile();
    EXPECT_EQ(project.state.currentTab, 0);
    EXPECT_EQ(project.state.fileOrigin, u"new");
    EXPECT_FALSE(project.state.draftCurrent);
    EXPECT_TRUE(screen.autoSave);
}

TEST_F(NewProjectTest, forgets_the_verdicts_on_the_old_project) {
    work();
    for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
        rules.setSectionStatus(tab, u"OK"_s);
    rules.setSectionStatus(8, u"OK"_s);
    standOn(8);
    newProject.NewFile();
    for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
        EXPECT_EQ(rules.tag(tab), u"") << tab;
    EXPECT_EQ(rules.tag(8), u"WARNING");
    EXPECT_TRUE(log.has("draft commands off"));
}

TEST_F(NewProjectTest, a_first_figure_without_a_view_makes_section_4_incomplete) {
    newProject.NewFile();
    EXPECT_EQ(project.fields.cboFigureType(0).text(), u"SELECT A VIEW");
    project.fields.txtAttachFig(0).setText(u"fig.png"_s);
    project.fields.txtFigureDetail(0).setText(u"a view"_s);
    rules.validateSection(3);
    EXPECT_EQ(rules.tag(3), u"WARNING");
    project.fields.cboFigureType(0).setText(u"front view"_s);
    rules.validateSection(3);
    EXPECT_EQ(rules.tag(3), u"OK");
}

TEST_F(NewProjectTest, a_project_without_a_figure_is_complete_in_section_4) {
    newProject.NewFile();
    project.fields.cboFiguresNum.setText(u"0"_s);
    rules.validateSection(3);
    EXPECT_EQ(rules.tag(3), u"OK");
}
