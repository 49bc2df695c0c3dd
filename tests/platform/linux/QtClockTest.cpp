#include "platform/linux/QtClock.h"

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>

using namespace quillford;

namespace {

class QtClockTest : public testing::Test {
protected:
    ~QtClockTest() override { qputenv("QUILLFORD_TIME_SCALE", "0"); }

    static double paceFor(const char* text) {
        qputenv("QUILLFORD_TIME_SCALE", text);
        return QtClock().pace();
    }
};

} // namespace

TEST_F(QtClockTest, the_date_and_the_time_are_the_desktops) {
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime told = QtClock().dateAndTime();
    EXPECT_LE(before, told);
    EXPECT_LE(told, QDateTime::currentDateTime());
    EXPECT_EQ(told.timeSpec(), Qt::LocalTime);
}

TEST_F(QtClockTest, the_pace_is_the_environments) {
    EXPECT_EQ(paceFor("0"), 0);
    EXPECT_EQ(paceFor("0.25"), 0.25);
    EXPECT_EQ(paceFor("2"), 2);
}

TEST_F(QtClockTest, the_pace_is_1_where_the_environment_says_nothing_useful) {
    for (const char* text : {"", "fast", "-1", "nan", "inf"})
        EXPECT_EQ(paceFor(text), 1) << text;
    qunsetenv("QUILLFORD_TIME_SCALE");
    EXPECT_EQ(QtClock().pace(), 1);
}

TEST_F(QtClockTest, events_that_are_waiting_run_without_a_wait) {
    QtClock clock;
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    clock.letEventsRun(0);
    EXPECT_TRUE(ran);
}

TEST_F(QtClockTest, a_wait_without_events_lasts_as_long_as_it_may) {
    QtClock clock;
    QCoreApplication::processEvents();
    const qint64 before = clock.milliseconds();
    while (clock.milliseconds() < before + 30)
        clock.letEventsRun(before + 30 - clock.milliseconds());
    EXPECT_GE(clock.milliseconds(), before + 30);
    EXPECT_LT(clock.milliseconds(), before + 3000);
}

TEST_F(QtClockTest, an_event_ends_the_wait_early) {
    QtClock clock;
    bool ran = false;
    QTimer::singleShot(5, [&ran] { ran = true; });
    const qint64 before = clock.milliseconds();
    while (!ran && clock.milliseconds() < before + 60'000)
        clock.letEventsRun(60'000);
    EXPECT_TRUE(ran);
    EXPECT_LT(clock.milliseconds(), before + 30'000);
}
