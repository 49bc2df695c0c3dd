#include "platform/linux/FileSettingsStore.h"

#include "base/Error.h"
#include "platform/linux/FileLock.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace quillford;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Key = u"Software\\Some Program";
const QByteArray Stored = "[HKEY_CURRENT_USER\\Software\\Some Program]\n\"file1\"=\"old\"\n";

/// The tests may run as the one user whom no permission stops; this makes it another for a scope.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : user_(geteuid()) { become(user_ == 0 ? Nobody : user_); }

    ~AsOrdinaryUser() { become(user_); }

    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser(AsOrdinaryUser&&) = delete;
    AsOrdinaryUser& operator=(AsOrdinaryUser&&) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    static constexpr uid_t NotChanged = static_cast<uid_t>(-1);

    static void become(uid_t user) { EXPECT_EQ(setresuid(user, user, NotChanged), 0); }

    uid_t user_;
};

void setMode(const QString& path, mode_t mode) {
    ASSERT_EQ(chmod(qUtf8Printable(path), mode), 0);
}

class FileSettingsStoreTest : public testing::Test {
protected:
    void set(const QString& text) {
        store.change([&](SettingsValues& values) {
            values.setValue(Hive::CurrentUser, Key, u"file1", text);
        });
    }

    std::optional<QString> get() {
        std::optional<QString> found;
        store.look([&](const SettingsValues& values) {
            found = values.value(Hive::CurrentUser, Key, u"file1");
        });
        return found;
    }

    QStringList names() {
        return QDir(QFileInfo(file).path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System, QDir::Name);
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"my settings für Quillford/settings.txt"_s);
    FileSettingsStore store{file, 50ms};
};

} // namespace

TEST_F(FileSettingsStoreTest, a_look_at_a_missing_file_makes_nothing) {
    EXPECT_EQ(get(), std::nullopt);
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(file).path()));
}

