#include "app/Zoom.h"

#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"

#include <QByteArray>

#include <gtest/gtest.h>

using namespace quillford;

namespace {

struct Screen {
    QSize freeArea;
    double zoom;
};

class ZoomTest : public testing::TestWithParam<Screen> {};

} // namespace

TEST_P(ZoomTest, the_form_takes_at_most_four_fifths_of_the_screen) {
    EXPECT_EQ(zoomFor(GetParam().freeArea), GetParam().zoom);
}

INSTANTIATE_TEST_SUITE_P(usual_screens, ZoomTest,
                         testing::Values(Screen{{1024, 768}, 1}, Screen{{1280, 800}, 1},
                                         Screen{{1366, 768}, 1}, Screen{{1440, 900}, 1},
                                         Screen{{1600, 1000}, 1.25}, Screen{{1920, 1080}, 1.25},
                                         Screen{{1920, 1200}, 1.5}, Screen{{2560, 1440}, 1.5},
                                         Screen{{2560, 1600}, 2}, Screen{{3440, 1440}, 1.5},
                                         Screen{{3840, 2160}, 2.5}, Screen{{7680, 4320}, 2.5}));

INSTANTIATE_TEST_SUITE_P(limits, ZoomTest,
                         testing::Values(Screen{{1538, 1000}, 1.25}, Screen{{1537, 1000}, 1},
                                         Screen{{1538, 999}, 1}, Screen{{1845, 1200}, 1.5},
                                         Screen{{1844, 1200}, 1.25}, Screen{{3075, 2000}, 2.5},
                                         Screen{{3075, 1999}, 2}));

INSTANTIATE_TEST_SUITE_P(screens_that_are_too_small_or_none, ZoomTest,
                         testing::Values(Screen{{800, 600}, 1}, Screen{{0, 0}, 1},
                                         Screen{{-1, -1}, 1}));

TEST(ZoomScopeTest, a_scale_that_the_user_has_set_stays) {
    const ScopedEnvironment scale("QT_SCALE_FACTOR", "1.75");
    char name[] = "quillford";
    char* arguments[] = {name, nullptr};
    const ZoomScope zoom(1, arguments);
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "1.75");
    zoom.leave();
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "1.75");
}

TEST(ZoomScopeTest, a_pretended_screen_is_not_scaled) {
    char name[] = "quillford";
    char* arguments[] = {name, nullptr};
    const ZoomScope zoom(1, arguments);
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
}
