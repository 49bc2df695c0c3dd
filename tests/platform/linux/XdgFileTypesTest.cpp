#include "platform/linux/XdgFileTypes.h"

#include "base/Error.h"
#include "platform/linux/LinuxFolders.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What a program of the desktop answers, with what it complains of; empty when it fails.
QByteArray answerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(program);
    const QByteArray answer = process.readAll();
    EXPECT_EQ(process.exitCode(), 0) << answer.toStdString();
    return answer;
}

bool isInstalled(const QString& program) {
    return !QStandardPaths::findExecutable(program).isEmpty();
}

class XdgFileTypesTest : public testing::Test {
protected:
    /// Below the data folder of the user, or of the system.
    QString user(const QString& name) { return folder.filePath(u"user data/"_s + name); }

    QString system(const QString& name) { return folder.filePath(u"system/"_s + name); }

    /// Puts a script in the place of both tools; `path` then has nothing else.
    void makeTools(const QByteArray& script) {
        for (const QString& tool : {u"update-mime-database"_s, u"update-desktop-database"_s}) {
            const QString file = folder.filePath(u"tools/"_s + tool);
            writeFile(file, "#!/bin/sh\n" + script);
            ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner));
        }
    }

    QTemporaryDir folder;
    QString mime = user(u"mime/packages/quillford.xml"_s);
    QString entry = user(u"applications/quillford.desktop"_s);
    ScopedEnvironment userData{"XDG_DATA_HOME", QFile::encodeName(folder.filePath(u"user data"_s))};
    ScopedEnvironment systemData{"XDG_DATA_DIRS", QFile::encodeName(folder.filePath(u"system"_s))};
    // Of several desktops, the one whose tools the test asks.
    ScopedEnvironment desktop{"XDG_CURRENT_DESKTOP", "GNOME"};
    FileType type{u"application/x-quillford-project"_s, u"Quillford File"_s, u"ivd"_s,
                  u"Quillford"_s, folder.filePath(u"Größe 1 $HOME `x` \"q\" \\b/quillford"_s)};
    LinuxFolders folders;
    XdgFileTypes fileTypes{folders};
};

} // namespace

TEST_F(XdgFileTypesTest, writes_the_kind_and_the_entry_for_the_user) {
    fileTypes.makeKnown(type);
    EXPECT_EQ(contentOf(mime),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
              "    <mime-type type=\"application/x-quillford-project\">\n"
              "        <comment>Quillford File</comment>\n"
              "        <glob pattern=\"*.ivd\"/>\n"
              "    </mime-type>\n"
              "</mime-info>\n");
    EXPECT_TRUE(contentOf(entry).contains("MimeType=application/x-quillford-project;\n"));
}

TEST_F(XdgFileTypesTest, what_stands_is_left_alone_and_what_is_missing_is_written_again) {
    writeFile(mime, "the user's own");
    fileTypes.makeKnown(type);
    EXPECT_EQ(contentOf(mime), "the user's own");
    const QByteArray before = contentOf(entry);
    type.programFile = u"/opt/moved/quillford"_s;
    fileTypes.makeKnown(type);
    EXPECT_EQ(contentOf(entry), before);
    ASSERT_TRUE(QFile::remove(entry));
    fileTypes.makeKnown(type);
    EXPECT_TRUE(contentOf(entry).contains("Exec=\"/opt/moved/quillford\" %f\n"));
}

TEST_F(XdgFileTypesTest, what_the_system_knows_is_not_written_for_the_user) {
    writeFile(system(u"mime/packages/quillford.xml"_s));
    writeFile(system(u"applications/quillford.desktop"_s));
    fileTypes.makeKnown(type);
    EXPECT_FALSE(QFileInfo::exists(user({})));
}

TEST_F(XdgFileTypesTest, a_data_folder_that_cannot_be_written_is_an_error) {
    writeFile(folder.filePath(u"user data"_s), "precious");
    EXPECT_THROW(fileTypes.makeKnown(type), Error);
    EXPECT_EQ(contentOf(folder.filePath(u"user data"_s)), "precious");
}

TEST_F(XdgFileTypesTest, a_full_disk_leaves_no_half_written_file) {
    {
        const FullDisk disk(100);
        EXPECT_THROW(fileTypes.makeKnown(type), Error);
    }
    EXPECT_EQ(QDir(user(u"mime/packages"_s)).entryList(QDir::Files), QStringList());
    fileTypes.makeKnown(type);
    EXPECT_TRUE(contentOf(mime).endsWith("</mime-info>\n"));
}

