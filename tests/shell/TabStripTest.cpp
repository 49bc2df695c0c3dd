#include "shell/TabStrip.h"

#include "core/wizard/FocusOrder.h"
#include "shell/FormFixture.h"

#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TabStripTest : public FormFixture {
protected:
    [[nodiscard]] TabPicture& picture(int tab) {
        return control<TabPicture>(controlName(u"picTab", tab));
    }

    TabStrip& tabs = form.tabs();
};

} // namespace

TEST_F(TabStripTest, at_first_the_first_tab_is_the_current_one_and_none_is_complete) {
    EXPECT_EQ(picture(0).look(), TabLook::IncompleteSelected);
    for (int tab = 1; tab < 10; ++tab)
        EXPECT_EQ(picture(tab).look(), TabLook::Incomplete) << tab;
}

TEST_F(TabStripTest, every_tab_but_the_current_one_shows_the_hand) {
    EXPECT_EQ(picture(0).cursor().shape(), Qt::ArrowCursor);
    for (int tab = 1; tab < 10; ++tab)
        EXPECT_EQ(picture(tab).cursor().shape(), Qt::BitmapCursor) << tab;
    tabs.setTabPointer(0, TabPointer::Hand);
    tabs.setTabPointer(6, TabPointer::Default);
    EXPECT_EQ(picture(0).cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(picture(6).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TabStripTest, a_look_goes_to_its_tab_alone) {
    tabs.setTabLook(4, TabLook::Complete);
    EXPECT_EQ(picture(4).look(), TabLook::Complete);
    EXPECT_EQ(picture(3).look(), TabLook::Incomplete);
    EXPECT_EQ(picture(5).look(), TabLook::Incomplete);
}

TEST_F(TabStripTest, a_click_tells_the_tab_and_switches_nothing_by_itself) {
    QSignalSpy clicks(&tabs, &TabStrip::picTab_Click);
    for (int tab = 0; tab < 10; ++tab)
        QTest::mouseClick(&picture(tab), Qt::LeftButton);
    ASSERT_EQ(clicks.count(), 10);
    for (int tab = 0; tab < 10; ++tab)
        EXPECT_EQ(clicks[tab].first().toInt(), tab);
    EXPECT_EQ(picture(0).look(), TabLook::IncompleteSelected);
}

TEST_F(TabStripTest, the_pictures_stand_in_a_row_without_touching) {
    for (int tab = 1; tab < 10; ++tab) {
        EXPECT_GT(picture(tab).x(), picture(tab - 1).geometry().right()) << tab;
        EXPECT_EQ(picture(tab).y(), picture(0).y());
    }
}
