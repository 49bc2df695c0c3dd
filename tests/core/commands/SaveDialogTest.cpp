#include "core/commands/SaveDialog.h"

#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/FakeSettings.h"
#include "support/Files.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class SaveDialogTest : public testing::Test {
protected:
    SaveDialogTest() {
        folders.documents = home.path();
        workFolders.setLastDir(home.path());
    }

    /// Asks a user who looks at what stands in the dialog and cancels.
    QString proposal(const QString& extension) {
        prompts.filesToSave = {QString()};
        EXPECT_EQ(dialog.ask(extension), u"");
        return question().name;
    }

    QString choose(const QString& extension, const QString& path) {
        prompts.filesToSave = {path};
        return dialog.ask(extension);
    }

    const UserPrompts::FileQuestion& question() const { return prompts.fileQuestions.back(); }

    QTemporaryDir home;
    FakeSettings store;
    Settings settings{store};
    FakeFolders folders;
    WorkFolders workFolders{settings, folders};
    ProjectFields fields;
    FakePrompts prompts;
    SaveDialog dialog{fields, workFolders, prompts};
};

} // namespace

TEST_F(SaveDialogTest, a_project_is_named_after_its_file_number) {
    fields.txtFileNo.setText(u" QF-101 "_s);
    EXPECT_EQ(proposal(u"ivd"_s), u"Project - QF-101.ivd");
    EXPECT_EQ(question().folder, home.filePath(u"Quillford/Projects"_s));
    EXPECT_EQ(question().filterDescription, u"Quillford(.ivd)");
    EXPECT_EQ(question().filterPattern, u"*.ivd");
}

TEST_F(SaveDialogTest, a_final_draft_is_named_without_an_ending) {
    fields.txtFileNo.setText(u"QF-101"_s);
    EXPECT_EQ(proposal(u"doc"_s), u"Final - QF-101");
    EXPECT_EQ(question().filterDescription, u"Word Document(.doc)");
    EXPECT_EQ(question().filterPattern, u"*.doc");
    EXPECT_EQ(proposal(u"htm"_s), u"Final - QF-101");
    EXPECT_EQ(question().folder, home.filePath(u"Quillford/Projects/Final Projects"_s));
    EXPECT_EQ(question().filterDescription, u"html files(.htm)");
    EXPECT_EQ(question().filterPattern, u"*.htm");
}

TEST_F(SaveDialogTest, another_extension_has_no_name_and_a_filter_of_its_own) {
    fields.txtFileNo.setText(u"QF-101"_s);
    EXPECT_EQ(proposal(u"pdf"_s), u"");
    EXPECT_EQ(question().folder, home.filePath(u"Quillford/Projects/Final Projects"_s));
    EXPECT_EQ(question().filterDescription, u"pdf files");
    EXPECT_EQ(question().filterPattern, u"*.pdf");
}

TEST_F(SaveDialogTest, the_working_folder_is_made_before_it_is_shown) {
    EXPECT_EQ(proposal(u"ivd"_s), u"Project - 1.ivd");
    EXPECT_TRUE(QFileInfo(question().folder).isDir());
}

TEST_F(SaveDialogTest, without_a_file_number_the_first_free_one_is_taken) {
    fields.txtFileNo.setText(u"   "_s);
    EXPECT_EQ(proposal(u"ivd"_s), u"Project - 1.ivd");
    EXPECT_EQ(proposal(u"doc"_s), u"Final - 1.doc");
    EXPECT_EQ(proposal(u"htm"_s), u"Final - 1.html");
}

TEST_F(SaveDialogTest, ten_earlier_drafts_count_in_the_folder_used_last) {
    for (int i = 1; i <= 10; ++i)
        writeFile(home.filePath(u"Final - %1.doc"_s.arg(i)));
    EXPECT_EQ(proposal(u"doc"_s), u"Final - 11.doc");
}

TEST_F(SaveDialogTest, earlier_drafts_elsewhere_do_not_count) {
    for (int i = 1; i <= 10; ++i)
        writeFile(home.filePath(u"Quillford/Projects/Final Projects/Final - %1.doc"_s.arg(i)));
    EXPECT_EQ(proposal(u"doc"_s), u"Final - 1.doc");
}

TEST_F(SaveDialogTest, a_thousand_names_that_are_taken_leave_none) {
    for (int i = 1; i <= 1000; ++i)
        writeFile(home.filePath(u"Project - %1.ivd"_s.arg(i)));
    EXPECT_EQ(proposal(u"ivd"_s), u"");
}

