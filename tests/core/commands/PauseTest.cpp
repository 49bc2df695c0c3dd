#include "core/commands/Pause.h"

#include "support/FakeClock.h"

#include <gtest/gtest.h>

using namespace quillford;

namespace {

class PauseTest : public testing::Test {
protected:
    FakeClock clock;
    mdlSystem system;
};

} // namespace

TEST_F(PauseTest, waits_for_the_whole_seconds) {
    Pause(3, clock, system);
    EXPECT_EQ(clock.now, 4000);
}

TEST_F(PauseTest, goes_on_waiting_after_events_for_what_is_left) {
    clock.interruptions = {300, 200};
    Pause(1, clock, system);
    EXPECT_EQ(clock.waits, std::vector<qint64>({1000, 700, 500}));
    EXPECT_EQ(clock.now, 2000);
}

TEST_F(PauseTest, ends_early_when_the_program_is_told_to_exit) {
    clock.interruptions = {300, 200};
    clock.events = [this] { system.exiting = clock.now >= 1500; };
    Pause(1, clock, system);
    EXPECT_EQ(clock.now, 1500);
}

TEST_F(PauseTest, lets_waiting_events_run_even_without_a_wait) {
    int events = 0;
    clock.factor = 0;
    clock.events = [&events] { ++events; };
    Pause(3, clock, system);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(clock.now, 1000);
}

TEST_F(PauseTest, follows_the_pace_of_the_clock) {
    clock.factor = 0.5;
    Pause(3, clock, system);
    EXPECT_EQ(clock.now, 2500);
}