TEST_F(FileSettingsStoreTest, the_first_change_makes_the_folder_and_a_file_for_the_user_alone) {
    set(u"new"_s);
    EXPECT_EQ(names(), QStringList({u"settings.txt"_s, u"settings.txt.lock"_s}));
    for (const QString& name : names()) {
        struct stat status {};

        ASSERT_EQ(stat(qUtf8Printable(QFileInfo(file).path() + u'/' + name), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0600U) << qPrintable(name);
    }
    EXPECT_EQ(contentOf(file), "# The settings of Quillford. A line that is no value is kept.\n\n"
                               "[HKEY_CURRENT_USER\\Software\\Some Program]\n\"file1\"=\"new\"\n");
}

TEST_F(FileSettingsStoreTest, a_change_that_changes_nothing_does_not_touch_the_file) {
    writeFile(file, Stored);

    struct stat before {};

    ASSERT_EQ(stat(qUtf8Printable(file), &before), 0);
    set(u"old"_s);

    struct stat after {};

    ASSERT_EQ(stat(qUtf8Printable(file), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(FileSettingsStoreTest, a_change_keeps_the_permissions_and_the_link) {
    const QString target = folder.filePath(u"elsewhere/settings"_s);
    writeFile(target, Stored);
    setMode(target, 0640);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    ASSERT_TRUE(QFile::link(target, file));
    set(u"new"_s);
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_TRUE(contentOf(target).contains("\"file1\"=\"new\""));

    struct stat status {};

    ASSERT_EQ(stat(qUtf8Printable(target), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(FileSettingsStoreTest, a_damaged_file_is_read_where_it_can_be_and_kept_where_not) {
    const QByteArray damaged = QByteArray("\0\0\xFF\xFE\n", 5) + Stored + "\"file2\"=\"torn";
    writeFile(file, damaged);
    EXPECT_EQ(get(), u"old"_s);
    set(u"new"_s);
    EXPECT_EQ(get(), u"new"_s);
    EXPECT_EQ(contentOf(file), QByteArray(damaged).replace("old", "new") + '\n');
}

TEST_F(FileSettingsStoreTest, a_file_of_nothing_but_random_bytes_is_kept_behind_new_values) {
    QByteArray noise;
    for (unsigned i = 0, seed = 1; i < 100'000; ++i)
        noise += static_cast<char>((seed = seed * 1103515245U + 12345U) >> 16U);
    writeFile(file, noise);
    EXPECT_EQ(get(), std::nullopt);
    set(u"new"_s);
    EXPECT_EQ(get(), u"new"_s);
    EXPECT_TRUE(contentOf(file).startsWith(noise));
}

TEST_F(FileSettingsStoreTest, a_write_protected_file_is_read_and_not_replaced) {
    writeFile(file, Stored);
    writeFile(file + u".lock"_s);
    setMode(folder.path(), 0755);
    setMode(QFileInfo(file).path(), 0777);
    setMode(file + u".lock"_s, 0666);
    setMode(file, 0444);
    const AsOrdinaryUser user;
    EXPECT_EQ(get(), u"old"_s);
    EXPECT_THROW(set(u"new"_s), Error);
    EXPECT_EQ(contentOf(file), Stored);
}

TEST_F(FileSettingsStoreTest, a_write_protected_folder_is_read_and_nothing_is_written) {
    writeFile(file, Stored);
    setMode(folder.path(), 0755);
    setMode(QFileInfo(file).path(), 0555);
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(get(), u"old"_s);
        EXPECT_THROW(set(u"new"_s), Error);
    }
    EXPECT_EQ(names(), QStringList({u"settings.txt"_s}));
    EXPECT_EQ(contentOf(file), Stored);
    setMode(QFileInfo(file).path(), 0755);
}

TEST_F(FileSettingsStoreTest, a_file_that_cannot_be_read_is_not_taken_for_empty) {
    writeFile(file, Stored);
    setMode(folder.path(), 0755);
    setMode(QFileInfo(file).path(), 0777);
    setMode(file, 0000);
    {
        const AsOrdinaryUser user;
        EXPECT_THROW(get(), Error);
        EXPECT_THROW(set(u"new"_s), Error);
    }
    setMode(file, 0600);
    EXPECT_EQ(contentOf(file), Stored);
}

TEST_F(FileSettingsStoreTest, a_folder_or_a_pipe_in_its_place_is_an_error_and_stays) {
    ASSERT_TRUE(QDir().mkpath(file));
    EXPECT_THROW(get(), Error);
    EXPECT_THROW(set(u"new"_s), Error);
    EXPECT_TRUE(QFileInfo(file).isDir());
    ASSERT_TRUE(QDir().rmdir(file));
    ASSERT_EQ(mkfifo(qUtf8Printable(file), 0600), 0);
    EXPECT_THROW(get(), Error);
    EXPECT_THROW(set(u"new"_s), Error);
}

TEST_F(FileSettingsStoreTest, a_file_in_the_place_of_the_folder_is_an_error_for_changes) {
    writeFile(QFileInfo(file).path(), "precious");
    EXPECT_EQ(get(), std::nullopt);
    EXPECT_THROW(set(u"new"_s), Error);
    EXPECT_EQ(contentOf(QFileInfo(file).path()), "precious");
}

TEST_F(FileSettingsStoreTest, a_full_disk_keeps_the_old_values_and_leaves_no_litter) {
    writeFile(file, Stored);
    {
        const FullDisk disk(4096);
        EXPECT_THROW(set(QString(20'000, u'x')), Error);
    }
    EXPECT_EQ(contentOf(file), Stored);
    EXPECT_EQ(names(), QStringList({u"settings.txt"_s, u"settings.txt.lock"_s}));
    set(QString(20'000, u'x'));
    EXPECT_EQ(get(), QString(20'000, u'x'));
}

TEST_F(FileSettingsStoreTest, what_a_killed_program_left_half_written_is_written_over) {
    writeFile(file, Stored);
    writeFile(file + u".new"_s, "[HKEY_CURRENT_US");
    EXPECT_EQ(get(), u"old"_s);
    set(u"new"_s);
    EXPECT_EQ(get(), u"new"_s);
    EXPECT_EQ(names(), QStringList({u"settings.txt"_s, u"settings.txt.lock"_s}));
}

TEST_F(FileSettingsStoreTest, a_file_beyond_the_limit_is_neither_read_nor_written) {
    writeFile(file, Stored);
    ASSERT_TRUE(QFile::resize(file, SharedFile::MostBytes + 1));
    EXPECT_THROW(get(), Error);
    EXPECT_THROW(set(u"new"_s), Error);
    ASSERT_TRUE(QFile::resize(file, Stored.size()));
    EXPECT_THROW(set(QString(SharedFile::MostBytes, u'x')), Error);
    EXPECT_EQ(contentOf(file), Stored);
}

TEST_F(FileSettingsStoreTest, a_change_gives_up_while_another_holds_the_lock_and_a_look_does_not) {
    writeFile(file, Stored);
    const FileLock held(file + u".lock"_s, 0ms);
    bool called = false;
    EXPECT_THROW(store.change([&called](SettingsValues&) { called = true; }), Error);
    EXPECT_FALSE(called);
    EXPECT_EQ(get(), u"old"_s);
}

TEST_F(FileSettingsStoreTest, the_lock_is_let_go_when_a_change_fails) {
    writeFile(file, Stored);
    EXPECT_THROW(store.change([](SettingsValues&) { throw 1; }), int);
    EXPECT_NO_THROW(FileLock(file + u".lock"_s, 0ms));
}

TEST_F(FileSettingsStoreTest, a_second_store_over_the_same_file_sees_every_change) {
    FileSettingsStore other(file);
    set(u"one"_s);
    other.change([](SettingsValues& values) {
        EXPECT_EQ(values.value(Hive::CurrentUser, Key, u"file1"), u"one"_s);
        values.setValue(Hive::CurrentUser, Key, u"file1", u"two"_s);
    });
    EXPECT_EQ(get(), u"two"_s);
}