TEST_F(SaveDialogTest, a_name_with_the_ending_comes_back_as_it_is) {
    EXPECT_EQ(choose(u"ivd"_s, u"/home/ann/easel.ivd"_s), u"/home/ann/easel.ivd");
    EXPECT_EQ(choose(u"ivd"_s, u"/home/ann/EASEL.IVD"_s), u"/home/ann/EASEL.IVD");
}

TEST_F(SaveDialogTest, a_name_with_another_ending_gets_this_one_behind_it) {
    EXPECT_EQ(choose(u"ivd"_s, u"/home/ann/easel"_s), u"/home/ann/easel.ivd");
    EXPECT_EQ(choose(u"doc"_s, u"/home/ann/easel.docx"_s), u"/home/ann/easel.docx.doc");
    EXPECT_EQ(choose(u"doc"_s, u"/home/ann/doc"_s), u"/home/ann/doc.doc");
}

TEST_F(SaveDialogTest, a_name_that_is_in_use_only_with_its_ending_is_asked_about_too) {
    const QString typed = home.filePath(u"easel 2.0"_s);
    writeFile(typed + u".ivd"_s);
    prompts.yesNoAnswers = {true};
    EXPECT_EQ(choose(u"ivd"_s, typed), typed + u".ivd"_s);
    EXPECT_EQ(prompts.boxes, std::vector({FakePrompts::Box{
                                 UserPrompts::Icon::Exclamation, u"Save As"_s,
                                 u"easel 2.0.ivd already exists.\nDo you want to replace it?"_s}}));
}

TEST_F(SaveDialogTest, a_name_that_is_not_to_be_replaced_is_asked_for_again) {
    writeFile(home.filePath(u"easel.ivd"_s));
    prompts.yesNoAnswers = {false, false};
    prompts.filesToSave = {home.filePath(u"easel"_s), home.filePath(u"easel"_s),
                           home.filePath(u"stand"_s)};
    EXPECT_EQ(dialog.ask(u"ivd"_s), home.filePath(u"stand.ivd"_s));
    EXPECT_EQ(prompts.fileQuestions.size(), 3U);
}

TEST_F(SaveDialogTest, the_proposed_html_name_comes_back_with_both_endings) {
    const QString name = proposal(u"htm"_s);
    EXPECT_EQ(choose(u"htm"_s, u"/home/ann/"_s + name), u"/home/ann/Final - 1.html.htm");
}

TEST_F(SaveDialogTest, an_ending_of_another_length_is_never_found) {
    EXPECT_EQ(choose(u"html"_s, u"/home/ann/easel.html"_s), u"/home/ann/easel.html.html");
}

TEST_F(SaveDialogTest, cancelling_gives_nothing) {
    EXPECT_EQ(choose(u"ivd"_s, {}), u"");
}

TEST_F(SaveDialogTest, a_file_number_with_a_separator_stays_within_the_folder) {
    fields.txtFileNo.setText(u"../2026/7"_s);
    EXPECT_EQ(proposal(u"ivd"_s), u"Project - ..-2026-7.ivd");
}

TEST_F(SaveDialogTest, a_project_among_the_working_copies_is_refused_until_another_is_chosen) {
    prompts.filesToSave = {u"/home/ann/Quillford/Drafts/a.ivd"_s, u"/x/Drafts/b"_s,
                           u"/home/ann/Quillford/Projects/a.ivd"_s};
    EXPECT_EQ(dialog.askForProject(), u"/home/ann/Quillford/Projects/a.ivd");
    const FakePrompts::Box warning{
        UserPrompts::Icon::None, u"Potential Data Loss Detected!"_s,
        u"It looks like you may be trying to save your project in the temporary \"Drafts\" folder, which means you may experience data loss. It is highly recommended you save projects in the \"Projects\" folder only."_s};
    EXPECT_EQ(prompts.boxes, std::vector({warning, warning}));
}

TEST_F(SaveDialogTest, a_user_who_is_refused_may_cancel) {
    prompts.filesToSave = {u"/home/ann/Quillford/Drafts/a.ivd"_s, {}};
    EXPECT_EQ(dialog.askForProject(), u"");
    EXPECT_EQ(prompts.boxes.size(), 1U);
}
