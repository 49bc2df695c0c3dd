#include "core/rules/SectionRules.h"

#include "core/fields/FieldLists.h"
#include "support/FakePrompts.h"
#include "support/FakeTabLooks.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>
#include <set>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What each section needs, by its tab.
const QStringList Required[SectionRules::SectionCount] = {
    {u"txtFileNo"_s, u"txtInventionTitle"_s, u"txtTechTitle"_s, u"txtNameStep1"_s,
     u"txtLastStep1"_s, u"txtAddress1Step1"_s, u"txtCityStep1"_s, u"cboStateStep1"_s,
     u"txtZipStep1"_s, u"cboCountryStep1"_s},
    {u"txtNameStep2"_s, u"txtLastStep2"_s, u"txtAddress1Step2"_s, u"txtCityStep2"_s,
     u"cboStateStep2"_s, u"txtZipStep2"_s, u"cboCitizenshipStep2"_s},
    {u"txtPurpose"_s, u"txtObject"_s},
    {u"txtAttachFig"_s, u"cboFigureType"_s, u"txtFigureDetail"_s},
    {u"txtMainElement"_s, u"txtElementName"_s, u"txtElementDes"_s},
    {u"txtElementMain"_s},
    {u"txtMainElementNameDetail"_s, u"txtDesConnections"_s},
    {u"txtOperation"_s},
};

const QStringList Counts{u"cboInventorsNum"_s, u"cboObjectNum"_s, u"cboFiguresNum"_s,
                         u"cboMainElementNum"_s};

/// How many members of a field its section looks at.
int membersJudged(const ProjectFields& fields, const FieldRow& row) {
    return row.group == FieldGroup::Inventors ? fields.panelCount(row.group) : fields.count(row.id);
}

class SectionRulesTest : public testing::Test {
protected:
    /// Two inventors and two figures, so that a member behind the first counts everywhere; nothing
    /// beyond what the sections need is filled.
    void completeTheProject() {
        fields.setPanelCount(FieldGroup::Inventors, 2);
        fields.setPanelCount(FieldGroup::Figures, 2);
        for (const QStringList& names : Required)
            for (const QString& name : names) {
                const FieldRow& row = *findFieldRow(name);
                for (int i = 0; i < membersJudged(fields, row); ++i)
                    fields.at(row.id, i).setText(u"x"_s);
            }
    }

    void validateAll() {
        for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
            rules.validateSection(tab);
    }

    /// The tags of tabs 0 to 9, one blank apart; an empty tag is a dash.
    std::string tags() const {
        QStringList texts;
        for (int tab = 0; tab < SectionRules::TabCount; ++tab)
            texts.append(rules.tag(tab).isEmpty() ? u"-"_s : rules.tag(tab));
        return texts.join(u' ').toStdString();
    }

    ProjectFields fields;
    ProjectState state;
    FakeTabLooks looks;
    FakePrompts prompts;
    SectionRules rules{fields, state, looks, prompts};
};

using Calls = std::vector<std::string>;

} // namespace

// The rules

TEST_F(SectionRulesTest, accept_a_project_with_every_required_field_and_no_other) {
    completeTheProject();
    validateAll();
    EXPECT_EQ(tags(), "OK OK OK OK OK OK OK OK - -");
}

TEST_F(SectionRulesTest, need_no_field_that_is_not_required) {
    completeTheProject();
    for (const FieldRow& row : fieldTable()) {
        const bool needed = Counts.contains(row.name) ||
                            std::any_of(std::begin(Required), std::end(Required),
                                        [&](const QStringList& s) { return s.contains(row.name); });
        for (int i = 0; !needed && i < fields.count(row.id); ++i)
            fields.at(row.id, i).setText(QString());
    }
    validateAll();
    EXPECT_EQ(tags(), "OK OK OK OK OK OK OK OK - -");
}

TEST_F(SectionRulesTest, miss_each_required_field_on_each_panel_in_its_own_section_alone) {
    completeTheProject();
    for (int section = 0; section < SectionRules::SectionCount; ++section)
        for (const QString& name : Required[section]) {
            const FieldRow& row = *findFieldRow(name);
            for (int i = 0; i < membersJudged(fields, row); ++i) {
                SCOPED_TRACE(name.toStdString() + '(' + std::to_string(i) + ')');
                for (const QString& empty : {u""_s, u"   "_s}) {
                    fields.at(row.id, i).setText(empty);
                    for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
                        EXPECT_EQ(rules.sectionIsFilled(tab), tab != section) << "tab " << tab;
                }
                fields.at(row.id, i).setText(u"x"_s);
            }
        }
}

TEST_F(SectionRulesTest, find_the_sections_of_a_new_project_incomplete) {
    validateAll();
    EXPECT_EQ(tags(), "WARNING WARNING WARNING WARNING WARNING WARNING WARNING WARNING - -");
}

