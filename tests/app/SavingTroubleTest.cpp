#include "app/ProgramFixture.h"
#include "core/settings/Settings.h"
#include "core/settings/SettingsNames.h"
#include "persistence/project/ProjectReader.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/LinuxFolders.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/SmallDisk.h"
#include "support/Themed.h"

#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>

using namespace quillford;

namespace {

/// What a user sees, and what is left of what he wrote, when the disk or the files on it are not as
/// the program left them.
class SavingTroubleTest : public ProgramFixture {
protected:
    static constexpr int MuchText = 60000;

    /// The user writes so much that it needs room on the disk.
    void write(const QString& text) {
        control<QPlainTextEdit>(u"txtOperation"_s).appendPlainText(text);
        written_ = shown(u"txtOperation"_s);
    }

    void writeMuch() { write(u"It turns."_s.repeated(MuchText / 9)); }

    [[nodiscard]] QString saveState() { return control<QLabel>(u"lblSaveState"_s).text(); }

    /// Nothing that was written is gone from the screen, and the next letter stands there too.
    void expectTypingGoesOn() {
        EXPECT_TRUE(shown(u"txtOperation"_s) == written_);
        const QString before = shown(u"txtCompany"_s);
        type(u"txtCompany"_s, u"x"_s);
        EXPECT_EQ(shown(u"txtCompany"_s).size(), before.size() + 1);
    }

    void expectNotSaved(const QString& reason) {
        EXPECT_EQ(saveState(), u"not saved: "_s + reason);
        expectTypingGoesOn();
    }

    /// The next save of the timer brings all that is on the screen into the file.
    void expectTimerSaves(const QString& path) {
        letTimerSave();
        EXPECT_TRUE(saveState().startsWith(u"saved "_s)) << qPrintable(saveState());
        expectHolds(path);
    }

    void expectHolds(const QString& path) {
        Project read;
        ASSERT_NO_THROW(readProject(path, read)) << qPrintable(path);
        QString operation = read.fields.txtOperation.text();
        EXPECT_TRUE(operation.remove(u'\r') == written_);
        EXPECT_EQ(read.fields.txtCompany.text(), shown(u"txtCompany"_s));
    }

    void save() { QTest::keyClick(&form(), Qt::Key_S, Qt::ControlModifier); }

    void expectBox(const QString& text) {
        whenAsked(u"Error"_s, [text](QDialog& dialog) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).text(), text);
            dialog.accept();
        });
    }

    void expectNotFoundBox() {
        whenAsked(u"File Does Not Exist or Has Been Renamed"_s, QMessageBox::Ok);
    }

    /// The list of recent projects as an earlier run has left it.
    static void list(const QStringList& entries) {
        FileSettingsStore store(LinuxFolders().configurationFolder() + u"/settings"_s);
        Settings settings(store);
        for (int i = 0; i < entries.size(); ++i)
            settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file%1"_s.arg(i + 1),
                              entries[i]);
    }

    [[nodiscard]] QString row(int number) {
        return control<QLabel>(u"lblRecentPatents(%1)"_s.arg(number)).text();
    }

private:
    const Themed theme_;
    QString written_;
};

} // namespace

// A full disk

TEST_F(SavingTroubleTest, a_disk_that_fills_up_is_told_and_the_timer_saves_once_there_is_room) {
    const QString path = sampleProject();
    start({path});
    writeMuch();
    {
        const FullDisk full(static_cast<rlim_t>(QFileInfo(path).size()) + 2000);
        letTimerSave();
        expectNotSaved(u"disk full"_s);
        letTimerSave();
        expectNotSaved(u"disk full"_s);
    }
    Project read;
    EXPECT_NO_THROW(readProject(path, read)) << "the file opens all the same";
    EXPECT_EQ(read.fields.txtInventionTitle.text(), u"Folding Field Easel"_s);
    expectTimerSaves(path);
}

TEST_F(SavingTroubleTest, a_disk_that_is_really_full_is_told_too) {
    const SmallDisk disk(place(u"stick"_s), 440);
    if (!disk.isThere())
        GTEST_SKIP() << NoSmallDisk;
    const QString path = sampleProject(u"stick/easel.ivd"_s);
    start({path});
    writeMuch();
    letTimerSave();
    expectNotSaved(u"disk full"_s);
    expectBox(u"The disk is full."_s);
    save();
    expectNotSaved(u"disk full"_s);
    disk.resize(4000);
    expectTimerSaves(path);
    save();
    EXPECT_TRUE(form().close()) << "nobody is asked";
    expectHolds(path);
}

