#include "draft/compose/DraftValues.h"

#include "draft/compose/WidgetHolder.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class DraftValuesTest : public testing::Test {
protected:
    DraftValuesTest() { fillWidgetHolder(fields); }

    ProjectFields fields;
};

const QString Indent = u"&nbsp;"_s.repeated(12);

} // namespace

TEST_F(DraftValuesTest, one_inventor_is_I_and_several_are_WE) {
    EXPECT_EQ(inventorPronoun(fields), u"WE"_s);
    setCount(fields, FieldGroup::Inventors, 1);
    EXPECT_EQ(inventorPronoun(fields), u"I"_s);
    setCount(fields, FieldGroup::Inventors, 8);
    EXPECT_EQ(inventorPronoun(fields), u"WE"_s);
}

TEST_F(DraftValuesTest, as_many_inventors_are_named_as_the_count_says_and_there_are) {
    EXPECT_EQ(inventorCount(fields), 2);
    fields.cboInventorsNum.setText(u"8"_s);
    EXPECT_EQ(inventorCount(fields), 8);
    fields.cboInventorsNum.setText(u"99"_s);
    EXPECT_EQ(inventorCount(fields), 8);
    fields.cboInventorsNum.setText(u"none"_s);
    EXPECT_EQ(inventorCount(fields), 0);
}

TEST_F(DraftValuesTest, the_conjunction_stands_before_the_last_of_several_alone) {
    setCount(fields, FieldGroup::Inventors, 3);
    EXPECT_EQ(inventorConjunction(fields, 0), u""_s);
    EXPECT_EQ(inventorConjunction(fields, 1), u""_s);
    EXPECT_EQ(inventorConjunction(fields, 2), u"and "_s);
    setCount(fields, FieldGroup::Inventors, 1);
    EXPECT_EQ(inventorConjunction(fields, 0), u""_s);
}

TEST_F(DraftValuesTest, a_name_is_first_middle_and_last_in_proper_case) {
    EXPECT_EQ(inventorName(fields, 0), u"Ann B. Cole"_s);
    fields.txtNameStep2(0).setText(u" mary ANN "_s);
    fields.txtMIStep2(0).setText(u" J. r "_s);
    fields.txtLastStep2(0).setText(u" O'NEIL-VAN  der "_s);
    EXPECT_EQ(inventorName(fields, 0), u"Mary Ann J. R. O'neil-van  Der"_s);
}

TEST_F(DraftValuesTest, a_middle_name_has_one_period_whether_typed_or_not) {
    for (const QString& middle : {u"b"_s, u"b."_s, u"B"_s, u" B. "_s}) {
        fields.txtMIStep2(0).setText(middle);
        EXPECT_EQ(inventorName(fields, 0), u"Ann B. Cole"_s);
    }
}

TEST_F(DraftValuesTest, without_a_middle_name_one_blank_stands_between_the_others) {
    EXPECT_EQ(inventorName(fields, 1), u"Ed Fox"_s);
    fields.txtMIStep2(1).setText(u"   "_s);
    EXPECT_EQ(inventorName(fields, 1), u"Ed Fox"_s);
}

TEST_F(DraftValuesTest, six_countries_have_their_article_and_others_none) {
    EXPECT_EQ(inventorCountry(fields, 0), u"the United States"_s);
    EXPECT_EQ(inventorCountry(fields, 1), u"Canada"_s);
    fields.cboCitizenshipStep2(1).setText(u" Netherlands "_s);
    EXPECT_EQ(inventorCountry(fields, 1), u"the Netherlands"_s);
}

TEST_F(DraftValuesTest, the_title_runs_through_the_text_in_lower_case) {
    fields.txtInventionTitle.setText(u"  WIDGET Holder  "_s);
    EXPECT_EQ(lowerTitle(fields), u"widget holder"_s);
}

TEST_F(DraftValuesTest, the_heading_has_every_word_in_proper_case) {
    fields.txtInventionTitle.setText(u" WIDGET holder of steel "_s);
    for (const Route route : {Route::Html, Route::Word})
        EXPECT_EQ(headingTitle(fields, route), u"Widget Holder Of Steel"_s);
}

TEST_F(DraftValuesTest, a_period_in_the_title_makes_sentences_of_the_heading) {
    fields.txtInventionTitle.setText(u"a 3.5 mm widget"_s);
    EXPECT_EQ(headingTitle(fields, Route::Html), u"A 3. 5 Mm Widget. "_s);
}

