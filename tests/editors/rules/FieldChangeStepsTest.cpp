#include "editors/rules/FieldRulesFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FieldChangeStepsTest : public FieldRulesFixture {
protected:
    /// What follows when the field takes the text.
    Calls callsOf(Field& field, const QString& text) {
        log.calls.clear();
        field.setText(text);
        return log.calls;
    }

    bool whitens(Field& field, const QString& text) {
        callsOf(field, text);
        return log.has("white " + controlName({field.row().id, field.index()}).toStdString());
    }
};

} // namespace

TEST_F(FieldChangeStepsTest, a_text_is_shown_mirrored_whitened_spelt_and_then_comes_the_rest) {
    followContact();
    EXPECT_EQ(
        callsOf(fields.txtCityStep1, u"New York"_s),
        Calls({"show txtCityStep1", "show txtCityStep2(0)", "white txtCityStep2(0)",
               "SpellAttach txtCityStep2(0)", "white txtCityStep1", "SpellAttach txtCityStep1"}));
    EXPECT_EQ(callsOf(fields.txtFileNo, u"QF 1"_s),
              Calls({"show txtFileNo", "white txtFileNo", "SpellAttach txtFileNo",
                     "title line: (QF 1)"}));
}

TEST_F(FieldChangeStepsTest, both_titles_make_the_title_line) {
    fields.txtFileNo.setText(u" QF-1 "_s);
    EXPECT_EQ(callsOf(fields.txtInventionTitle, u"Easel: folding"_s).back(),
              "title line: (QF-1: Easel:  folding)");
    EXPECT_EQ(fields.txtInventionTitle.text(), u"Easel: folding"_s);
    fields.txtFileNo.setText(u""_s);
    EXPECT_EQ(callsOf(fields.txtInventionTitle, u" "_s).back(), "title line: ");
    EXPECT_FALSE(log.has("white txtInventionTitle"));
}

TEST_F(FieldChangeStepsTest, a_long_title_ends_in_dots_inside_the_brackets) {
    const std::string line = callsOf(fields.txtInventionTitle, QString(90, u'x')).back();
    EXPECT_EQ(line, "title line: (" + std::string(53, 'x') + "...)");
}

TEST_F(FieldChangeStepsTest, the_first_character_that_is_no_blank_turns_a_required_field_white) {
    fields.setPanelCount(FieldGroup::Inventors, 4);
    EXPECT_FALSE(whitens(fields.txtCityStep2(3), u" "_s));
    EXPECT_TRUE(whitens(fields.txtCityStep2(3), u" N"_s));
}

TEST_F(FieldChangeStepsTest, a_field_that_is_emptied_keeps_its_colour) {
    fields.txtPurpose.setText(u"holding"_s);
    EXPECT_EQ(callsOf(fields.txtPurpose, u""_s), Calls({"show txtPurpose"}));
}

TEST_F(FieldChangeStepsTest, white_goes_to_required_fields_alone) {
    for (const FieldRow& row : fieldTable()) {
        const bool hasColour = row.kind != FieldKind::List && row.kind != FieldKind::Check;
        const bool isState = row.id == FieldId::cboStateStep1 || row.id == FieldId::cboStateStep2;
        if (!hasColour || isState)
            continue;
        EXPECT_EQ(whitens(fields.at(row.id), row.name.toString()),
                  row.required == FieldRequired::Yes)
            << row.name.toString().toStdString();
    }
}

TEST_F(FieldChangeStepsTest, a_state_turns_white_when_it_is_chosen_and_not_when_it_is_typed) {
    for (Field* field : {&fields.cboStateStep1, &fields.cboStateStep2(2)}) {
        EXPECT_FALSE(whitens(*field, u"NY"_s));
        const FieldPlace place{field->row().id, field->index()};
        steps.clicked(place);
        EXPECT_TRUE(log.has("white " + controlName(place).toStdString()));
    }
}

TEST_F(FieldChangeStepsTest, country_and_citizenship_turn_white_either_way) {
    for (Field* field : {&fields.cboCountryStep1, &fields.cboCitizenshipStep2(1)}) {
        EXPECT_TRUE(whitens(*field, u"Canada"_s));
        log.calls.clear();
        steps.clicked({field->row().id, field->index()});
        EXPECT_EQ(log.calls.size(), 1U);
    }
}

TEST_F(FieldChangeStepsTest, a_row_without_text_turns_nothing_white) {
    fields.cboStateStep1.setText(u" "_s);
    log.calls.clear();
    steps.clicked({FieldId::cboStateStep1});
    EXPECT_EQ(log.calls, Calls());
}

