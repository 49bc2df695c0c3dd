#include "editors/rules/TabWrap.h"

#include "support/RecordingScreen.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TabWrapTest : public testing::Test {
protected:
    TabWrapTest() {
        fields.setPanelCount(FieldGroup::Inventors, 3);
        fields.setPanelCount(FieldGroup::Figures, 2);
    }

    /// The number that `control` has after the focus has reached the place; 99 when no rule gave
    /// it one, 50 is the number of `behind`.
    int numberAfter(FieldPlace reached, const QString& control, const QString& behind = {}) {
        order.setTabIndex(behind, 50);
        order.setTabIndex(control, 99);
        wrap.focusReached(reached);
        return order.tabIndex(control);
    }

    ProjectFields fields;
    CallLog log;
    RecordingScreen screen{fields, log};
    FocusOrder order;
    TabWrap wrap{fields, screen, order};
};

} // namespace

TEST_F(TabWrapTest, the_first_fields_of_sections_take_0) {
    EXPECT_EQ(numberAfter({FieldId::txtFileNo}, u"txtFileNo"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtPurpose}, u"txtPurpose"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtMainElement}, u"txtMainElement"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtElementMain}, u"txtElementMain(0)"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtElementMain, 1}, u"txtElementMain(0)"_s), 99);
}

TEST_F(TabWrapTest, the_last_fields_of_sections_put_the_first_ones_behind_them) {
    EXPECT_EQ(numberAfter({FieldId::txtEmailStep1}, u"txtFileNo"_s, u"txtEmailStep1"_s), 51);
    EXPECT_EQ(numberAfter({FieldId::txtObject, 3}, u"txtPurpose"_s, u"txtObject(3)"_s), 51);
    EXPECT_EQ(
        numberAfter({FieldId::txtFigureDetail, 1}, u"cboFiguresNum"_s, u"txtFigureDetail(1)"_s),
        51);
    EXPECT_EQ(numberAfter({FieldId::txtElementDes, 2}, u"txtMainElement"_s, u"txtElementDes(2)"_s),
              51);
    EXPECT_EQ(
        numberAfter({FieldId::txtElementSub9, 2}, u"txtElementMain(0)"_s, u"txtElementSub9(2)"_s),
        51);
}

TEST_F(TabWrapTest, fields_of_earlier_panels_put_nothing_behind_them) {
    EXPECT_EQ(numberAfter({FieldId::txtObject, 2}, u"txtPurpose"_s), 99);
    EXPECT_EQ(numberAfter({FieldId::txtFigureDetail, 0}, u"cboFiguresNum"_s), 99);
    EXPECT_EQ(numberAfter({FieldId::txtElementDes, 0}, u"txtMainElement"_s), 99);
    EXPECT_EQ(numberAfter({FieldId::txtElementSub9, 1}, u"txtElementMain(0)"_s), 99);
    EXPECT_EQ(numberAfter({FieldId::cboCitizenshipStep2, 1}, u"cboCitizenshipStep2(1)"_s), 99);
}

TEST_F(TabWrapTest, the_last_inventor_closes_the_ring_of_section_2) {
    EXPECT_EQ(
        numberAfter({FieldId::cboInventorsNum}, u"cboCitizenshipStep2(2)"_s, u"txtZipStep2(2)"_s),
        51);
    EXPECT_EQ(numberAfter({FieldId::cboCitizenshipStep2, 2}, u"cboCitizenshipStep2(2)"_s), 0);
}

TEST_F(TabWrapTest, section_7_goes_round_by_its_last_field) {
    EXPECT_EQ(numberAfter({FieldId::txtMainElementNameDetail, 1}, u"txtDesAlterative"_s,
                          u"txtDesConnections"_s),
              51);
    EXPECT_EQ(numberAfter({FieldId::txtDesAlterative}, u"txtDesAlterative"_s), 0);
}

TEST_F(TabWrapTest, an_end_closes_its_ring_only_while_its_own_section_is_enabled) {
    struct End {
        std::size_t tab;
        FieldPlace reached;
        QString moved;
    };

    const End ends[] = {
        {0, {FieldId::txtEmailStep1}, u"txtFileNo"_s},
        {1, {FieldId::cboCitizenshipStep2, 2}, u"cboCitizenshipStep2(2)"_s},
        {2, {FieldId::txtObject, 3}, u"txtPurpose"_s},
        {3, {FieldId::txtFigureDetail, 1}, u"cboFiguresNum"_s},
        {4, {FieldId::txtElementDes, 2}, u"txtMainElement"_s},
        {5, {FieldId::txtElementSub9, 2}, u"txtElementMain(0)"_s},
        {6, {FieldId::txtDesAlterative}, u"txtDesAlterative"_s},
    };
    for (const End& end : ends) {
        screen.enabled.fill(true);
        screen.enabled.at(end.tab) = false;
        EXPECT_EQ(numberAfter(end.reached, end.moved), 99) << end.tab;
        screen.enabled.fill(false);
        screen.enabled.at(end.tab) = true;
        EXPECT_NE(numberAfter(end.reached, end.moved), 99) << end.tab;
    }
}

TEST_F(TabWrapTest, the_beginnings_take_their_numbers_although_their_section_is_disabled) {
    screen.enabled.fill(false);
    EXPECT_EQ(numberAfter({FieldId::txtFileNo}, u"txtFileNo"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtPurpose}, u"txtPurpose"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtMainElement}, u"txtMainElement"_s), 0);
    EXPECT_EQ(numberAfter({FieldId::txtElementMain}, u"txtElementMain(0)"_s), 0);
}

TEST_F(TabWrapTest, a_field_in_the_middle_changes_no_number) {
    EXPECT_EQ(numberAfter({FieldId::txtCityStep1}, u"txtFileNo"_s), 99);
    EXPECT_EQ(numberAfter({FieldId::txtOperation}, u"txtOperation"_s), 99);
}
