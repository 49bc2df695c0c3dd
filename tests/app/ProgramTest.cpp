#include "app/ProgramFixture.h"
#include "controls/HtmlView.h"

using namespace quillford;

namespace {

class ProgramTest : public ProgramFixture {
protected:
    /// The sample under another name, which the start is given as an argument.
    void startWith(const QString& name) {
        start({sampleProject(name)});
        expectSampleIsOpen(name);
    }

    void expectSampleIsOpen(const QString& name) {
        EXPECT_FALSE(control(u"picWelcomePage"_s).isVisible());
        EXPECT_EQ(line(u"txtInventionTitle"_s).text(), u"Folding Field Easel"_s)
            << qPrintable(name);
        EXPECT_EQ(control<TextField>(u"txtElementDes(3)"_s).toPlainText().isEmpty(), false);
    }

    /// Starts with a file that is not there: a box, and no form.
    void expectMissing(const QString& argument) {
        Program program;
        user.meets<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), u"Error"_s);
            EXPECT_EQ(box.text(), u"File \""_s + argument + u"\" does not exists"_s);
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            box.accept();
        });
        EXPECT_FALSE(program.start({argument}));
        EXPECT_FALSE(program.window());
    }
};

} // namespace

TEST_F(ProgramTest, a_start_without_a_file_shows_the_welcome_page_over_a_new_project) {
    start();
    EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_TRUE(control(u"picWelcomePage"_s).isEnabled());
    EXPECT_FALSE(panel(0).isEnabled());
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1"_s);
    EXPECT_EQ(currentTab(), 0);
    EXPECT_TRUE(control<QTimer>(u"tmrAutoSave"_s).parent() == &form());
}

TEST_F(ProgramTest, a_new_project_begins_with_the_cursor_in_the_file_number) {
    startWithNewProject();
    EXPECT_FALSE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_TRUE(panel(0).isEnabled());
    EXPECT_TRUE(line(u"txtFileNo"_s).hasFocus());
    EXPECT_TRUE(control<QTimer>(u"tmrAutoSave"_s).isActive());
}

TEST_F(ProgramTest, a_start_with_a_project_skips_the_welcome_page) {
    startWith(u"easel.ivd"_s);
}

TEST_F(ProgramTest, a_path_may_hold_blanks_quotes_and_any_letters) {
    startWith(u"my easel.ivd"_s);
    startWith(u"the \"best\" 'easel'.ivd"_s);
    startWith(u"Rößler 画架 é.ivd"_s);
    startWith(u"50% #1 & <b>.ivd"_s);
}

TEST_F(ProgramTest, a_path_with_blanks_opens_also_when_it_comes_in_pieces) {
    const QString path = sampleProject(u"my easel.ivd"_s);
    start(path.split(u' '));
    expectSampleIsOpen(path);
}

TEST_F(ProgramTest, a_name_without_a_folder_is_taken_from_where_the_user_is) {
    const QString path = sampleProject();
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(path).path());
    start({QFileInfo(path).fileName()});
    QDir::setCurrent(before);
    expectSampleIsOpen(u"easel.ivd"_s);
}

TEST_F(ProgramTest, a_file_that_is_missing_is_told_and_no_form_comes) {
    expectMissing(place(u"missing.ivd"_s));
    expectMissing(place(u"<b>x</b>.ivd"_s));
    expectMissing(qEnvironmentVariable("HOME"));
}

TEST_F(ProgramTest, the_association_alone_ends_without_a_window) {
    Program program;
    EXPECT_FALSE(program.start({u"SetFileAssociation"_s}));
    EXPECT_FALSE(program.window());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(ProgramTest, the_association_in_other_letters_is_the_name_of_a_file) {
    expectMissing(u"setfileassociation"_s);
    expectMissing(u"SetFileAssociation "_s);
}

TEST_F(ProgramTest, a_program_folder_without_help_tells_which_page_is_missing) {
    start();
    EXPECT_TRUE(
        control<HtmlView>(u"webHelpOn"_s).toPlainText().contains(u"help/Section 1/index.htm"_s));
}

TEST_F(ProgramTest, a_program_folder_without_a_dictionary_marks_no_word_and_takes_every_key) {
    startWithNewProject();
    QTest::keyClicks(&line(u"txtInventionTitle"_s), u"esael"_s);
    EXPECT_EQ(line(u"txtInventionTitle"_s).text(), u"esael"_s);
}

TEST_F(ProgramTest, a_project_that_was_opened_is_offered_at_the_next_start) {
    startWithSample();
    form().close();
    start();
    EXPECT_TRUE(control(u"lblRecentPatents(1)"_s).isVisible());
    click(u"lblRecentPatents(1)"_s);
    expectSampleIsOpen(place(u"easel.ivd"_s));
}

TEST_F(ProgramTest, a_recent_project_whose_file_is_gone_leaves_the_program_standing) {
    startWithSample();
    form().close();
    start();
    ASSERT_TRUE(QFile::remove(place(u"easel.ivd"_s)));
    user.meets<QMessageBox>([](QMessageBox& box) { box.accept(); });
    click(u"lblRecentPatents(1)"_s);
    EXPECT_TRUE(form().isVisible());
}
