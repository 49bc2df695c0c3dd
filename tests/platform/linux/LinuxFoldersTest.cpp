#include "platform/linux/LinuxFolders.h"

#include "base/Error.h"
#include "support/Files.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class LinuxFoldersTest : public testing::Test {
protected:
    QByteArray in(const QString& name) { return QFile::encodeName(home.filePath(name)); }

    void userDirs(const QByteArray& text) {
        writeFile(home.filePath(u"config/user-dirs.dirs"_s), text);
    }

    QTemporaryDir home;
    ScopedEnvironment homeFolder{"HOME", QFile::encodeName(home.path())};
    ScopedEnvironment config{"XDG_CONFIG_HOME", in(u"config"_s)};
    ScopedEnvironment data{"XDG_DATA_HOME", in(u"data"_s)};
    ScopedEnvironment cache{"XDG_CACHE_HOME", in(u"cache"_s)};
    ScopedEnvironment state{"XDG_STATE_HOME", in(u"state"_s)};
    ScopedEnvironment documents{"XDG_DOCUMENTS_DIR", std::nullopt};
    ScopedEnvironment temp{"Temp", std::nullopt};
    LinuxFolders folders;
};

} // namespace

TEST_F(LinuxFoldersTest, the_program_is_the_one_that_runs) {
    EXPECT_EQ(folders.programFile(), QCoreApplication::applicationFilePath());
    EXPECT_EQ(folders.programFolder() + u"/test_platform"_s, folders.programFile());
}

TEST_F(LinuxFoldersTest, documents_lie_where_the_desktop_says) {
    userDirs("XDG_DOCUMENTS_DIR=\"$HOME/Meine Dokumente für Größe\"\n");
    EXPECT_EQ(folders.documentsFolder(), home.filePath(u"Meine Dokumente für Größe"_s));
    userDirs("XDG_DOCUMENTS_DIR=\"/srv/papers/\"\n");
    EXPECT_EQ(folders.documentsFolder(), u"/srv/papers"_s);
}

TEST_F(LinuxFoldersTest, documents_that_are_switched_off_lie_in_the_home_folder) {
    userDirs("XDG_DOCUMENTS_DIR=\"$HOME/\"\n");
    EXPECT_EQ(folders.documentsFolder(), home.path());
}

TEST_F(LinuxFoldersTest, documents_of_which_the_desktop_says_nothing_have_the_usual_name) {
    EXPECT_EQ(folders.documentsFolder(), home.filePath(u"Documents"_s));
    userDirs("\xFF\xFE nothing of use\n");
    EXPECT_EQ(folders.documentsFolder(), home.filePath(u"Documents"_s));
    EXPECT_FALSE(QFileInfo::exists(folders.documentsFolder()));
}

TEST_F(LinuxFoldersTest, a_full_path_in_the_environment_names_the_documents) {
    userDirs("XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    const ScopedEnvironment full("XDG_DOCUMENTS_DIR", "/srv/my papers/");
    EXPECT_EQ(folders.documentsFolder(), u"/srv/my papers"_s);
    const ScopedEnvironment relative("XDG_DOCUMENTS_DIR", "papers");
    EXPECT_EQ(folders.documentsFolder(), home.filePath(u"Papers"_s));
}

TEST_F(LinuxFoldersTest, settings_and_data_follow_their_variables) {
    EXPECT_EQ(folders.configurationFolder(), home.filePath(u"config/Quillford"_s));
    EXPECT_EQ(folders.localDataFolder(), home.filePath(u"data"_s));
    EXPECT_EQ(folders.stateFolder(), home.filePath(u"state/Quillford"_s));
}

TEST_F(LinuxFoldersTest, variables_that_are_missing_or_no_full_paths_have_their_usual_values) {
    for (const std::optional<QByteArray>& value :
         {std::optional<QByteArray>(), std::optional<QByteArray>("relative/path")}) {
        const ScopedEnvironment newConfig("XDG_CONFIG_HOME", value);
        const ScopedEnvironment newData("XDG_DATA_HOME", value);
        const ScopedEnvironment newCache("XDG_CACHE_HOME", value);
        const ScopedEnvironment newState("XDG_STATE_HOME", value);
        EXPECT_EQ(folders.configurationFolder(), home.filePath(u".config/Quillford"_s));
        EXPECT_EQ(folders.localDataFolder(), home.filePath(u".local/share"_s));
        EXPECT_EQ(folders.stateFolder(), home.filePath(u".local/state/Quillford"_s));
        EXPECT_EQ(folders.temporaryFolder(), home.filePath(u".cache/Quillford"_s));
    }
}

TEST_F(LinuxFoldersTest, the_temporary_folder_is_the_users_alone_and_the_same_at_each_call) {
    const QString folder = folders.temporaryFolder();
    EXPECT_EQ(folder, home.filePath(u"cache/Quillford"_s));

    struct stat status {};

    ASSERT_EQ(stat(qUtf8Printable(folder), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    writeFile(folder + u"/kept"_s);
    EXPECT_EQ(folders.temporaryFolder(), folder);
    EXPECT_TRUE(QFileInfo::exists(folder + u"/kept"_s));
}

TEST_F(LinuxFoldersTest, a_temporary_folder_behind_a_link_is_refused) {
    ASSERT_TRUE(QDir().mkpath(home.filePath(u"cache"_s)));
    ASSERT_TRUE(QFile::link(home.path(), home.filePath(u"cache/Quillford"_s)));
    EXPECT_THROW(static_cast<void>(folders.temporaryFolder()), Error);
}

TEST_F(LinuxFoldersTest, the_variable_Temp_names_the_temporary_folder_and_it_is_made) {
    const ScopedEnvironment named("Temp", in(u"my temp/für uns/"_s));
    EXPECT_EQ(folders.temporaryFolder(), home.filePath(u"my temp/für uns"_s));
    EXPECT_TRUE(QFileInfo(home.filePath(u"my temp/für uns"_s)).isDir());
}

TEST_F(LinuxFoldersTest, a_temporary_folder_that_cannot_be_made_is_an_error_that_names_it) {
    writeFile(home.filePath(u"file"_s));
    const ScopedEnvironment named("Temp", in(u"file/temp"_s));
    try {
        static_cast<void>(folders.temporaryFolder());
        FAIL() << "no error was raised";
    } catch (const Error& error) {
        EXPECT_TRUE(error.description().contains(home.filePath(u"file/temp"_s)));
    }
}
