#include "core/rules/Completeness.h"

#include "core/fields/ProjectFields.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

using Answer = VisibleFieldsFilled::Answer;

namespace {

/// Gives the first members of the array these texts.
void fill(FieldArray& fields, std::initializer_list<QStringView> texts) {
    int index = 0;
    for (const QStringView text : texts)
        fields(index++).setText(text.toString());
}

} // namespace

TEST(Completeness, is_all_filled_when_no_member_is_blank) {
    struct Case {
        std::initializer_list<QStringView> texts;
        bool all;
        int filled;
    };

    const Case cases[] = {
        {{u"a", u"b", u"c", u"d"}, true, 4}, {{u"a", u"b", u"c", u""}, false, 3},
        {{u"", u"b", u"c", u"d"}, false, 3}, {{u"a", u"  ", u"c", u"d"}, false, 3},
        {{u"", u" ", u"", u"  "}, false, 0}, {{u"\t", u"\r\n", u" a ", u"\u00A0"}, true, 4},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(&given - cases);
        ProjectFields fields;
        fill(fields.txtObject, given.texts);
        EXPECT_EQ(allFieldsFilled(fields.txtObject), given.all);
        EXPECT_EQ(countFieldsFilled(fields.txtObject), given.filled);
    }
}

TEST(Completeness, looks_at_hidden_members_too_when_it_asks_for_all) {
    ProjectFields fields;
    fill(fields.txtNameStep2, {u"Ann"});
    EXPECT_EQ(fields.panelCount(FieldGroup::Inventors), 1);
    EXPECT_FALSE(allFieldsFilled(fields.txtNameStep2));
    EXPECT_EQ(countFieldsFilled(fields.txtNameStep2), 1);
}

TEST(Completeness, tells_nothing_entered_from_partly_entered_among_eight_panels) {
    struct Case {
        std::initializer_list<QStringView> texts;
        int visible;
        Answer answer;
        int emptyFields;
    };

    const Case cases[] = {
        {{u"Ann"}, 1, Answer::AllFilled, 0},
        {{u""}, 1, Answer::PartlyEntered, 1},
        {{u"   "}, 1, Answer::PartlyEntered, 1},
        {{u"", u""}, 2, Answer::PartlyEntered, 2},
        {{u"Ann", u"", u"Ed"}, 3, Answer::PartlyEntered, 1},
        {{u"Ann", u"Bea", u"Ed"}, 3, Answer::AllFilled, 0},
        {{u"Ann", u"Bea", u""}, 2, Answer::AllFilled, 0}, // the third is hidden
        {{}, 7, Answer::PartlyEntered, 7},
        {{}, 8, Answer::NothingEntered, 0},
        {{u"", u"", u"", u"", u"", u"", u"", u"Ed"}, 8, Answer::PartlyEntered, 7},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(&given - cases);
        ProjectFields fields;
        fill(fields.txtNameStep2, given.texts);
        for (const bool isOpening : {false, true}) {
            const auto found = visibleFieldsFilled(fields.txtNameStep2, given.visible, isOpening);
            EXPECT_EQ(found.answer, given.answer);
            EXPECT_EQ(found.emptyFields, given.emptyFields);
        }
    }
}

TEST(Completeness, has_nothing_entered_when_the_only_panel_is_empty) {
    ProjectFields fields;
    EXPECT_EQ(visibleFieldsFilled(fields.txtAttachFig, 1, false).answer, Answer::NothingEntered);
}

TEST(Completeness, has_nothing_entered_when_the_first_panel_is_not_visible) {
    ProjectFields fields;
    fill(fields.txtNameStep2, {u"Ann"});
    EXPECT_EQ(visibleFieldsFilled(fields.txtNameStep2, 0, false).answer, Answer::NothingEntered);
}

TEST(Completeness, takes_the_first_panel_as_visible_while_a_project_is_opened) {
    ProjectFields fields;
    EXPECT_EQ(visibleFieldsFilled(fields.txtNameStep2, 0, true).answer, Answer::PartlyEntered);
    fill(fields.txtNameStep2, {u"Ann"});
    EXPECT_EQ(visibleFieldsFilled(fields.txtNameStep2, 0, true).answer, Answer::AllFilled);
}

TEST(Completeness, has_no_view_chosen_where_a_heading_stands) {
    for (const QStringView heading :
         {u"SELECT A VIEW", u"--- 3 Dimensional Views ----", u"--- 2 Dimensional Views ---",
          u"--- Flowcharts & Block Diagrams ---", u"--- Alternative Embodiments ---",
          u"  SELECT A VIEW ", u"--- 2 Dimensional Views ---   "}) {
        SCOPED_TRACE(heading.toString().toStdString());
        ProjectFields fields;
        fields.setPanelCount(FieldGroup::Figures, 3);
        fill(fields.cboFigureType, {u"front view", heading, u"top view"});
        EXPECT_FALSE(allViewsChosen(fields.cboFigureType));
        EXPECT_TRUE(allViewsChosen(fields.cboFigureType, 0));
        EXPECT_FALSE(allViewsChosen(fields.cboFigureType, 1));
        EXPECT_TRUE(allViewsChosen(fields.cboFigureType, 2));
    }
}

TEST(Completeness, takes_every_other_text_as_a_view_even_none) {
    for (const QStringView view : {u"front view", u"view of my own", u"select a view",
                                   u"--- 3 Dimensional Views ---", u"\tSELECT A VIEW", u""}) {
        ProjectFields fields;
        fill(fields.cboFigureType, {view});
        EXPECT_TRUE(allViewsChosen(fields.cboFigureType)) << view.toString().toStdString();
    }
}
