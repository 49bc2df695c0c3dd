#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/HammeredSettings.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// In memory where the system has such a folder: thousands of writes that each wait for a disk take
/// minutes, and prove nothing more about two programs.
QString folderTemplate() {
    const QFileInfo memory(u"/dev/shm"_s);
    return (memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath()) +
           u"/settings-XXXXXX"_s;
}

bool isRunning(QProcess& program) {
    program.waitForFinished(1);
    return program.state() != QProcess::NotRunning;
}

class SettingsTwoProgramsTest : public testing::Test {
protected:
    void start(QProcess& program, const QString& name, int rounds) {
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationDirPath() + u"/settings_hammer"_s,
                      {file, name, QString::number(rounds)});
        ASSERT_TRUE(program.waitForStarted());
    }

    int pushesWhenWhole() {
        int pushes = 0;
        store.look([&](const SettingsValues& values) {
            EXPECT_TRUE(hammer::isWhole(values));
            pushes = hammer::pushes(values);
        });
        return pushes;
    }

    int counted(const QString& name) {
        int number = 0;
        store.look([&](const SettingsValues& values) { number = hammer::numberOf(values, name); });
        return number;
    }

    QTemporaryDir folder{folderTemplate()};
    QString file = folder.filePath(u"settings.txt"_s);
    FileSettingsStore store{file};
};

} // namespace

TEST_F(SettingsTwoProgramsTest, ten_thousand_shifts_of_two_programs_lose_and_tear_no_value) {
    constexpr int Rounds = 5000;
    const QByteArray foreign = "; another program's\nname = value\n[Other]\nlist=1,2\n";
    writeFile(file, foreign);
    QProcess one;
    QProcess two;
    start(one, u"one"_s, Rounds);
    start(two, u"two"_s, Rounds);
    int before = 0;
    while (isRunning(one) || isRunning(two)) {
        const int now = pushesWhenWhole();
        ASSERT_GE(now, before);
        before = now;
    }
    EXPECT_EQ(one.exitCode(), 0);
    EXPECT_EQ(two.exitCode(), 0);
    EXPECT_EQ(pushesWhenWhole(), 2 * Rounds);
    EXPECT_EQ(counted(u"one"_s), Rounds);
    EXPECT_EQ(counted(u"two"_s), Rounds);
    EXPECT_TRUE(contentOf(file).startsWith(foreign));
}

TEST_F(SettingsTwoProgramsTest, a_program_killed_at_any_moment_leaves_whole_values_and_no_lock) {
    constexpr int Kills = 40;
    int pushes = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        QProcess program;
        start(program, u"killed"_s, 100'000);
        QElapsedTimer sinceStart;
        sinceStart.start();
        while (pushesWhenWhole() == pushes && !sinceStart.hasExpired(10'000))
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::microseconds(170 * kill));
        program.kill();
        ASSERT_TRUE(program.waitForFinished());
        ASSERT_EQ(program.exitStatus(), QProcess::CrashExit);
        const int left = pushesWhenWhole();
        ASSERT_GT(left, pushes);
        store.change(hammer::push);
        pushes = pushesWhenWhole();
        ASSERT_EQ(pushes, left + 1);
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              QStringList({u"settings.txt"_s, u"settings.txt.lock"_s}));
}
