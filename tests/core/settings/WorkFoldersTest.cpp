#include "core/settings/WorkFolders.h"

#include "core/settings/SettingsNames.h"
#include "support/FakeFolders.h"
#include "support/FakeSettings.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WorkFoldersTest : public testing::Test {
protected:
    WorkFoldersTest() { folders.documents = home.path() + u"/Documents"_s; }

    QStringList namesIn(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }

    void makeFolder(const QString& path) { ASSERT_TRUE(QDir().mkpath(path)); }

    QTemporaryDir home;
    FakeSettings store;
    Settings settings{store};
    FakeFolders folders;
    WorkFolders workFolders{settings, folders};
};

} // namespace

TEST_F(WorkFoldersTest, a_first_run_starts_in_the_documents_folder) {
    EXPECT_EQ(workFolders.lastDir(), folders.documents);
}

TEST_F(WorkFoldersTest, a_last_folder_that_is_gone_falls_back_to_the_documents_folder) {
    const QString folder = home.filePath(u"Sketches"_s);
    makeFolder(folder);
    workFolders.setLastDir(folder);
    EXPECT_EQ(workFolders.lastDir(), folder);
    ASSERT_TRUE(QDir().rmdir(folder));
    EXPECT_EQ(workFolders.lastDir(), folders.documents);
    writeFile(folder);
    EXPECT_EQ(workFolders.lastDir(), folders.documents);
}

TEST_F(WorkFoldersTest, the_last_folder_is_given_as_it_was_stored) {
    const QString folder = home.filePath(u"Skizzen für Größe 3/"_s);
    makeFolder(folder);
    workFolders.setLastDir(folder);
    EXPECT_EQ(workFolders.lastDir(), folder);
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, settingsNames::SettingsKey, u"LastDir"), folder);
}

TEST_F(WorkFoldersTest, a_last_folder_stored_under_windows_falls_back_to_the_documents_folder) {
    workFolders.setLastDir(u"C:\\Users\\ann\\"_s);
    EXPECT_EQ(workFolders.lastDir(), folders.documents);
}

TEST_F(WorkFoldersTest, the_working_folder_is_made_with_its_three_folders) {
    const QString workDir = home.filePath(u"Documents/Quillford"_s);
    EXPECT_EQ(workFolders.getWorkDir(), workDir);
    EXPECT_EQ(namesIn(workDir), QStringList({u"Drafts"_s, u"Projects"_s}));
    EXPECT_EQ(namesIn(workDir + u"/Projects"_s), QStringList({u"Final Projects"_s}));
}

TEST_F(WorkFoldersTest, the_working_folder_is_named_after_the_folder_of_the_program) {
    folders.program = u"/opt/Tools for Jürgen/quillford"_s;
    EXPECT_EQ(workFolders.getWorkDir(), home.filePath(u"Documents/Tools for Jürgen"_s));
}

TEST_F(WorkFoldersTest, blanks_and_other_letters_in_the_documents_folder_do_no_harm) {
    folders.documents = home.filePath(u"Meine Dokumente/Größe %1 \"x\" ★"_s);
    EXPECT_TRUE(QFileInfo(workFolders.getWorkDir() + u"/Projects/Final Projects"_s).isDir());
}

TEST_F(WorkFoldersTest, a_folder_deleted_below_an_existing_working_folder_is_not_made_again) {
    const QString workDir = workFolders.getWorkDir();
    ASSERT_TRUE(QDir(workDir + u"/Projects"_s).removeRecursively());
    ASSERT_TRUE(QDir(workDir).rmdir(u"Drafts"_s));
    EXPECT_EQ(workFolders.getWorkDir(), workDir);
    EXPECT_EQ(namesIn(workDir), QStringList());
}

TEST_F(WorkFoldersTest, a_working_folder_that_cannot_be_made_is_named_all_the_same) {
    writeFile(folders.documents);
    EXPECT_EQ(workFolders.getWorkDir(), home.filePath(u"Documents/Quillford"_s));
    EXPECT_EQ(namesIn(home.path()), QStringList({u"Documents"_s}));
}

TEST_F(WorkFoldersTest, a_file_in_the_place_of_the_working_folder_is_left_alone) {
    const QString workDir = home.filePath(u"Documents/Quillford"_s);
    writeFile(workDir, "precious");
    EXPECT_EQ(workFolders.getWorkDir(), workDir);
    EXPECT_EQ(contentOf(workDir), "precious");
}

TEST_F(WorkFoldersTest, the_virtual_store_lies_in_the_local_data_folder) {
    EXPECT_EQ(workFolders.getVirtualStoreDir(), u"/nowhere/data/VirtualStore"_s);
}

TEST_F(WorkFoldersTest, the_temporary_folder_has_one_closing_separator) {
    EXPECT_EQ(workFolders.getTempDir(), u"/nowhere/temp/"_s);
    folders.temporary = u"/"_s;
    EXPECT_EQ(workFolders.getTempDir(), u"/"_s);
}

TEST_F(WorkFoldersTest, the_first_free_name_has_the_lowest_number_that_is_free) {
    workFolders.setLastDir(home.path());
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 1.ivd"_s);
    writeFile(home.filePath(u"Project - 1.ivd"_s));
    writeFile(home.filePath(u"Project - 3.ivd"_s));
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 2.ivd"_s);
    writeFile(home.filePath(u"Project - 2.ivd"_s));
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 4.ivd"_s);
}

TEST_F(WorkFoldersTest, another_ending_or_prefix_takes_no_name) {
    workFolders.setLastDir(home.path());
    writeFile(home.filePath(u"Final - 1.doc"_s));
    EXPECT_EQ(workFolders.nextFreeName(u"Final -"_s, u"html"_s), u"Final - 1.html"_s);
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"doc"_s), u"Project - 1.doc"_s);
    EXPECT_EQ(workFolders.nextFreeName(u"Final -"_s, u"doc"_s), u"Final - 2.doc"_s);
}

TEST_F(WorkFoldersTest, a_prefix_with_a_blank_of_its_own_gives_two_blanks) {
    EXPECT_EQ(WorkFolders::nextFreeName(u"Draft - "_s, u"ivd"_s, home.path()), u"Draft -  1.ivd"_s);
}

TEST_F(WorkFoldersTest, names_are_tested_in_the_documents_folder_when_no_folder_was_stored) {
    writeFile(folders.documents + u"/Project - 1.ivd"_s);
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 2.ivd"_s);
}

TEST_F(WorkFoldersTest, a_folder_that_does_not_exist_has_the_first_name_free) {
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 1.ivd"_s);
}

TEST_F(WorkFoldersTest, a_thousand_taken_names_leave_an_empty_name) {
    workFolders.setLastDir(home.path() + u'/');
    for (int number = 1; number <= 999; ++number)
        writeFile(home.filePath(u"Project - %1.ivd"_s.arg(number)));
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 1000.ivd"_s);
    writeFile(home.filePath(u"Project - 1000.ivd"_s));
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), QString());
}

TEST_F(WorkFoldersTest, a_folder_and_a_link_that_leads_nowhere_take_a_name) {
    workFolders.setLastDir(home.path());
    makeFolder(home.filePath(u"Project - 1.ivd"_s));
    ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_s, home.filePath(u"Project - 2.ivd"_s)));
    EXPECT_EQ(workFolders.nextFreeName(u"Project -"_s, u"ivd"_s), u"Project - 3.ivd"_s);
}