TEST_F(DraftValuesTest, the_article_of_the_title_goes_by_its_first_letter) {
    EXPECT_EQ(titleArticle(fields), u"a"_s);
    fields.txtInventionTitle.setText(u"  umbrella"_s);
    EXPECT_EQ(titleArticle(fields), u"an"_s);
}

TEST_F(DraftValuesTest, the_general_field_is_in_lower_case_alone_and_in_numbers) {
    fields.txtTechTitle.setText(u" Pocket BATTERY "_s);
    EXPECT_EQ(genericSingular(fields), u"pocket battery"_s);
    EXPECT_EQ(genericPlural(fields), u"pocket batteries"_s);
    EXPECT_EQ(genericArticle(fields), u"a"_s);
    fields.txtTechTitle.setText(u" Easel"_s);
    EXPECT_EQ(genericArticle(fields), u"an"_s);
}

TEST_F(DraftValuesTest, the_plural_of_what_ends_in_s_or_is_missing_is_empty) {
    for (const QString& field : {u"GLASS"_s, u"eyeglasses "_s, u""_s, u"  "_s}) {
        fields.txtTechTitle.setText(field);
        EXPECT_EQ(genericPlural(fields), u""_s);
    }
}

TEST_F(DraftValuesTest, an_object_is_a_sentence_with_the_title_in_proper_case) {
    EXPECT_EQ(objectSentence(fields, 0),
              u"Another object is to provide a Widget Holder that holds fast."_s);
    fields.txtInventionTitle.setText(u" ELECTRIC widget "_s);
    EXPECT_EQ(objectSentence(fields, 0),
              u"Another object is to provide an Electric Widget that holds fast."_s);
}

TEST_F(DraftValuesTest, an_object_that_ends_in_a_period_gets_no_second_one) {
    for (const QString& object : {u"lets go."_s, u" lets go. "_s, u"lets go"_s}) {
        fields.txtObject(1).setText(object);
        EXPECT_EQ(objectSentence(fields, 1),
                  u"Another object is to provide a Widget Holder that lets go."_s);
    }
}

TEST_F(DraftValuesTest, a_figure_is_told_with_its_number_and_view) {
    EXPECT_EQ(figureSentence(fields, 0),
              u"Figure 1 is an upper perspective view of the present invention."_s);
    setCount(fields, FieldGroup::Figures, 50);
    fields.cboFigureType(49).setText(u" front view "_s);
    EXPECT_EQ(figureSentence(fields, 49), u"Figure 50 is a front view of the present invention."_s);
}

TEST_F(DraftValuesTest, a_field_is_finished_with_capitals_periods_and_breaks) {
    fields.txtOperation.setText(u"  press.\r\n\r\nthe clip  "_s);
    EXPECT_EQ(finished(fields.txtOperation, Route::Html),
              u"Press. <br><br>"_s + Indent + u"The clip. "_s);
    EXPECT_EQ(finished(fields.txtOperation, Route::Word), u"Press. \r\n\r\n\tThe clip. "_s);
}

TEST_F(DraftValuesTest, a_blank_field_is_finished_as_nothing) {
    for (const QString& text : {u""_s, u"    "_s}) {
        fields.txtOperation.setText(text);
        EXPECT_EQ(finished(fields.txtOperation, Route::Html), u""_s);
    }
}

TEST_F(DraftValuesTest, alternatives_that_are_exactly_empty_are_said_not_to_be) {
    EXPECT_EQ(alternativeEmbodiments(fields, Route::Html), u"A screw instead. "_s);
    fields.txtDesAlterative.setText(u""_s);
    EXPECT_EQ(alternativeEmbodiments(fields, Route::Html),
              u"There are no alternative variations at this time."_s);
}

TEST_F(DraftValuesTest, alternatives_of_blanks_are_empty) {
    fields.txtDesAlterative.setText(u" "_s);
    EXPECT_EQ(alternativeEmbodiments(fields, Route::Html), u""_s);
}

TEST_F(DraftValuesTest, headings_are_lettered_from_B) {
    EXPECT_EQ(headingLetter(0), u"B"_s);
    EXPECT_EQ(headingLetter(2), u"D"_s);
    EXPECT_EQ(headingLetter(17), u"S"_s);
}