TEST_F(SavingTroubleTest, a_save_by_the_user_that_finds_the_disk_full_changes_nothing_on_screen) {
    const QString path = sampleProject();
    start({path});
    writeMuch();
    {
        const FullDisk full(static_cast<rlim_t>(QFileInfo(path).size()) + 2000);
        expectBox(u"The disk is full."_s);
        save();
        expectNotSaved(u"disk full"_s);
    }
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    expectTimerSaves(path);
    whenAsked(u"Save Project?"_s, QMessageBox::Cancel);
    EXPECT_FALSE(form().close()) << "it still counts as changed";
}

TEST_F(SavingTroubleTest, a_new_project_on_a_full_disk_goes_on_under_its_first_name) {
    start();
    click(u"lblRecentPatents(0)"_s);
    writeMuch();
    {
        const FullDisk full(1000);
        letTimerSave();
        expectNotSaved(u"disk full"_s);
    }
    expectTimerSaves(drafts() + u"/Draft -  1.ivd"_s);
    EXPECT_EQ(draftFiles(), QStringList{u"Draft -  1.ivd"_s});
}

TEST_F(SavingTroubleTest, save_as_on_a_full_disk_leaves_the_old_name_and_no_half_file) {
    const QString path = sampleProject();
    start({path});
    writeMuch();
    {
        const FullDisk full(20000);
        whenAskedForFile(place(u"other.ivd"_s));
        expectBox(u"The disk is full."_s);
        choose(u"mnuFileSaveAs"_s);
        expectNotSaved(u"disk full"_s);
    }
    EXPECT_FALSE(QFile::exists(place(u"other.ivd"_s)));
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    expectTimerSaves(path);
}

TEST_F(SavingTroubleTest, a_save_whose_backup_copy_finds_no_room_is_told_as_saved) {
    const QString path = sampleProject();
    start({path});
    write(u"It turns."_s);
    ASSERT_TRUE(QDir(drafts()).removeRecursively());
    writeFile(drafts());
    whenAsked(u"Error"_s, [](QDialog& dialog) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().startsWith(
            u"The project is saved, but not its backup copy: "_s));
        dialog.accept();
    });
    save();
    EXPECT_TRUE(saveState().startsWith(u"saved "_s));
    expectHolds(path);
    EXPECT_TRUE(form().close()) << "nobody is asked";
}

// A folder that has gone

TEST_F(SavingTroubleTest, a_folder_that_was_removed_is_made_again_with_the_project_in_it) {
    ASSERT_TRUE(QDir().mkdir(place(u"work"_s)));
    const QString path = sampleProject(u"work/easel.ivd"_s);
    start({path});
    write(u"It turns."_s);
    ASSERT_TRUE(QDir(place(u"work"_s)).removeRecursively());
    expectTimerSaves(path);
}

TEST_F(SavingTroubleTest, a_folder_that_cannot_be_made_again_is_told_until_it_is_back) {
    ASSERT_TRUE(QDir().mkpath(place(u"stick/mine"_s)));
    const QString path = sampleProject(u"stick/mine/easel.ivd"_s);
    start({path});
    write(u"It turns."_s);
    ASSERT_TRUE(QDir().rename(place(u"stick"_s), place(u"gone"_s)));
    letTimerSave();
    expectNotSaved(u"folder does not exist"_s);
    expectBox(u"The folder could not be found."_s);
    save();
    expectNotSaved(u"folder does not exist"_s);
    ASSERT_TRUE(QDir().rename(place(u"gone"_s), place(u"stick"_s)));
    expectTimerSaves(path);
}

// A file that cannot be written

TEST_F(SavingTroubleTest, a_disk_that_became_read_only_is_told_and_can_be_left) {
    const SmallDisk disk(place(u"stick"_s), 4000);
    if (!disk.isThere())
        GTEST_SKIP() << NoSmallDisk;
    const QString path = sampleProject(u"stick/easel.ivd"_s);
    start({path});
    disk.setWritable(false);
    write(u"It turns."_s);
    letTimerSave();
    expectNotSaved(u"folder is read-only"_s);
    expectBox(u"Access is denied."_s);
    save();
    expectNotSaved(u"folder is read-only"_s);
    disk.setWritable(true);
    expectTimerSaves(path);
    disk.setWritable(false);
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    whenAsked(u"Error"_s, QMessageBox::Ok);
    EXPECT_FALSE(form().close()) << "what the timer saved cannot be taken back now";
    disk.setWritable(true);
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    EXPECT_TRUE(form().close());
    EXPECT_EQ(contentOf(path), contentOf(QStringLiteral(QUILLFORD_SAMPLE_PROJECT)));
}

TEST_F(SavingTroubleTest, a_folder_in_the_files_place_is_told_until_the_place_is_free) {
    const QString path = sampleProject();
    start({path});
    write(u"It turns."_s);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkdir(path));
    letTimerSave();
    expectNotSaved(u"a folder has this name"_s);
    ASSERT_TRUE(QDir().rmdir(path));
    expectTimerSaves(path);
}

