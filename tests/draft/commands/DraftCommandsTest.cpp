#include "draft/commands/DraftCommands.h"

#include "draft/commands/DraftFixture.h"
#include "draft/compose/WordTemplateText.h"
#include "support/FakeDocumentOpener.h"
#include "support/FakeSaveStateLine.h"
#include "support/FakeWordProcessor.h"

using namespace quillford;

namespace {

using Answer = ExportCheck::Answer;
using Icon = UserPrompts::Icon;

class ScriptedCheck final : public ExportCheck {
public:
    Outcome outcome;
    int shown = 0;

    Outcome showVerify() override {
        ++shown;
        return outcome;
    }
};

class DraftCommandsTest : public DraftFixture {
protected:
    DraftCommandsTest() {
        const QString picture = place(u"fig1.png"_s);
        writeFile(picture);
        project.fields.txtAttachFig(0).setText(picture);
        word.templateText = wordTemplateText();
        system.wordInstalled = true;
        state.verifyPassed = true;
    }

    [[nodiscard]] QByteArray page() const { return contentOf(place(u"draft.htm"_s)); }

    ScriptedCheck check;
    ExportFormat exportFormat = ExportFormat::None;
    WorkFolders workFolders{settings, folders};
    SaveDialog saveDialog{project.fields, workFolders, prompts};
    FakeSaveStateLine saveState;
    FakeWordProcessor word;
    FakeDocumentOpener opener;
    DraftCommands commands{{project, system, exportFormat, check, navigator, screen.all, saveState,
                            saveDialog, word, opener, folders, prompts, clock}};
};

} // namespace

TEST_F(DraftCommandsTest, a_project_that_has_passed_is_exported_at_once) {
    prompts.filesToSave = {place(u"draft.htm"_s)};
    commands.mnuFileExportToHTML();
    EXPECT_EQ(check.shown, 0);
    EXPECT_TRUE(page().contains("widget holder"));
    EXPECT_FALSE(page().contains("onselectstart"));
    EXPECT_EQ(opener.opened, QStringList{place(u"draft.htm"_s)});
    EXPECT_EQ(calls(), (Calls{"hourglass", "default pointer"}));
    EXPECT_TRUE(clock.waits.empty());
}

TEST_F(DraftCommandsTest, the_buttons_export_in_their_formats) {
    prompts.filesToSave = {place(u"draft.htm"_s), place(u"draft.doc"_s)};
    commands.imgCreateToFile(2);
    commands.imgCreateToFile(1);
    EXPECT_EQ(opener.opened, (QStringList{place(u"draft.htm"_s), place(u"draft.doc"_s)}));
    EXPECT_TRUE(QFile::exists(place(u"draft.doc"_s)));
}

TEST_F(DraftCommandsTest, the_menu_exports_a_word_document) {
    prompts.filesToSave = {place(u"draft.doc"_s)};
    commands.mnuFileExportToWord();
    EXPECT_TRUE(QFile::exists(place(u"draft.doc"_s)));
    EXPECT_EQ(opener.opened, QStringList{place(u"draft.doc"_s)});
}

TEST_F(DraftCommandsTest, the_dialogs_start_where_exported_drafts_lie) {
    prompts.filesToSave = {QString(), QString()};
    commands.CreateToHtml();
    commands.CreateToWord();
    ASSERT_EQ(prompts.fileQuestions.size(), 2U);
    EXPECT_EQ(prompts.fileQuestions[0].filterPattern, u"*.htm"_s);
    EXPECT_EQ(prompts.fileQuestions[1].filterPattern, u"*.doc"_s);
    EXPECT_TRUE(prompts.fileQuestions[0].folder.endsWith(u"/Projects/Final Projects"));
    EXPECT_TRUE(opener.opened.isEmpty());
    EXPECT_TRUE(calls().empty()) << "a cancelled dialog ends a command without a word";
}