TEST_F(FieldChangeStepsTest, the_second_word_binds_the_spell_checker) {
    EXPECT_EQ(callsOf(fields.txtOperation, u"word"_s),
              Calls({"show txtOperation", "white txtOperation"}));
    EXPECT_TRUE(callsOf(fields.txtOperation, u"word "_s).back() == "SpellAttach txtOperation");
    EXPECT_TRUE(callsOf(fields.txtOperation, u"word b"_s).back() == "SpellAttach txtOperation");
    EXPECT_FALSE(callsOf(fields.txtOperation, u"   word"_s).back() == "SpellAttach txtOperation");
}

TEST_F(FieldChangeStepsTest, only_blanks_divide_words_for_the_spell_checker) {
    EXPECT_FALSE(isWorthSpelling(u""));
    EXPECT_FALSE(isWorthSpelling(u"   "));
    EXPECT_FALSE(isWorthSpelling(u"one\ttwo\r\nthree"));
    EXPECT_TRUE(isWorthSpelling(u"  one two"));
}

TEST_F(FieldChangeStepsTest, every_text_is_spelt_but_the_path_of_a_figure_and_the_lists) {
    for (const FieldRow& row : fieldTable()) {
        const std::string name = controlName({row.id}).toStdString();
        callsOf(fields.at(row.id), u"two words"_s);
        EXPECT_EQ(log.has("SpellAttach " + name),
                  row.name.startsWith(u"txt") && row.id != FieldId::txtAttachFig)
            << name;
    }
}

TEST_F(FieldChangeStepsTest, a_view_writes_its_sentence_anew) {
    EXPECT_EQ(callsOf(fields.cboFigureType(0), u"front view"_s),
              Calls({"show cboFigureType(0)", "white cboFigureType(0)", "figure sentence 0"}));
}

TEST_F(FieldChangeStepsTest, the_path_of_a_figure_turns_white) {
    EXPECT_EQ(callsOf(fields.txtAttachFig(0), u"/home/ann/my figure.png"_s),
              Calls({"show txtAttachFig(0)", "white txtAttachFig(0)"}));
}

TEST_F(FieldChangeStepsTest, a_name_shows_in_the_other_section_trimmed) {
    fields.txtElementName(1).setText(u" hinge "_s);
    EXPECT_EQ(fields.txtElementMain(1).text(), u"hinge"_s);
    fields.txtElementMain(2).setText(u"  leg "_s);
    EXPECT_EQ(fields.txtElementName(2).text(), u"leg"_s);
}

TEST_F(FieldChangeStepsTest, a_blank_typed_behind_a_name_stays_where_it_was_typed) {
    fields.txtElementName(0).setText(u"hinge"_s);
    fields.txtElementName(0).setText(u"hinge "_s);
    EXPECT_EQ(fields.txtElementName(0).text(), u"hinge "_s);
    EXPECT_EQ(fields.txtElementMain(0).text(), u"hinge"_s);
    fields.txtElementMain(1).setText(u"leg"_s);
    fields.txtElementMain(1).setText(u"leg "_s);
    EXPECT_EQ(fields.txtElementMain(1).text(), u"leg "_s);
    EXPECT_EQ(fields.txtElementName(1).text(), u"leg"_s);
}

TEST_F(FieldChangeStepsTest, a_name_waits_until_section_6_has_its_panels) {
    fields.cboMainElementNum.setText(u"4"_s);
    fields.setPanelCount(FieldGroup::MainElements, 4);
    fields.txtElementName(0).setText(u"hinge"_s);
    EXPECT_EQ(fields.txtElementMain(0).text(), QString());
    fields.setPanelCount(FieldGroup::SubElements, 4);
    fields.txtElementName(0).setText(u"hinges"_s);
    EXPECT_EQ(fields.txtElementMain(0).text(), u"hinges"_s);
}

TEST_F(FieldChangeStepsTest, an_element_above_the_count_names_no_block_of_section_6) {
    fields.setPanelCount(FieldGroup::MainElements, 4);
    fields.txtElementName(3).setText(u"foot"_s);
    EXPECT_EQ(fields.txtElementMain.count(), 3);
    EXPECT_TRUE(log.has("white txtElementName(3)"));
}

TEST_F(FieldChangeStepsTest, section_6_names_section_5_whatever_the_panels) {
    fields.cboMainElementNum.setText(u"4"_s);
    fields.txtElementMain(0).setText(u"hinge"_s);
    EXPECT_EQ(fields.txtElementName(0).text(), u"hinge"_s);
}