TEST_F(SectionRulesTest, have_the_contacts_state_filled_until_the_user_clears_it) {
    EXPECT_TRUE(fields.cboStateStep1.isFilled());
    completeTheProject();
    fields.cboStateStep1.setText(u""_s);
    EXPECT_FALSE(rules.sectionIsFilled(0));
}

TEST_F(SectionRulesTest, do_not_count_an_inventor_who_is_not_shown) {
    completeTheProject();
    fields.txtNameStep2(7).setText(u"hidden and unfinished"_s);
    EXPECT_TRUE(rules.sectionIsFilled(1));
    fields.setPanelCount(FieldGroup::Inventors, 3);
    EXPECT_FALSE(rules.sectionIsFilled(1));
    fields.setPanelCount(FieldGroup::Inventors, 2);
    EXPECT_TRUE(rules.sectionIsFilled(1));
}

TEST_F(SectionRulesTest, find_the_figures_complete_for_a_count_of_0_whatever_else_is_there) {
    for (const QString& zero : {u"0"_s, u" 0"_s, u""_s}) {
        fields.cboFiguresNum.setText(zero);
        for (const QString& rest : {u""_s, u"SELECT A VIEW"_s, u"x"_s}) {
            fields.txtAttachFig(0).setText(rest);
            fields.cboFigureType(0).setText(rest);
            fields.txtFigureDetail(0).setText(rest);
            EXPECT_TRUE(rules.sectionIsFilled(3)) << zero.toStdString() << rest.toStdString();
        }
    }
}

TEST_F(SectionRulesTest, judge_the_figures_by_their_panels_and_not_by_a_count_above_0) {
    completeTheProject();
    fields.cboFiguresNum.setText(u"50"_s);
    EXPECT_TRUE(rules.sectionIsFilled(3));
}

TEST_F(SectionRulesTest, find_the_figures_incomplete_while_a_heading_is_selected) {
    completeTheProject();
    for (const QString& view : listRows(FieldListId::Views)) {
        fields.cboFigureType(1).setText(view);
        EXPECT_EQ(rules.sectionIsFilled(3), view != u"SELECT A VIEW" && !view.startsWith(u"---"_s))
            << view.toStdString();
    }
}

TEST_F(SectionRulesTest, find_Section_6_broken_by_an_emptied_copy_of_a_name_alone) {
    completeTheProject();
    fields.txtElementName(1).setText(u""_s);
    EXPECT_TRUE(rules.sectionIsFilled(5));
    fields.txtElementMain(1).setText(u""_s);
    EXPECT_FALSE(rules.sectionIsFilled(5));
}

TEST_F(SectionRulesTest, keep_their_verdicts_while_a_project_is_opened) {
    completeTheProject();
    state.isOpening = true;
    EXPECT_TRUE(rules.sectionIsFilled(1));
    fields.txtNameStep2(0).setText(u""_s);
    EXPECT_FALSE(rules.sectionIsFilled(1));
}

// The tags

