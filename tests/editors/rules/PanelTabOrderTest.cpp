#include "editors/rules/PanelTabOrder.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PanelTabOrderTest : public testing::Test {
protected:
    void number(const QStringList& controls, int first) {
        for (const QString& control : controls)
            order.setTabIndex(control, first++);
    }

    FocusOrder order;
};

} // namespace

TEST_F(PanelTabOrderTest, an_object_takes_one_number) {
    order.setTabIndex(u"txtObject(0)"_s, 2);
    numberPanels(FieldGroup::Objects, 1, 20, order);
    EXPECT_EQ(order.tabIndex(u"txtObject(1)"_s), 3);
    EXPECT_EQ(order.tabIndex(u"txtObject(19)"_s), 21);
    EXPECT_EQ(order.tabIndex(u"txtObject(20)"_s), 0);
}

TEST_F(PanelTabOrderTest, a_figure_takes_four_numbers_and_its_path_none) {
    number({u"cboFigureType(0)"_s, u"imgBrowse(0)"_s, u"imgRemove(0)"_s, u"txtFigureDetail(0)"_s},
           1);
    numberPanels(FieldGroup::Figures, 1, 3, order);
    EXPECT_EQ(order.tabIndex(u"cboFigureType(1)"_s), 5);
    EXPECT_EQ(order.tabIndex(u"imgBrowse(2)"_s), 10);
    EXPECT_EQ(order.tabIndex(u"imgRemove(2)"_s), 11);
    EXPECT_EQ(order.tabIndex(u"txtFigureDetail(2)"_s), 12);
    EXPECT_EQ(order.tabIndex(u"txtAttachFig(2)"_s), 0);
}

TEST_F(PanelTabOrderTest, panels_before_the_first_new_one_keep_their_numbers) {
    number({u"txtElementName(0)"_s, u"txtElementDes(0)"_s}, 2);
    order.setTabIndex(u"txtElementName(1)"_s, 77);
    numberPanels(FieldGroup::MainElements, 2, 4, order);
    EXPECT_EQ(order.tabIndex(u"txtElementName(1)"_s), 77);
    EXPECT_EQ(order.tabIndex(u"txtElementName(2)"_s), 6);
    EXPECT_EQ(order.tabIndex(u"txtElementDes(3)"_s), 9);
}

TEST_F(PanelTabOrderTest, an_inventor_takes_nine_numbers) {
    number({u"txtNameStep2(0)"_s, u"txtMIStep2(0)"_s}, 3);
    numberPanels(FieldGroup::Inventors, 1, 8, order);
    EXPECT_EQ(order.tabIndex(u"txtNameStep2(7)"_s), 66);
    EXPECT_EQ(order.tabIndex(u"txtMIStep2(7)"_s), 67);
}

TEST_F(PanelTabOrderTest, a_block_of_section_6_takes_ten_numbers) {
    number({u"txtElementMain(0)"_s, u"txtElementSub1(0)"_s, u"txtElementSub2(0)"_s}, 0);
    ResetSubElementTabOrder(15, order);
    EXPECT_EQ(order.tabIndex(u"txtElementMain(1)"_s), 10);
    EXPECT_EQ(order.tabIndex(u"txtElementSub2(14)"_s), 142);
}

TEST_F(PanelTabOrderTest, the_page_of_section_7_goes_through_the_panels_and_then_the_parts) {
    order.setTabIndex(u"txtMainElementNameDetail(0)"_s, 4);
    numberDescriptions(3, order);
    EXPECT_EQ(order.tabIndex(u"txtMainElementVariations(0)"_s), 5);
    EXPECT_EQ(order.tabIndex(u"txtMainElementNameDetail(1)"_s), 6);
    EXPECT_EQ(order.tabIndex(u"txtMainElementNameDetail(2)"_s), 8);
    EXPECT_EQ(order.tabIndex(u"txtMainElementVariations(2)"_s), 9);
    EXPECT_EQ(order.tabIndex(u"txtDesConnections"_s), 10);
    EXPECT_EQ(order.tabIndex(u"txtDesAlterative"_s), 11);
}

TEST_F(PanelTabOrderTest, one_description_is_followed_by_the_parts) {
    numberDescriptions(1, order);
    EXPECT_EQ(order.tabIndex(u"txtMainElementVariations(0)"_s), 1);
    EXPECT_EQ(order.tabIndex(u"txtDesConnections"_s), 2);
    EXPECT_EQ(order.tabIndex(u"txtDesAlterative"_s), 3);
}