TEST_F(XdgFileTypesTest, each_tool_is_run_over_its_folder_and_only_after_writing) {
    const ScopedEnvironment path("PATH", QFile::encodeName(folder.filePath(u"tools"_s)));
    const ScopedEnvironment log("TOOL_LOG", QFile::encodeName(folder.filePath(u"log"_s)));
    makeTools("echo \"${0##*/} $1\" >> \"$TOOL_LOG\"\nexit 1\n");
    fileTypes.makeKnown(type);
    fileTypes.makeKnown(type);
    EXPECT_EQ(contentOf(folder.filePath(u"log"_s)),
              "update-mime-database " + user(u"mime"_s).toUtf8() + "\nupdate-desktop-database " +
                  user(u"applications"_s).toUtf8() + '\n');
}

TEST_F(XdgFileTypesTest, missing_tools_are_no_failure) {
    const ScopedEnvironment path("PATH", QFile::encodeName(folder.filePath(u"no tools"_s)));
    EXPECT_NO_THROW(fileTypes.makeKnown(type));
    EXPECT_TRUE(QFileInfo::exists(entry));
}

TEST_F(XdgFileTypesTest, a_tool_that_hangs_is_ended) {
    const ScopedEnvironment path("PATH", QFile::encodeName(folder.filePath(u"tools"_s)));
    makeTools("exec /bin/sleep 60\n");
    QElapsedTimer timer;
    timer.start();
    EXPECT_NO_THROW(XdgFileTypes(folders, std::chrono::milliseconds(50)).makeKnown(type));
    EXPECT_LT(timer.elapsed(), 20'000);
    EXPECT_TRUE(QFileInfo::exists(entry));
}

TEST_F(XdgFileTypesTest, the_entry_is_valid_by_the_desktops_own_check) {
    if (!isInstalled(u"desktop-file-validate"_s))
        GTEST_SKIP() << "desktop-file-validate is not installed";
    fileTypes.makeKnown(type);
    EXPECT_EQ(answerOf(u"desktop-file-validate"_s, {entry}), "");
}

TEST_F(XdgFileTypesTest, the_desktop_names_the_kind_of_a_project_file) {
    for (const QString& tool : {u"update-mime-database"_s, u"xdg-mime"_s, u"gio"_s})
        if (!isInstalled(tool))
            GTEST_SKIP() << qPrintable(tool) << " is not installed";
    const QString project = folder.filePath(u"my Größe.ivd"_s);
    writeFile(project, QByteArray::fromHex("d0cf11e0a1b11ae1"));
    fileTypes.makeKnown(type);
    EXPECT_EQ(answerOf(u"xdg-mime"_s, {u"query"_s, u"filetype"_s, project}),
              "application/x-quillford-project\n");
}

TEST_F(XdgFileTypesTest, the_desktop_opens_project_files_with_the_program) {
    for (const QString& tool : {u"update-desktop-database"_s, u"gio"_s})
        if (!isInstalled(tool))
            GTEST_SKIP() << qPrintable(tool) << " is not installed";
    const ScopedEnvironment language("LC_ALL", "C.UTF-8");
    fileTypes.makeKnown(type);
    writeFile(type.programFile, "#!/bin/sh\n");
    ASSERT_TRUE(QFile::setPermissions(type.programFile, QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_TRUE(answerOf(u"gio"_s, {u"mime"_s, type.mimeType})
                    .startsWith("Default application for “application/x-quillford-project”: "
                                "quillford.desktop\n"));
}

TEST_F(XdgFileTypesTest, a_program_in_an_awkward_folder_is_started_with_the_file_as_one_argument) {
    if (!isInstalled(u"gio"_s))
        GTEST_SKIP() << "gio is not installed";
    fileTypes.makeKnown(type);
    writeFile(type.programFile, "#!/bin/sh\nprintf '%s:' \"$0\" \"$@\" > \"$PROGRAM_LOG.new\"\n"
                                "mv \"$PROGRAM_LOG.new\" \"$PROGRAM_LOG\"\n");
    ASSERT_TRUE(QFile::setPermissions(type.programFile, QFile::ReadOwner | QFile::ExeOwner));
    const QString log = folder.filePath(u"log"_s);
    const QString project = folder.filePath(u"my Größe.ivd"_s);
    writeFile(project);
    const ScopedEnvironment logName("PROGRAM_LOG", QFile::encodeName(log));
    answerOf(u"gio"_s, {u"launch"_s, entry, project});
    QElapsedTimer timer;
    timer.start();
    while (!QFileInfo::exists(log) && !timer.hasExpired(10'000))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(contentOf(log), (type.programFile + u':' + project + u':').toUtf8());
}
