#include "controls/ControlArrays.h"

#include "controls/RoundedOutline.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ControlArrays, a_designed_member_gets_its_index_in_round_brackets) {
    QWidget form;
    QWidget tab(&form);
    tab.setObjectName(u"picTab_8"_s);
    QWidget single(&form);
    single.setObjectName(u"txtTechTitle"_s);
    QWidget step(&form);
    step.setObjectName(u"txtNameStep1"_s);
    nameControlArrays(form);
    EXPECT_EQ(tab.objectName(), u"picTab(8)"_s);
    EXPECT_EQ(single.objectName(), u"txtTechTitle"_s);
    EXPECT_EQ(step.objectName(), u"txtNameStep1"_s);
}

TEST(ControlArrays, a_repeated_panel_names_all_that_stands_on_it_and_leaves_the_toolkits_names) {
    QWidget panel;
    panel.setObjectName(u"picFigures"_s);
    QWidget field(&panel);
    field.setObjectName(u"txtAttachFig"_s);
    QWidget toolkits(&field);
    toolkits.setObjectName(u"qt_scrollarea_viewport"_s);
    QWidget nameless(&panel);
    nameRepeated(panel, 12);
    EXPECT_EQ(panel.objectName(), u"picFigures(12)"_s);
    EXPECT_EQ(field.objectName(), u"txtAttachFig(12)"_s);
    EXPECT_EQ(toolkits.objectName(), u"qt_scrollarea_viewport"_s);
    EXPECT_TRUE(nameless.objectName().isEmpty());
}

TEST(RoundedOutline, the_corners_are_cut_and_the_edges_are_whole) {
    const QRegion outline = roundedOutline({984, 640});
    EXPECT_FALSE(outline.contains(QPoint(0, 0)));
    EXPECT_FALSE(outline.contains(QPoint(983, 639)));
    EXPECT_TRUE(outline.contains(QPoint(0, 320)));
    EXPECT_TRUE(outline.contains(QPoint(492, 0)));
    EXPECT_TRUE(outline.contains(QPoint(6, 6)));
}
