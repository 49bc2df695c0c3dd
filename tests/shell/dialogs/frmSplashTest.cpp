#include "shell/dialogs/frmSplash.h"

#include "support/FakeClock.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace quillford;

namespace {

class frmSplashTest : public testing::Test {
protected:
    frmSplashTest() {
        clock.factor = 0.03;
        clock.events = [this] {
            QCoreApplication::processEvents();
            if (!splash || !splash->isVisible())
                return;
            const QImage shown = splash->grab().toImage();
            const double alpha = shown.pixelColor(shown.rect().center()).alphaF();
            if (alphas.empty() || alphas.back() != alpha)
                alphas.push_back(alpha);
        };
    }

    void show() {
        frmSplash window(clock, system);
        splash = &window;
        window.showModally();
        EXPECT_FALSE(window.isVisible());
        splash = nullptr;
    }

    FakeClock clock;
    mdlSystem system;
    frmSplash* splash = nullptr;
    std::vector<double> alphas; ///< every opacity that the window had, in order
};

} // namespace

TEST_F(frmSplashTest, the_picture_fades_in_by_steps_of_forty_stays_and_fades_out) {
    show();
    std::vector<double> expected{0};
    for (int alpha = 40; alpha <= 240; alpha += 40)
        expected.push_back(alpha / 255.);
    expected.push_back(1);
    for (int alpha = 215; alpha >= 0; alpha -= 40)
        expected.push_back(alpha / 255.);
    expected.push_back(0);
    ASSERT_EQ(alphas.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(alphas[i], expected[i], 1. / 255) << i;
}

TEST_F(frmSplashTest, between_the_fades_it_stays_for_three_seconds_of_the_paced_clock) {
    show();
    EXPECT_EQ(std::count(clock.waits.begin(), clock.waits.end(), 90), 1)
        << "a wait of 3 seconds at 3 hundredths of the pace";
}

TEST_F(frmSplashTest, without_a_pace_nothing_is_shown_at_all) {
    clock.factor = 0;
    frmSplash window(clock, system);
    window.showModally();
    EXPECT_TRUE(clock.waits.empty());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(frmSplashTest, a_program_that_is_told_to_exit_does_not_wait_for_the_three_seconds) {
    clock.factor = 1;
    system.exiting = true;
    clock.interruptions.assign(100000, 1);
    QElapsedTimer time;
    time.start();
    show();
    EXPECT_LT(time.elapsed(), 2500) << "both fades together take less than a second";
}

TEST_F(frmSplashTest, the_window_has_no_frame_and_takes_no_focus_from_others) {
    const frmSplash window(clock, system);
    EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(window.windowFlags() & Qt::WindowType_Mask, Qt::SplashScreen);
}
