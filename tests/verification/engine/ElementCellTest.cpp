#include "verification/engine/ElementCell.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ElementCell, knows_its_field_and_its_numeral) {
    ProjectFields fields;
    EXPECT_EQ(&ElementCell({0, 0}).field(fields), &fields.txtElementMain(0));
    EXPECT_EQ(&ElementCell({1, 3}).field(fields), &fields.txtElementSub3(1));
    EXPECT_EQ(&ElementCell({2, 9}).field(fields), &fields.txtElementSub9(2));
    EXPECT_EQ(ElementCell({0, 0}).numeral(), u"10"_s);
    EXPECT_EQ(ElementCell({1, 3}).numeral(), u"23"_s);
    EXPECT_EQ(ElementCell({14, 9}).numeral(), u"159"_s);
}

TEST(ElementCell, a_new_project_has_no_filled_cell) {
    EXPECT_EQ(getElementsEnterNum(ProjectFields()), 0);
}

TEST(ElementCell, filled_cells_of_all_panels_are_counted) {
    ProjectFields fields;
    fields.txtElementMain(0).setText(u"hinge"_s);
    fields.txtElementSub1(1).setText(u"pin"_s);
    fields.txtElementSub9(2).setText(u"leaf"_s);
    EXPECT_EQ(getElementsEnterNum(fields), 3);
}

TEST(ElementCell, a_cell_of_blanks_is_not_filled) {
    ProjectFields fields;
    fields.txtElementMain(0).setText(u"   "_s);
    EXPECT_EQ(getElementsEnterNum(fields), 0);
}

TEST(ElementCell, names_on_the_page_of_main_elements_are_not_counted) {
    ProjectFields fields;
    fields.txtElementName(0).setText(u"hinge"_s);
    EXPECT_EQ(getElementsEnterNum(fields), 0);
}

TEST(ElementCell, only_the_panels_of_the_tables_are_counted_whatever_other_groups_have) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::SubElements, 1);
    fields.setPanelCount(FieldGroup::MainElements, 15);
    fields.setPanelCount(FieldGroup::Descriptions, 7);
    fields.txtElementMain(0).setText(u"hinge"_s);
    EXPECT_EQ(getElementsEnterNum(fields), 1);
}

TEST(ElementCell, the_largest_tables_have_150_cells) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::SubElements, 15);
    for (const FieldRow& row : fieldTable())
        for (int panel = 0; row.group == FieldGroup::SubElements && panel < 15; ++panel)
            fields.at(row.id, panel).setText(u"x"_s);
    EXPECT_EQ(getElementsEnterNum(fields), 150);
}
