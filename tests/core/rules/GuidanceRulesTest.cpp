#include "core/rules/GuidanceRules.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Names = std::vector<std::string>;

std::string name(FieldPlace place) {
    const FieldRow& row = fieldRow(place.field);
    const std::string text = row.name.toString().toStdString();
    return row.group == FieldGroup::Single ? text : text + '(' + std::to_string(place.index) + ')';
}

Names names(const QList<FieldPlace>& places) {
    Names texts;
    for (const FieldPlace place : places)
        texts.push_back(name(place));
    return texts;
}

/// A move as a reader would write it: the scroll's column, row and end, then the field.
std::string text(const std::optional<FocusMove>& move) {
    if (!move)
        return "nothing";
    std::string words;
    if (move->scroll)
        words = "scroll " + std::to_string(move->scroll->scrollIndex) + " to row " +
                std::to_string(move->scroll->row) + (move->scroll->atEnd ? " at end, " : ", ");
    return words + (move->focus ? name(*move->focus) : "no focus");
}

class GuidanceRulesTest : public testing::Test {
protected:
    std::string move(int tab) const { return text(firstFieldToEnter(fields, tab)); }

    /// Fills every required field up to, but without, the one named, and says where the user is
    /// led then.
    std::string moveTo(int tab, FieldId id, int index) {
        for (const FieldPlace place : requiredFields(fields, tab)) {
            if (place == FieldPlace{id, index})
                return move(tab);
            fields.at(place.field, place.index).setText(u"x"_s);
        }
        return "never reached";
    }

    ProjectFields fields;
};

} // namespace

TEST_F(GuidanceRulesTest, section_1_asks_for_ten_fields_in_their_order) {
    EXPECT_EQ(names(requiredFields(fields, 0)),
              Names({"txtFileNo", "txtInventionTitle", "txtTechTitle", "txtNameStep1",
                     "txtLastStep1", "txtAddress1Step1", "txtCityStep1", "cboStateStep1",
                     "txtZipStep1", "cboCountryStep1"}));
}

TEST_F(GuidanceRulesTest, section_2_goes_inventor_by_inventor_as_far_as_they_are_shown) {
    fields.cboInventorsNum.setText(u"2"_s);
    fields.setPanelCount(FieldGroup::Inventors, 2);
    EXPECT_EQ(names(requiredFields(fields, 1)),
              Names({"txtNameStep2(0)", "txtLastStep2(0)", "txtAddress1Step2(0)", "txtCityStep2(0)",
                     "cboStateStep2(0)", "txtZipStep2(0)", "cboCitizenshipStep2(0)",
                     "txtNameStep2(1)", "txtLastStep2(1)", "txtAddress1Step2(1)", "txtCityStep2(1)",
                     "cboStateStep2(1)", "txtZipStep2(1)", "cboCitizenshipStep2(1)"}));
}

TEST_F(GuidanceRulesTest, section_3_asks_for_the_purpose_and_each_object) {
    EXPECT_EQ(names(requiredFields(fields, 2)), Names({"txtPurpose", "txtObject(0)", "txtObject(1)",
                                                       "txtObject(2)", "txtObject(3)"}));
}

TEST_F(GuidanceRulesTest, section_4_goes_figure_by_figure) {
    fields.cboFiguresNum.setText(u"2"_s);
    fields.setPanelCount(FieldGroup::Figures, 2);
    EXPECT_EQ(names(requiredFields(fields, 3)),
              Names({"txtAttachFig(0)", "cboFigureType(0)", "txtFigureDetail(0)", "txtAttachFig(1)",
                     "cboFigureType(1)", "txtFigureDetail(1)"}));
}

TEST_F(GuidanceRulesTest, sections_5_to_8_ask_for_what_each_main_element_needs) {
    fields.cboMainElementNum.setText(u"2"_s);
    EXPECT_EQ(names(requiredFields(fields, 4)),
              Names({"txtMainElement", "txtElementName(0)", "txtElementDes(0)", "txtElementName(1)",
                     "txtElementDes(1)"}));
    EXPECT_EQ(names(requiredFields(fields, 5)), Names({"txtElementMain(0)", "txtElementMain(1)"}));
    EXPECT_EQ(
        names(requiredFields(fields, 6)),
        Names({"txtMainElementNameDetail(0)", "txtMainElementNameDetail(1)", "txtDesConnections"}));
    EXPECT_EQ(names(requiredFields(fields, 7)), Names({"txtOperation"}));
}

TEST_F(GuidanceRulesTest, the_draft_and_the_filing_page_ask_for_nothing) {
    for (const int tab : {8, 9}) {
        EXPECT_TRUE(requiredFields(fields, tab).isEmpty());
        EXPECT_EQ(move(tab), "nothing");
    }
}

TEST_F(GuidanceRulesTest, a_count_ahead_of_its_panels_reaches_no_panel_that_is_not_there) {
    fields.cboMainElementNum.setText(u"15"_s);
    EXPECT_EQ(names(requiredFields(fields, 5)),
              Names({"txtElementMain(0)", "txtElementMain(1)", "txtElementMain(2)"}));
}

TEST_F(GuidanceRulesTest, empty_and_blank_fields_are_tinted_and_no_others) {
    fields.txtFileNo.setText(u"  "_s);
    fields.txtInventionTitle.setText(u"Easel"_s);
    fields.txtTechTitle.setText(u"easels"_s);
    EXPECT_EQ(names(fieldsToTint(fields, 0)),
              Names({"txtFileNo", "txtNameStep1", "txtLastStep1", "txtAddress1Step1",
                     "txtCityStep1", "txtZipStep1"}));
}

