#include "core/wizard/FocusOrder.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FocusOrderTest : public testing::Test {
protected:
    /// The numbers that the controls of a tab have after it was entered, in their order.
    QList<int> numbersOf(int tab) {
        order.enterTab(tab, fields);
        QList<int> numbers;
        for (const QString& control : focusOrderOf(tab, fields))
            numbers.append(order.tabIndex(control));
        return numbers;
    }

    ProjectFields fields;
    FocusOrder order;
};

} // namespace

TEST_F(FocusOrderTest, a_member_of_a_control_array_has_its_index_in_brackets) {
    EXPECT_EQ(controlName(u"txtObject", 0), u"txtObject(0)");
}

TEST_F(FocusOrderTest, a_field_that_stands_once_has_no_index_in_its_name) {
    EXPECT_EQ(controlName({FieldId::txtPurpose}), u"txtPurpose"_s);
    EXPECT_EQ(controlName({FieldId::txtObject, 14}), u"txtObject(14)"_s);
}

TEST_F(FocusOrderTest, a_chained_control_comes_directly_behind) {
    order.setTabIndex(u"txtEmailStep1"_s, 15);
    order.chainTabIndex(u"txtEmailStep1"_s, u"txtFileNo"_s);
    EXPECT_EQ(order.tabIndex(u"txtFileNo"_s), 16);
    EXPECT_EQ(order.tabIndex(u"txtEmailStep1"_s), 15);
}

TEST_F(FocusOrderTest, section_1_begins_with_the_file_number) {
    order.setTabIndex(u"txtFileNo"_s, 16);
    order.enterTab(0, fields);
    EXPECT_EQ(order.tabIndex(u"txtFileNo"_s), 0);
}

TEST_F(FocusOrderTest, section_2_goes_through_all_inventors_that_are_shown) {
    fields.setPanelCount(FieldGroup::Inventors, 2);
    EXPECT_EQ(focusOrderOf(1, fields),
              QStringList(
                  {u"cboInventorsNum"_s,     u"chkSameAsContact"_s,       u"txtNameStep2(0)"_s,
                   u"txtMIStep2(0)"_s,       u"txtLastStep2(0)"_s,        u"txtAddress1Step2(0)"_s,
                   u"txtAddress2Step2(0)"_s, u"txtCityStep2(0)"_s,        u"cboStateStep2(0)"_s,
                   u"txtZipStep2(0)"_s,      u"cboCitizenshipStep2(0)"_s, u"txtNameStep2(1)"_s,
                   u"txtMIStep2(1)"_s,       u"txtLastStep2(1)"_s,        u"txtAddress1Step2(1)"_s,
                   u"txtAddress2Step2(1)"_s, u"txtCityStep2(1)"_s,        u"cboStateStep2(1)"_s,
                   u"txtZipStep2(1)"_s,      u"cboCitizenshipStep2(1)"_s}));
}

TEST_F(FocusOrderTest, section_2_counts_from_1) {
    EXPECT_EQ(numbersOf(1), QList<int>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(FocusOrderTest, sections_3_and_4_name_their_first_panel) {
    EXPECT_EQ(focusOrderOf(2, fields),
              QStringList({u"txtPurpose"_s, u"cboObjectNum"_s, u"txtObject(0)"_s}));
    EXPECT_EQ(focusOrderOf(3, fields),
              QStringList({u"cboFiguresNum"_s, u"cboFigureType(0)"_s, u"imgBrowse(0)"_s,
                           u"imgRemove(0)"_s, u"txtFigureDetail(0)"_s}));
    EXPECT_EQ(numbersOf(3), QList<int>({0, 1, 2, 3, 4}));
}

TEST_F(FocusOrderTest, section_5_goes_element_by_element) {
    fields.setPanelCount(FieldGroup::MainElements, 2);
    EXPECT_EQ(focusOrderOf(4, fields),
              QStringList({u"txtMainElement"_s, u"cboMainElementNum"_s, u"txtElementName(0)"_s,
                           u"txtElementDes(0)"_s, u"txtElementName(1)"_s, u"txtElementDes(1)"_s}));
}

TEST_F(FocusOrderTest, section_6_gives_each_element_ten_numbers) {
    const QList<int> numbers = numbersOf(5);
    ASSERT_EQ(numbers.size(), 30);
    EXPECT_EQ(order.tabIndex(u"txtElementMain(0)"_s), 0);
    EXPECT_EQ(order.tabIndex(u"txtElementSub9(0)"_s), 9);
    for (int i = 1; i < 3; ++i)
        for (const auto& name : {u"txtElementMain"_s, u"txtElementSub1"_s, u"txtElementSub9"_s})
            EXPECT_EQ(order.tabIndex(controlName(name, i)),
                      order.tabIndex(controlName(name, i - 1)) + 10);
}

TEST_F(FocusOrderTest, tabs_without_an_order_change_no_number) {
    EXPECT_EQ(focusOrderOf(7, fields), QStringList({u"txtOperation"_s}));
    order.setTabIndex(u"txtDesConnections"_s, 6);
    for (const int tab : {6, 8, 9}) {
        EXPECT_EQ(focusOrderOf(tab, fields), QStringList());
        order.enterTab(tab, fields);
    }
    EXPECT_EQ(order.tabIndex(u"txtDesConnections"_s), 6);
}

TEST_F(FocusOrderTest, every_control_that_is_a_field_repeats_as_its_field_does) {
    for (int tab = 0; tab < 8; ++tab)
        for (const QString& control : focusOrderOf(tab, fields)) {
            const FieldRow* row = findFieldRow(control.section(u'(', 0, 0));
            if (!row)
                EXPECT_TRUE(control.startsWith(u"img"_s)) << control.toStdString();
            else {
                EXPECT_EQ(row->section, tab + 1) << control.toStdString();
                EXPECT_EQ(row->group != FieldGroup::Single, control.endsWith(u')'))
                    << control.toStdString();
            }
        }
}
