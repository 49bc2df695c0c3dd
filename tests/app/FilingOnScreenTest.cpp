#include "app/ProgramFixture.h"
#include "support/Files.h"

#include <QLabel>
#include <QTextDocumentFragment>

using namespace quillford;

namespace {

class FilingOnScreenTest : public ProgramFixture {
protected:
    /// Whether the file holds the sample as it was copied.
    [[nodiscard]] static bool sampleStands(const QString& path) {
        return contentOf(path) == contentOf(QStringLiteral(QUILLFORD_SAMPLE_PROJECT));
    }
};

} // namespace

TEST_F(FilingOnScreenTest, a_killed_program_shows_its_new_project_as_recovered) {
    startWithNewProject();
    type(u"txtInventionTitle"_s, u"Easel"_s);
    letTimerSave();
    EXPECT_EQ(draftFiles(), QStringList{u"Draft -  1.ivd"_s});
    kill();
    start();
    click(u"lblRecentPatents(1)"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"Easel"_s);
}

TEST_F(FilingOnScreenTest, an_empty_list_has_no_lines_in_the_menu) {
    start();
    openFileMenu([this] {
        EXPECT_FALSE(menuEntry(u"mnuFileLine4"_s).isVisible());
        EXPECT_FALSE(menuEntry(u"mnuFileRecent(0)"_s).isVisible());
    });
}

TEST_F(FilingOnScreenTest, the_menu_has_lines_around_the_recent_projects) {
    start({sampleProject()});
    QStringList names;
    openFileMenu([&] {
        for (const QAction* entry : control<QMenu>(u"mnuFile"_s).actions())
            if (entry->isVisible())
                names.append(entry->objectName());
    });
    const qsizetype print = names.indexOf(u"mnuFilePrint"_s);
    EXPECT_EQ(names.mid(print + 1, 4),
              (QStringList{u"mnuFileLine4"_s, u"mnuFileRecent(1)"_s, u"mnuFileRecent(0)"_s,
                           u"mnuGotoWelcomePage"_s}));
}

TEST_F(FilingOnScreenTest, a_recent_project_is_opened_from_the_menu_that_it_changes) {
    start({sampleProject(u"first.ivd"_s)});
    whenAskedForFile(sampleProject(u"second.ivd"_s));
    choose(u"mnuFileOpen"_s);
    EXPECT_EQ(menuEntry(u"mnuFileRecent(2)"_s).text(), u"&2 - first"_s);
    choose(u"mnuFileRecent(2)"_s);
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - first.ivd"_s);
    EXPECT_EQ(menuEntry(u"mnuFileRecent(1)"_s).text(), u"&1 - first"_s);
    EXPECT_EQ(menuEntry(u"mnuFileRecent(2)"_s).text(), u"&2 - second"_s);
}

TEST_F(FilingOnScreenTest, a_name_that_looks_like_markup_is_shown_as_it_stands) {
    start({sampleProject(u"<b>x<b>.ivd"_s)});
    const QString tip = control(u"lblCaption"_s).toolTip();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tip).toPlainText(), u"Quillford 3.1 - <b>x<b>.ivd"_s);
}

TEST_F(FilingOnScreenTest, exit_answered_no_gives_the_file_back_as_it_was_opened) {
    const QString path = sampleProject();
    start({path});
    type(u"txtInventionTitle"_s, u" of mine"_s);
    letTimerSave();
    EXPECT_FALSE(sampleStands(path)) << "the timer saves into the project's own file";
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    EXPECT_TRUE(form().close());
    EXPECT_TRUE(sampleStands(path));
    EXPECT_TRUE(draftFiles().isEmpty()) << "the shadow copy is gone";
    kill();
    start();
    EXPECT_EQ(menuEntry(u"mnuFileRecent(1)"_s).text(), u"&1 - easel"_s);
}

TEST_F(FilingOnScreenTest, exit_cancelled_keeps_the_window_open_and_the_project_changed) {
    const QString path = sampleProject();
    start({path});
    type(u"txtInventionTitle"_s, u" of mine"_s);
    whenAsked(u"Save Project?"_s, QMessageBox::Cancel);
    EXPECT_FALSE(form().close());
    EXPECT_TRUE(form().isVisible());
    letTimerSave();
    EXPECT_FALSE(sampleStands(path));
}

TEST_F(FilingOnScreenTest, a_new_project_that_is_given_up_leaves_neither_file_nor_entry) {
    startWithNewProject();
    type(u"txtInventionTitle"_s, u"Easel"_s);
    letTimerSave();
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    EXPECT_TRUE(form().close());
    EXPECT_TRUE(draftFiles().isEmpty());
    kill();
    start();
    EXPECT_FALSE(form().findChild<QAction*>(u"mnuFileRecent(1)"_s));
}

TEST_F(FilingOnScreenTest, save_gives_a_new_project_a_name_and_drops_its_working_copy) {
    startWithNewProject();
    type(u"txtInventionTitle"_s, u"Easel"_s);
    letTimerSave();
    whenAskedForFile(drafts() + u"/mine"_s);
    whenAsked(u"Potential Data Loss Detected!"_s, QMessageBox::Ok);
    whenAskedForFile(place(u"mine"_s));
    QTest::keyClick(&form(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(place(u"mine.ivd"_s)));
    EXPECT_TRUE(draftFiles().isEmpty());
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - mine.ivd"_s);
    EXPECT_EQ(menuEntry(u"mnuFileRecent(1)"_s).text(), u"&1 - mine"_s);
    EXPECT_TRUE(form().close()) << "nobody is asked";
}

TEST_F(FilingOnScreenTest, the_welcome_page_leaves_nothing_to_save_or_export) {
    start({sampleProject()});
    openFileMenu([this] {
        for (const QString& entry : {u"mnuFileSave"_s, u"mnuFileSaveAs"_s, u"mnuGotoWelcomePage"_s,
                                     u"mnuFileExportToWord"_s, u"mnuFilePrint"_s})
            EXPECT_TRUE(menuEntry(entry).isEnabled()) << qPrintable(entry);
    });
    choose(u"mnuGotoWelcomePage"_s);
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1"_s);
    EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_FALSE(control<QTimer>(u"tmrAutoSave"_s).isActive());
    openFileMenu([this] {
        for (const QString& entry :
             {u"mnuFileSave"_s, u"mnuFileSaveAs"_s, u"mnuGotoWelcomePage"_s,
              u"mnuFileExportToWord"_s, u"mnuFileExportToHTML"_s, u"mnuFilePrint"_s})
            EXPECT_FALSE(menuEntry(entry).isEnabled()) << qPrintable(entry);
    });
    EXPECT_EQ(control<QLabel>(u"lblRecentPatents(1)"_s).text(), u"QF-101 (Folding Field Easel)"_s);
    QTest::keyClick(&form(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible()) << "the key follows the entry";
}