TEST_F(SavingTroubleTest, a_file_that_became_garbage_is_told_and_another_name_saves_the_text) {
    const QString path = sampleProject();
    start({path});
    write(u"It turns."_s);
    letTimerSave();
    for (const QByteArray& garbage :
         {QByteArray("garbage"), QByteArray(5000, '\0'), QByteArray()}) {
        writeFile(path, garbage);
        write(u"It turns on."_s);
        letTimerSave();
        expectNotSaved(u"file damaged"_s);
        EXPECT_EQ(contentOf(path), garbage) << "what is no project is left alone";
    }
    whenAsked(u"Error"_s, QMessageBox::Ok);
    save();
    expectNotSaved(u"file damaged"_s);
    whenAskedForFile(place(u"rescued.ivd"_s));
    choose(u"mnuFileSaveAs"_s);
    EXPECT_TRUE(saveState().startsWith(u"saved "_s));
    expectHolds(place(u"rescued.ivd"_s));
    EXPECT_EQ(contentOf(path), contentOf(QStringLiteral(QUILLFORD_SAMPLE_PROJECT)))
        << "the old name has what the user saved there last";
}

TEST_F(SavingTroubleTest, a_file_that_became_garbage_is_saved_again_once_it_is_gone) {
    const QString path = sampleProject();
    start({path});
    write(u"It turns."_s);
    writeFile(path, "garbage");
    letTimerSave();
    expectNotSaved(u"file damaged"_s);
    ASSERT_TRUE(QFile::remove(path));
    expectTimerSaves(path);
}

TEST_F(SavingTroubleTest, exit_answered_no_puts_the_copy_in_the_place_of_garbage) {
    const QString path = sampleProject();
    start({path});
    write(u"It turns."_s);
    writeFile(path, "garbage");
    letTimerSave();
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    EXPECT_TRUE(form().close());
    EXPECT_EQ(contentOf(path), contentOf(QStringLiteral(QUILLFORD_SAMPLE_PROJECT)));
}

// The list of recent projects

TEST_F(SavingTroubleTest, a_recent_project_that_is_gone_leaves_the_welcome_page_and_its_entry) {
    const QString gone = place(u"gone.ivd"_s);
    const QString path = sampleProject();
    list({gone + u"|QF-7|Gone"_s, path + u"|QF-101|Easel"_s});
    start();
    expectNotFoundBox();
    click(u"lblRecentPatents(1)"_s);
    EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_EQ(row(1), u"QF-7 (Gone)"_s);
    click(u"lblRecentPatents(2)"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"Folding Field Easel"_s);
}

TEST_F(SavingTroubleTest, a_recent_project_that_is_gone_leaves_the_open_one_to_the_timer) {
    const QString path = sampleProject();
    list({path + u"|QF-101|Easel"_s, place(u"gone.ivd"_s) + u"|QF-7|Gone"_s});
    start();
    click(u"lblRecentPatents(1)"_s);
    write(u"It turns."_s);
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    expectNotFoundBox();
    choose(u"mnuFileRecent(2)"_s);
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    expectTypingGoesOn();
    expectTimerSaves(path);
    EXPECT_EQ(menuEntry(u"mnuFileRecent(2)"_s).text(), u"&2 - gone"_s);
}

TEST_F(SavingTroubleTest, an_entry_with_too_many_fields_opens_its_project) {
    const QString path = sampleProject();
    list({path + u"|QF-101|Ea|sel|||FILEOPEN|"_s});
    start();
    EXPECT_EQ(row(1), u"QF-101 (Ea) (RECOVERED FILE)"_s) << "there is a fourth field";
    click(u"lblRecentPatents(1)"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"Folding Field Easel"_s);
    write(u"It turns."_s);
    expectTimerSaves(path);
    save();
    EXPECT_TRUE(form().close()) << "nobody is asked";
    kill();
    start();
    EXPECT_EQ(row(1), u"QF-101 (Folding Field Easel)"_s) << "the first save has put it right";
}

TEST_F(SavingTroubleTest, entries_that_name_no_file_are_told_one_by_one) {
    list({u"|||"_s, u"|"_s, u"no separator"_s, place(u""_s) + u"||"_s, u"a|b"_s});
    start();
    for (int number = 1; number <= 5; ++number) {
        expectNotFoundBox();
        openFileMenu();
        menuEntry(u"mnuFileRecent(%1)"_s.arg(number)).trigger();
        EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible()) << number;
    }
}

TEST_F(SavingTroubleTest, a_title_with_a_separator_costs_nothing_but_its_row) {
    const QString path = sampleProject();
    start({path});
    type(u"txtInventionTitle"_s, u"|x"_s);
    save();
    choose(u"mnuGotoWelcomePage"_s);
    EXPECT_EQ(row(1), u"Project - easel"_s) << "the title begins with a field of its own";
    click(u"lblRecentPatents(1)"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"|xFolding Field Easel"_s);
}