TEST_F(DraftCommandsTest, the_button_tells_that_there_is_no_word_processor) {
    system.wordInstalled = false;
    commands.imgCreateToFile(1);
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, u"Microsoft Office Exporting Problem"_s);
    EXPECT_EQ(prompts.boxes[0].text,
              u"You perhaps did not install Office or use Office 2010 via the 'Click-to-Run' "
              "installation method which utilizes virtualization technologies not compatible with "
              "Quillford. Please install Office or Office 2010 without using 'Click-to-Run' to "
              "resolve this issue."_s);
    EXPECT_EQ(check.shown, 0);
    EXPECT_EQ(exportFormat, ExportFormat::None);
}

TEST_F(DraftCommandsTest, the_menu_tells_it_in_other_words) {
    system.wordInstalled = false;
    commands.mnuFileExportToWord();
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, u"Microsoft Word Required to Export"_s);
    EXPECT_EQ(prompts.boxes[0].text,
              u"You are attempting to export to Microsoft Word. This feature is available on "
              "Quillford only if you have Microsoft Word installed on your computer. Please "
              "install Microsoft Word on your computer and then you will be able to export to "
              "Microsoft Word."_s);
    EXPECT_EQ(check.shown, 0);
}

TEST_F(DraftCommandsTest, the_check_stands_before_an_export) {
    state.verifyPassed = false;
    for (const Answer answer : {Answer::Skip, Answer::Continue}) {
        check.outcome.answer = answer;
        prompts.filesToSave = {place(u"draft.htm"_s)};
        commands.imgCreateToFile(2);
        EXPECT_EQ(exportFormat, ExportFormat::Html);
    }
    EXPECT_EQ(check.shown, 2);
    EXPECT_EQ(opener.opened.size(), 2);
    EXPECT_EQ(clock.now, 1000 + 2 * 1000) << "a second before each export";
}

TEST_F(DraftCommandsTest, cancelling_the_check_clears_the_format_and_writes_nothing) {
    state.verifyPassed = false;
    check.outcome.answer = Answer::Cancel;
    commands.imgCreateToFile(2);
    EXPECT_EQ(exportFormat, ExportFormat::None);
    EXPECT_TRUE(prompts.fileQuestions.empty());
    EXPECT_TRUE(opener.opened.isEmpty());
}

TEST_F(DraftCommandsTest, returning_to_the_project_keeps_the_format_and_writes_nothing) {
    state.verifyPassed = false;
    check.outcome.answer = Answer::Return;
    commands.imgCreateToFile(1);
    EXPECT_EQ(exportFormat, ExportFormat::Word);
    EXPECT_TRUE(prompts.fileQuestions.empty());
}

TEST_F(DraftCommandsTest, the_check_leads_into_a_cell_of_the_tables) {
    state.verifyPassed = false;
    check.outcome = {Answer::GoToCell, FieldId::txtElementSub1, 1};
    commands.imgCreateToFile(2);
    EXPECT_EQ(state.currentTab, 5);
    EXPECT_EQ(exportFormat, ExportFormat::Html) << "what was chosen stays";
    EXPECT_EQ(Calls(log.calls.end() - 3, log.calls.end()),
              (Calls{"TextHighLight 5", "into view txtElementSub1 1", "focus txtElementSub1"}));
    EXPECT_TRUE(prompts.fileQuestions.empty());
}

TEST_F(DraftCommandsTest, a_format_that_the_check_took_back_is_not_exported) {
    state.verifyPassed = false;

    struct Clearing final : ExportCheck {
        explicit Clearing(ExportFormat& waiting) : format(waiting) {}

        Outcome showVerify() override {
            format = ExportFormat::None;
            return {Answer::Continue, {}, 0};
        }

        ExportFormat& format;
    } clearing(exportFormat);

    DraftCommands({project, system, exportFormat, clearing, navigator, screen.all, saveState,
                   saveDialog, word, opener, folders, prompts, clock})
        .mnuFileExportToHTML();
    EXPECT_TRUE(prompts.fileQuestions.empty());
}