TEST_F(GuidanceRulesTest, a_heading_among_the_views_is_tinted_although_it_is_not_empty) {
    fields.txtAttachFig(0).setText(u"fig.png"_s);
    fields.txtFigureDetail(0).setText(u"a view"_s);
    EXPECT_EQ(names(fieldsToTint(fields, 3)), Names({"cboFigureType(0)"}));
    fields.cboFigureType(0).setText(u"front view"_s);
    EXPECT_EQ(names(fieldsToTint(fields, 3)), Names());
    fields.cboFigureType(0).setText(u" "_s);
    EXPECT_EQ(names(fieldsToTint(fields, 3)), Names({"cboFigureType(0)"}));
}

TEST_F(GuidanceRulesTest, a_figure_whose_file_is_gone_is_not_tinted) {
    fields.txtAttachFig(0).setText(u"/nowhere/fig.png"_s);
    EXPECT_EQ(names(fieldsToTint(fields, 3)), Names({"cboFigureType(0)", "txtFigureDetail(0)"}));
}

TEST_F(GuidanceRulesTest, a_blank_field_is_the_first_to_enter) {
    fields.txtFileNo.setText(u"   "_s);
    EXPECT_EQ(move(0), "txtFileNo");
}

TEST_F(GuidanceRulesTest, section_1_scrolls_nothing) {
    EXPECT_EQ(moveTo(0, FieldId::txtZipStep1, 0), "txtZipStep1");
}

TEST_F(GuidanceRulesTest, an_inventor_is_scrolled_to_and_entered) {
    fields.cboInventorsNum.setText(u"3"_s);
    fields.setPanelCount(FieldGroup::Inventors, 3);
    EXPECT_EQ(move(1), "scroll 0 to row 0, txtNameStep2(0)");
    EXPECT_EQ(moveTo(1, FieldId::txtCityStep2, 2), "scroll 0 to row 2, txtCityStep2(2)");
}

TEST_F(GuidanceRulesTest, the_first_inventor_gets_no_focus_while_the_contact_fills_it) {
    fields.cboInventorsNum.setText(u"2"_s);
    fields.setPanelCount(FieldGroup::Inventors, 2);
    fields.chkSameAsContact.setText(u"1"_s);
    EXPECT_EQ(move(1), "scroll 0 to row 0, no focus");
    EXPECT_EQ(moveTo(1, FieldId::txtNameStep2, 1), "scroll 0 to row 1, txtNameStep2(1)");
}

TEST_F(GuidanceRulesTest, only_the_last_object_is_scrolled_to_the_end) {
    EXPECT_EQ(move(2), "txtPurpose");
    EXPECT_EQ(moveTo(2, FieldId::txtObject, 2), "scroll 1 to row 2, txtObject(2)");
    EXPECT_EQ(moveTo(2, FieldId::txtObject, 3), "scroll 1 to row 3 at end, txtObject(3)");
}

TEST_F(GuidanceRulesTest, a_figure_without_a_file_gets_the_scroll_alone) {
    EXPECT_EQ(move(3), "scroll 2 to row 0, no focus");
    fields.txtAttachFig(0).setText(u"/nowhere/fig.png"_s);
    EXPECT_EQ(move(3), "scroll 2 to row 0, no focus");
}

TEST_F(GuidanceRulesTest, a_heading_does_not_stop_the_walk) {
    QTemporaryFile picture;
    ASSERT_TRUE(picture.open());
    fields.txtAttachFig(0).setText(picture.fileName());
    EXPECT_EQ(move(3), "scroll 2 to row 0, txtFigureDetail(0)");
    fields.cboFigureType(0).setText(QString());
    EXPECT_EQ(move(3), "scroll 2 to row 0, cboFigureType(0)");
    fields.cboFigureType(0).setText(u"SELECT A VIEW"_s);
    fields.txtFigureDetail(0).setText(u"a view"_s);
    EXPECT_EQ(move(3), "nothing");
}

TEST_F(GuidanceRulesTest, without_figures_there_is_nothing_to_tint_or_to_enter) {
    fields.cboFiguresNum.setText(u"0"_s);
    fields.setPanelCount(FieldGroup::Figures, 0);
    EXPECT_TRUE(fieldsToTint(fields, 3).isEmpty());
    EXPECT_EQ(move(3), "nothing");
}

TEST_F(GuidanceRulesTest, the_elements_sections_scroll_their_own_columns) {
    EXPECT_EQ(move(4), "txtMainElement");
    EXPECT_EQ(moveTo(4, FieldId::txtElementDes, 1), "scroll 3 to row 1, txtElementDes(1)");
    EXPECT_EQ(moveTo(5, FieldId::txtElementMain, 2), "scroll 4 to row 2, txtElementMain(2)");
    EXPECT_EQ(moveTo(6, FieldId::txtMainElementNameDetail, 1),
              "scroll 5 to row 1, txtMainElementNameDetail(1)");
    EXPECT_EQ(moveTo(6, FieldId::txtDesConnections, 0), "scroll 5 to row 3, txtDesConnections");
}

TEST_F(GuidanceRulesTest, section_8_has_one_field_until_it_is_filled) {
    EXPECT_EQ(move(7), "txtOperation");
    fields.txtOperation.setText(u"It folds."_s);
    EXPECT_EQ(move(7), "nothing");
}
