#include "core/commands/ProgramStart.h"

#include "core/settings/SettingsNames.h"
#include "support/CallLog.h"
#include "support/FakeFileTypes.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/FakeSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class RecordingStage final : public StartStage {
public:
    explicit RecordingStage(CallLog& log) : log_(log) {}

    void loadForm() override { log_.take("load form"); }

    void NewFile() override { log_.take("NewFile"); }

    void OpenFile(const QString& path) override { log_.take("OpenFile " + path.toStdString()); }

    void showWelcomePage() override { log_.take("show Welcome page"); }

    void showForm() override { log_.take("show form"); }

private:
    CallLog& log_;
};

/// Settings that write down when the association is asked for.
class WatchedSettings final : public SettingsStore {
public:
    explicit WatchedSettings(CallLog& log) : log_(log) {}

    void look(const Look& step) const override { values_.look(step); }

    void change(const Change& step) override {
        values_.change(step);
        log_.take("registerFileType");
    }

private:
    FakeSettings values_;
    CallLog& log_;
};

class ProgramStartTest : public testing::Test {
protected:
    ProgramStart::Outcome start(const QStringList& arguments, bool wordInstalled = false) {
        return program.startProgram(arguments, wordInstalled);
    }

    QString existingFile(const QString& name) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    bool isAssociated() {
        return settings.regKeyExists(u".ivd") && settings.regKeyExists(u"ivdfile");
    }

    QTemporaryDir folder;
    CallLog log;
    mdlSystem system;
    WatchedSettings store{log};
    Settings settings{store};
    FakeFolders folders;
    FakeFileTypes fileTypes;
    FileAssociation association{settings, folders, fileTypes};
    FakePrompts prompts;
    RecordingStage stage{log};
    ProgramStart program{system, settings, folders, association, prompts, stage};
};

constexpr auto Ends = ProgramStart::Outcome::Ends;
constexpr auto Runs = ProgramStart::Outcome::Runs;

} // namespace

TEST_F(ProgramStartTest, without_arguments_the_welcome_page_is_shown) {
    EXPECT_EQ(start({}), Runs);
    EXPECT_EQ(log.calls, Calls({"registerFileType", "registerFileType", "load form", "NewFile",
                                "show Welcome page", "show form"}));
    EXPECT_TRUE(isAssociated());
}

TEST_F(ProgramStartTest, a_project_is_opened_without_the_welcome_page) {
    const QString path = existingFile(u"easel.ivd"_s);
    EXPECT_EQ(start({path}), Runs);
    EXPECT_EQ(log.calls, Calls({"registerFileType", "load form", "NewFile",
                                "OpenFile " + path.toStdString(), "show form"}));
    EXPECT_EQ(system.commandLine, path);
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(ProgramStartTest, a_path_with_blanks_is_one_name_however_it_is_passed) {
    const QString path = existingFile(u"my folding easel.ivd"_s);
    EXPECT_EQ(start({path}), Runs);
    EXPECT_EQ(start(path.split(u' ')), Runs);
    EXPECT_EQ(std::count(log.calls.begin(), log.calls.end(), "OpenFile " + path.toStdString()), 2);
}

TEST_F(ProgramStartTest, a_name_in_the_current_folder_is_opened_by_its_full_path) {
    const QString before = QDir::currentPath();
    existingFile(u"easel.ivd"_s);
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    const QString path = QDir::current().absoluteFilePath(u"easel.ivd"_s);
    EXPECT_EQ(start({u"easel.ivd"_s}), Runs);
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_TRUE(log.has("OpenFile " + path.toStdString()));
    EXPECT_EQ(system.commandLine, u"easel.ivd");
}

TEST_F(ProgramStartTest, a_file_that_does_not_exist_ends_the_program_with_a_box) {
    EXPECT_EQ(start({u"/nowhere/my"_s, u"easel.ivd"_s}), Ends);
    EXPECT_FALSE(log.has("load form"));
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes.front(),
              (FakePrompts::Box{UserPrompts::Icon::Exclamation, u"Error"_s,
                                u"File \"/nowhere/my easel.ivd\" does not exists"_s}));
}

TEST_F(ProgramStartTest, a_folder_is_no_file) {
    EXPECT_EQ(start({folder.path()}), Ends);
    EXPECT_EQ(prompts.boxes.size(), 1U);
}

TEST_F(ProgramStartTest, the_installers_call_associates_and_ends_without_a_word) {
    EXPECT_EQ(start({u"SetFileAssociation"_s}), Ends);
    EXPECT_TRUE(isAssociated());
    EXPECT_EQ(log.calls, Calls({"registerFileType"}));
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(ProgramStartTest, the_installers_call_in_another_case_or_with_a_blank_is_a_file_name) {
    for (const auto& name : {u"setfileassociation"_s, u"SetFileAssociation "_s}) {
        EXPECT_EQ(start({name}), Ends);
        EXPECT_EQ(prompts.boxes.back().text, u"File \"%1\" does not exists"_s.arg(name));
    }
    EXPECT_EQ(prompts.boxes.size(), 2U);
}

TEST_F(ProgramStartTest, sets_the_values_of_the_whole_program) {
    settings.setFlag(settingsNames::ShowMsgTab, true);
    system.tabSwitchCount = 5;
    system.msgAnswerYes = true;
    EXPECT_EQ(start({}, true), Runs);
    EXPECT_EQ(system.appFolder, u"/nowhere/Quillford/");
    EXPECT_EQ(system.commandLine, u"");
    EXPECT_TRUE(system.showmsgTab);
    EXPECT_FALSE(system.showmsgFigure);
    EXPECT_EQ(system.tabSwitchCount, 0);
    EXPECT_FALSE(system.msgAnswerYes);
    EXPECT_TRUE(system.wordInstalled);
}

TEST_F(ProgramStartTest, a_root_folder_has_its_separator_already) {
    folders.program = u"/quillford"_s;
    EXPECT_EQ(start({}), Runs);
    EXPECT_EQ(system.appFolder, u"/");
}

TEST_F(ProgramStartTest, the_values_are_set_before_the_form_is_loaded) {
    settings.setFlag(settingsNames::ShowMsgFigure, true);
    log.during = [this](const std::string& call) {
        if (call == "load form") {
            EXPECT_TRUE(system.showmsgFigure && !system.appFolder.isEmpty());
        }
    };
    EXPECT_EQ(start({}), Runs);
}