TEST_F(DraftCommandsTest, the_window_of_formats_leads_to_one_export) {
    state.verifyPassed = false;
    check.outcome.answer = Answer::Continue;
    prompts.exportChoices = {UserPrompts::ExportChoice::Html, UserPrompts::ExportChoice::Cancel};
    prompts.filesToSave = {place(u"draft.htm"_s)};
    commands.exportToFile();
    EXPECT_EQ(check.shown, 1);
    EXPECT_EQ(opener.opened.size(), 1);
    commands.exportToFile();
    EXPECT_EQ(exportFormat, ExportFormat::None);
    EXPECT_EQ(check.shown, 1);
}

TEST_F(DraftCommandsTest, an_open_document_is_not_written) {
    word.openDocuments = {place(u"draft.doc"_s)};
    prompts.filesToSave = {place(u"draft.doc"_s)};
    commands.CreateToWord();
    EXPECT_EQ(prompts.boxes,
              (std::vector<FakePrompts::Box>{
                  {Icon::Information, u"Information"_s,
                   u"The word document is already existed and be opened. Please close it or choose "
                   "another fileName."_s}}));
    EXPECT_FALSE(QFile::exists(place(u"draft.doc"_s)));
    EXPECT_TRUE(calls().empty());
}

TEST_F(DraftCommandsTest, a_file_that_cannot_be_made_is_told_in_the_line_alone_and_not_opened) {
    prompts.filesToSave = {place(u"missing/draft.htm"_s), place(u"draft.doc"_s)};
    commands.CreateToHtml();
    EXPECT_EQ(saveState.text, u"not exported: folder does not exist"_s);
    word.failingOperation = 3;
    commands.CreateToWord();
    EXPECT_TRUE(saveState.text.startsWith(u"not exported: "_s));
    EXPECT_NE(saveState.text, u"not exported: folder does not exist"_s);
    EXPECT_TRUE(opener.opened.isEmpty());
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_EQ(calls(), (Calls{"hourglass", "default pointer", "hourglass", "default pointer"}));
}

TEST_F(DraftCommandsTest, a_file_that_is_made_takes_back_what_the_line_told_of_an_export_alone) {
    const QString missing = place(u"missing/draft.htm"_s);
    const QString page = place(u"draft.htm"_s);
    prompts.filesToSave = {missing, missing, page, missing, page, page};
    saveState.text = u"saved 14:02"_s;
    commands.CreateToHtml();
    commands.CreateToHtml();
    EXPECT_EQ(saveState.text, u"not exported: folder does not exist"_s);
    commands.CreateToHtml();
    EXPECT_EQ(saveState.text, u"saved 14:02"_s);
    commands.CreateToHtml();
    saveState.text = u"not saved: disk full"_s;
    commands.CreateToHtml();
    EXPECT_EQ(saveState.text, u"not saved: disk full"_s);
    saveState.text = u"saved 14:05"_s;
    commands.CreateToHtml();
    EXPECT_EQ(saveState.text, u"saved 14:05"_s);
}

TEST_F(DraftCommandsTest, a_document_without_a_program_has_the_user_asked) {
    opener.result = DocumentOpener::Result::NoProgram;
    prompts.filesToSave = {place(u"draft.htm"_s)};
    commands.CreateToHtml();
    EXPECT_EQ(opener.askedFor, QStringList{place(u"draft.htm"_s)});
}

TEST_F(DraftCommandsTest, the_proposed_name_has_the_first_number_free_in_the_folder_used_last) {
    project.fields.txtFileNo.setText(QString());
    QDir().mkpath(place(u"last"_s));
    workFolders.setLastDir(place(u"last"_s));
    for (int i = 1; i <= 10; ++i)
        writeFile(place(u"last/Final - %1.doc"_s.arg(i)));
    prompts.filesToSave = {QString(), QString()};
    commands.CreateToWord();
    EXPECT_EQ(prompts.fileQuestions.back().name, u"Final - 11.doc"_s);
    workFolders.setLastDir(home.path());
    commands.CreateToWord();
    EXPECT_EQ(prompts.fileQuestions.back().name, u"Final - 1.doc"_s);
}