TEST_F(FieldChangeStepsTest, a_name_of_an_element_that_has_gone_names_nobody) {
    fields.setPanelCount(FieldGroup::MainElements, 2);
    fields.txtElementMain(2).setText(u"strut"_s);
    EXPECT_EQ(fields.txtElementName.count(), 2);
}

TEST_F(FieldChangeStepsTest, lowering_and_raising_the_count_gives_an_empty_third_element) {
    fields.txtElementName(2).setText(u"strut"_s);
    fields.txtElementDes(2).setText(u"holds"_s);
    fields.txtElementSub1(2).setText(u"pin"_s);
    fields.txtMainElementNameDetail(2).setText(u"round"_s);
    fields.txtMainElementVariations(2).setText(u"square"_s);
    log.calls.clear();
    for (const auto* count : {u"2", u"3"}) {
        fields.cboMainElementNum.setText(QString::fromUtf16(count));
        fields.setPanelCount(FieldGroup::MainElements, fields.cboMainElementNum.number());
    }
    for (const Field* field :
         {&fields.txtElementName(2), &fields.txtElementDes(2), &fields.txtElementSub1(2),
          &fields.txtMainElementNameDetail(2), &fields.txtMainElementVariations(2)})
        EXPECT_EQ(field->text(), QString()) << field->row().name.toString().toStdString();
    EXPECT_TRUE(log.has("show txtElementSub1(2)"));
    EXPECT_TRUE(log.has("show txtMainElementVariations(2)"));
}

TEST_F(FieldChangeStepsTest, while_a_new_project_is_made_changes_are_shown_and_nothing_else) {
    followContact();
    state.resetting = true;
    EXPECT_EQ(callsOf(fields.txtCityStep1, u"New York"_s), Calls({"show txtCityStep1"}));
    EXPECT_EQ(callsOf(fields.txtElementName(0), u"hinge pin"_s), Calls({"show txtElementName(0)"}));
    EXPECT_EQ(callsOf(fields.txtFileNo, u"QF 1"_s), Calls({"show txtFileNo"}));
}

TEST_F(FieldChangeStepsTest, a_view_that_is_reset_takes_its_article_along) {
    fields.cboFigureType(0).setText(u"upper perspective view"_s);
    state.resetting = true;
    EXPECT_EQ(callsOf(fields.cboFigureType(0), u"SELECT A VIEW"_s),
              Calls({"show cboFigureType(0)", "figure sentence 0"}));
}

TEST_F(FieldChangeStepsTest, a_load_turns_white_and_spells_and_changes_no_other_field) {
    followContact();
    fields.txtElementMain(0).setText(u"hinge"_s);
    log.calls.clear();
    state.isLoading = true;
    fields.txtCityStep1.loadText(u"New York"_s);
    fields.txtElementName(0).loadText(u"leg"_s);
    fields.txtElementMain(1).loadText(u" foot"_s);
    fields.cboStateStep1.loadText(u"NY"_s);
    EXPECT_EQ(log.calls,
              Calls({"show txtCityStep1", "white txtCityStep1", "SpellAttach txtCityStep1",
                     "show txtElementName(0)", "white txtElementName(0)", "show txtElementMain(1)",
                     "white txtElementMain(1)", "show cboStateStep1", "white cboStateStep1"}));
    EXPECT_EQ(fields.txtCityStep2(0).text(), QString());
    EXPECT_EQ(fields.txtElementMain(0).text(), u"hinge"_s);
    EXPECT_EQ(fields.txtElementName(1).text(), QString());
}

TEST_F(FieldChangeStepsTest, a_load_writes_the_title_line) {
    state.isLoading = true;
    fields.txtFileNo.loadText(u"QF-1"_s);
    EXPECT_TRUE(log.has("title line: (QF-1)"));
}

TEST_F(FieldChangeStepsTest, a_changed_field_of_section_6_redraws_the_index_when_it_is_left) {
    steps.focusLost({FieldId::txtElementSub9, 1});
    EXPECT_EQ(log.calls, Calls());
    fields.txtElementSub9(1).setText(u"pin"_s);
    fields.txtElementMain(1).setText(u"leg"_s);
    log.calls.clear();
    steps.focusLost({FieldId::txtElementSub9, 1});
    steps.focusLost({FieldId::txtElementMain, 1});
    EXPECT_EQ(log.calls, Calls({"RebuildElementIndex", "RebuildElementIndex"}));
}

TEST_F(FieldChangeStepsTest, a_name_of_section_5_redraws_nothing_when_it_is_left) {
    fields.txtElementName(0).setText(u"leg"_s);
    log.calls.clear();
    steps.focusLost({FieldId::txtElementName, 0});
    EXPECT_EQ(log.calls, Calls());
}