TEST_F(SectionRulesTest, begin_with_empty_tags_that_count_as_incomplete) {
    completeTheProject();
    EXPECT_EQ(tags(), "- - - - - - - - - -");
    EXPECT_EQ(rules.incompleteSections(), (QList<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(rules.isComplete(0));
    EXPECT_FALSE(rules.isComplete(8));
}

TEST_F(SectionRulesTest, name_the_sections_that_are_not_OK_in_rising_order) {
    completeTheProject();
    fields.txtElementDes(0).setText(u""_s);
    fields.txtPurpose.setText(u""_s);
    validateAll();
    EXPECT_EQ(rules.incompleteSections(), (QList<int>{3, 5}));
}

TEST_F(SectionRulesTest, take_only_the_exact_text_OK_as_complete) {
    for (const QString& status : {u""_s, u"ok"_s, u"OK "_s, u"WARNING"_s}) {
        rules.setSectionStatus(0, status);
        EXPECT_FALSE(rules.isComplete(0)) << status.toStdString();
        EXPECT_EQ(rules.tag(0), status);
    }
    rules.setSectionStatus(0, u"OK"_s);
    EXPECT_TRUE(rules.isComplete(0));
}

TEST_F(SectionRulesTest, change_a_tag_only_when_the_section_is_checked_again) {
    completeTheProject();
    fields.txtOperation.setText(u""_s);
    rules.validateSection(7);
    fields.txtOperation.setText(u"It folds."_s);
    EXPECT_EQ(rules.tag(7), u"WARNING"_s);
    rules.validateSection(7);
    EXPECT_EQ(rules.tag(7), u"OK"_s);
}

// validateSection

TEST_F(SectionRulesTest, validate_without_touching_a_look_or_tab_8) {
    completeTheProject();
    validateAll();
    EXPECT_TRUE(looks.calls.empty());
    EXPECT_EQ(rules.tag(8), QString());
}

TEST_F(SectionRulesTest, validate_nothing_on_a_tab_without_a_section) {
    completeTheProject();
    for (const int tab : {8, 9, 10, 32'767, -1, -32'768})
        rules.validateSection(tab);
    EXPECT_EQ(tags(), "- - - - - - - - - -");
    EXPECT_TRUE(looks.calls.empty());
    EXPECT_TRUE(prompts.boxes.empty());
}

// refreshSection

TEST_F(SectionRulesTest, refresh_the_look_of_a_tab_and_then_tab_8_and_the_draft_commands) {
    completeTheProject();
    rules.refreshSection(2);
    EXPECT_EQ(looks.calls,
              (Calls{"tab 2 looks complete", "tab 8 looks incomplete", "draft commands off"}));
    EXPECT_EQ(tags(), "- - OK - - - - - WARNING -");
}

TEST_F(SectionRulesTest, refresh_tab_8_to_OK_with_the_last_section_and_leave_the_draft_commands) {
    completeTheProject();
    validateAll();
    looks.calls.clear();
    rules.refreshSection(7);
    EXPECT_EQ(looks.calls, (Calls{"tab 7 looks complete", "tab 8 looks complete"}));
    EXPECT_EQ(tags(), "OK OK OK OK OK OK OK OK OK -");
}

TEST_F(SectionRulesTest, refresh_tab_8_to_WARNING_when_a_section_breaks_again) {
    completeTheProject();
    validateAll();
    rules.refreshSection(0);
    fields.txtFileNo.setText(u""_s);
    looks.calls.clear();
    rules.refreshSection(0);
    EXPECT_EQ(looks.calls,
              (Calls{"tab 0 looks incomplete", "tab 8 looks incomplete", "draft commands off"}));
    EXPECT_EQ(tags(), "WARNING OK OK OK OK OK OK OK WARNING -");
}

TEST_F(SectionRulesTest, refresh_tab_8_alone_for_a_tab_without_a_section) {
    completeTheProject();
    validateAll();
    for (const int tab : {8, 9, 100, -1}) {
        looks.calls.clear();
        rules.refreshSection(tab);
        EXPECT_EQ(looks.calls, Calls{"tab 8 looks complete"}) << tab;
    }
    EXPECT_EQ(rules.tag(9), QString());
}

TEST_F(SectionRulesTest, refresh_tab_8_from_the_tags_and_not_from_the_fields) {
    completeTheProject();
    validateAll();
    fields.txtFileNo.setText(u""_s);
    rules.refreshSection(3);
    EXPECT_EQ(rules.tag(8), u"OK"_s);
    rules.setSectionStatus(3, u"ok"_s);
    rules.refreshSection(8);
    EXPECT_EQ(rules.tag(8), u"WARNING"_s);
}

TEST_F(SectionRulesTest, give_a_tab_the_look_of_its_status_not_selected) {
    rules.setSectionStatus(3, u"OK"_s);
    rules.setSectionStatus(4, u"WARNING"_s);
    rules.setSectionStatus(9, u""_s);
    EXPECT_EQ(looks.calls,
              (Calls{"tab 3 looks complete", "tab 4 looks incomplete", "tab 9 looks incomplete"}));
}

// Failures

TEST_F(SectionRulesTest, tell_a_failure_in_a_box_and_leave_the_tag_as_it_was) {
    completeTheProject();
    fields.txtPurpose.setText(u""_s);
    rules.validateSection(2);
    fields.txtPurpose.setText(u"x"_s);
    looks.refuses = [](const std::string& call) { return call == "tab 2 looks complete"; };

    rules.refreshSection(2);

    EXPECT_EQ(looks.calls, (Calls{"tab 2 looks complete", "default pointer"}));
    EXPECT_EQ(prompts.boxes,
              (std::vector<FakePrompts::Box>{
                  {UserPrompts::Icon::None, u"Error"_s, u"cannot do: tab 2 looks complete"_s}}));
    EXPECT_EQ(tags(), "- - WARNING - - - - - - -");
}

TEST_F(SectionRulesTest, keep_the_sections_verdict_when_tab_8_fails) {
    completeTheProject();
    looks.refuses = [](const std::string& call) { return call == "tab 8 looks incomplete"; };
    rules.refreshSection(2);
    EXPECT_EQ(tags(), "- - OK - - - - - - -");
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, u"Error"_s);
}

TEST_F(SectionRulesTest, go_on_after_a_failure) {
    completeTheProject();
    looks.refuses = [](const std::string& call) { return call == "draft commands off"; };
    rules.refreshSection(2);
    looks.refuses = {};
    rules.refreshSection(3);
    EXPECT_EQ(tags(), "- - OK OK - - - - WARNING -");
    EXPECT_EQ(prompts.boxes.size(), 1U);
}

TEST_F(SectionRulesTest, hand_a_failure_of_setSectionStatus_to_its_caller) {
    looks.refuses = [](const std::string&) { return true; };
    EXPECT_THROW(rules.setSectionStatus(2, u"OK"_s), Error);
    EXPECT_EQ(rules.tag(2), QString());
    EXPECT_TRUE(prompts.boxes.empty());
}
