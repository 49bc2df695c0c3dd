#include "platform/linux/FileLock.h"

#include "base/Error.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>
#include <thread>

using namespace quillford;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

class FileLockTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"a lock für uns"_s);
};

} // namespace

TEST_F(FileLockTest, is_refused_while_another_holds_it_and_free_after) {
    auto held = std::make_unique<FileLock>(path, 0ms);
    EXPECT_THROW(FileLock(path, 0ms), Error);
    held.reset();
    EXPECT_NO_THROW(FileLock(path, 0ms));
}

TEST_F(FileLockTest, waits_as_long_as_it_was_told) {
    const FileLock held(path, 0ms);
    QElapsedTimer timer;
    timer.start();
    EXPECT_THROW(FileLock(path, 60ms), Error);
    EXPECT_GE(timer.elapsed(), 60);
}

TEST_F(FileLockTest, is_taken_as_soon_as_the_other_lets_go) {
    auto held = std::make_unique<FileLock>(path, 0ms);
    std::thread other([&held] {
        std::this_thread::sleep_for(30ms);
        held.reset();
    });
    EXPECT_NO_THROW(FileLock(path, 10s));
    other.join();
}

TEST_F(FileLockTest, is_not_handed_down_to_child_programs) {
    QProcess child;
    {
        const FileLock held(path, 0ms);
        child.start(u"sleep"_s, {u"60"_s});
        ASSERT_TRUE(child.waitForStarted());
    }
    EXPECT_NO_THROW(FileLock(path, 0ms));
    child.kill();
    child.waitForFinished();
}

TEST_F(FileLockTest, a_file_that_cannot_be_made_is_named_in_the_error) {
    writeFile(path);
    try {
        FileLock(path + u"/lock"_s, 0ms);
        FAIL() << "no error was raised";
    } catch (const Error& error) {
        EXPECT_TRUE(error.description().contains(path + u"/lock"_s));
        EXPECT_EQ(error.number(), ENOTDIR);
    }
}
