#include "core/fields/ProjectFields.h"

#include "base/Error.h"
#include "support/PrintQt.h"
#include "support/RecordingObserver.h"

#include <gtest/gtest.h>
#include <map>
#include <stdexcept>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Every member of every field, for claims about all of them.
template <typename Claim>
void forEveryField(ProjectFields& fields, Claim claim) {
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < fields.count(row.id); ++i)
            claim(fields.at(row.id, i));
}

void fillEveryField(ProjectFields& fields) {
    forEveryField(fields, [](Field& field) { field.setText(u"filled"_s); });
}

std::vector<std::string> textsOf(const ProjectFields& fields, FieldId id) {
    std::vector<std::string> texts;
    for (int i = 0; i < fields.count(id); ++i)
        texts.push_back(fields.at(id, i).text().toStdString());
    return texts;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(ProjectFields, begin_empty_but_for_the_counts_and_the_first_rows_of_the_lists) {
    const std::map<FieldId, QString> notEmpty = {{FieldId::cboStateStep1, u"AK"_s},
                                                 {FieldId::cboCountryStep1, u"United States"_s},
                                                 {FieldId::cboInventorsNum, u"1"_s},
                                                 {FieldId::chkSameAsContact, u"0"_s},
                                                 {FieldId::cboStateStep2, u"AK"_s},
                                                 {FieldId::cboCitizenshipStep2, u"United States"_s},
                                                 {FieldId::cboObjectNum, u"4"_s},
                                                 {FieldId::cboFiguresNum, u"1"_s},
                                                 {FieldId::cboFigureType, u"SELECT A VIEW"_s},
                                                 {FieldId::cboMainElementNum, u"3"_s}};
    ProjectFields fields;
    forEveryField(fields, [&](const Field& field) {
        SCOPED_TRACE(field.row().name.toString().toStdString());
        const auto found = notEmpty.find(field.row().id);
        EXPECT_EQ(field.text(), found == notEmpty.end() ? QString() : found->second);
        EXPECT_FALSE(field.isChanged());
    });
}

TEST(ProjectFields, begin_with_the_panels_that_their_counts_say) {
    const ProjectFields fields;
    EXPECT_EQ(fields.panelCount(FieldGroup::Inventors), 1);
    EXPECT_EQ(fields.panelCount(FieldGroup::Objects), 4);
    EXPECT_EQ(fields.panelCount(FieldGroup::Figures), 1);
    EXPECT_EQ(fields.panelCount(FieldGroup::MainElements), 3);
    EXPECT_EQ(fields.panelCount(FieldGroup::SubElements), 3);
    EXPECT_EQ(fields.panelCount(FieldGroup::Descriptions), 3);
}

TEST(ProjectFields, have_as_many_members_of_a_field_as_its_group_has_panels) {
    const ProjectFields fields;
    for (const FieldRow& row : fieldTable()) {
        SCOPED_TRACE(row.name.toString().toStdString());
        const int expected = row.group == FieldGroup::Single      ? 1
                             : row.group == FieldGroup::Inventors ? 8 // hidden ones included
                                                                  : fields.panelCount(row.group);
        EXPECT_EQ(fields.count(row.id), expected);
    }
}

TEST(ProjectFields, are_reached_by_name_and_through_the_table_alike) {
    ProjectFields fields;
    EXPECT_EQ(&fields.at(FieldId::txtFileNo), &fields.txtFileNo);
    EXPECT_EQ(&fields.at(FieldId::txtNameStep2, 7), &fields.txtNameStep2(7));
    EXPECT_EQ(&fields.array(FieldId::txtObject), &fields.txtObject);
    forEveryField(fields, [&](const Field& field) {
        EXPECT_EQ(&fields.at(field.row().id, field.index()), &field);
    });
}

// The observer

TEST(ProjectFields, tell_of_a_change_before_the_call_returns_and_with_the_text_in_place) {
    ProjectFields fields;
    QString seen;
    bool marked = false;
    RecordingObserver observer([&](FieldId field, int index) {
        seen = fields.at(field, index).text();
        marked = fields.at(field, index).isChanged();
    });
    fields.setObserver(&observer);
    fields.txtElementSub3(1).setText(u"hinge"_s);
    EXPECT_EQ(observer.changes, Texts{"txtElementSub3(1)"});
    EXPECT_EQ(seen, u"hinge"_s);
    EXPECT_TRUE(marked);
}

TEST(ProjectFields, tell_nobody_when_there_is_no_observer_any_more) {
    ProjectFields fields;
    RecordingObserver observer;
    fields.setObserver(&observer);
    fields.setObserver(nullptr);
    fields.txtFileNo.setText(u"QF-1"_s);
    EXPECT_TRUE(observer.changes.empty());
}

TEST(ProjectFields, bound_to_each_other_come_to_rest) {
    ProjectFields fields;
    RecordingObserver observer([&](FieldId field, int i) {
        if (field == FieldId::txtElementName)
            fields.txtElementMain(i).setText(fields.txtElementName(i).trimmedText());
        if (field == FieldId::txtElementMain)
            fields.txtElementName(i).setText(fields.txtElementMain(i).trimmedText());
    });
    fields.setObserver(&observer);

    fields.txtElementName(0).setText(u"leg"_s);
    EXPECT_EQ(observer.changes, (Texts{"txtElementName(0)", "txtElementMain(0)"}));

    // A blank typed at the end leaves the trimmed partner as it is, and so is kept.
    fields.txtElementName(0).setText(u"leg "_s);
    EXPECT_EQ(fields.txtElementName(0).text(), u"leg "_s);
    EXPECT_EQ(fields.txtElementMain(0).text(), u"leg"_s);

    fields.txtElementMain(0).setText(u"foot"_s);
    EXPECT_EQ(fields.txtElementName(0).text(), u"foot"_s);
}

TEST(ProjectFields, allow_an_observer_to_drop_the_panel_it_is_told_of) {
    ProjectFields fields;
    RecordingObserver observer([&](FieldId, int) { fields.setPanelCount(FieldGroup::Objects, 1); });
    fields.setObserver(&observer);
    fields.txtObject(3).setText(u"gone at once"_s);
    EXPECT_EQ(fields.txtObject.count(), 1);
}

TEST(ProjectFields, keep_the_new_text_when_the_observer_fails) {
    ProjectFields fields;
    RecordingObserver observer([](FieldId, int) { throw Error(5, u"refused"_s); });
    fields.setObserver(&observer);
    EXPECT_THROW(fields.txtFileNo.setText(u"QF-1"_s), Error);
    EXPECT_EQ(fields.txtFileNo.text(), u"QF-1"_s);
    EXPECT_TRUE(fields.txtFileNo.isChanged());
}

// The number of panels

TEST(ProjectFields, bound_the_number_of_panels_and_always_keep_one) {
    struct Bounds {
        FieldGroup group;
        int most;
    };

    for (const auto& [group, most] :
         {Bounds{FieldGroup::Inventors, 8}, Bounds{FieldGroup::Objects, 20},
          Bounds{FieldGroup::Figures, 50}, Bounds{FieldGroup::MainElements, 15},
          Bounds{FieldGroup::SubElements, 15}, Bounds{FieldGroup::Descriptions, 15}}) {
        SCOPED_TRACE(static_cast<int>(group));
        ProjectFields fields;
        for (const int tooFew : {0, -1, -1000}) {
            fields.setPanelCount(group, tooFew);
            EXPECT_EQ(fields.panelCount(group), 1);
        }
        for (const int number : {most, most + 1, 1'000'000}) {
            fields.setPanelCount(group, number);
            EXPECT_EQ(fields.panelCount(group), most);
        }
    }
}

TEST(ProjectFields, neither_read_nor_write_the_count_field_with_the_panels) {
    ProjectFields fields;
    fields.cboObjectNum.setText(u"9"_s);
    EXPECT_EQ(fields.panelCount(FieldGroup::Objects), 4);
    fields.setPanelCount(FieldGroup::Objects, 2);
    EXPECT_EQ(fields.cboObjectNum.text(), u"9"_s);
    EXPECT_EQ(fields.panelCount(FieldGroup::Objects), 2);
}

TEST(ProjectFields, lose_what_a_dropped_panel_held) {
    ProjectFields fields;
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::Objects, 2);
    EXPECT_EQ(textsOf(fields, FieldId::txtObject), (Texts{"filled", "filled"}));
    fields.setPanelCount(FieldGroup::Objects, 4);
    EXPECT_EQ(textsOf(fields, FieldId::txtObject), (Texts{"filled", "filled", "", ""}));
    EXPECT_TRUE(fields.txtObject(1).isChanged());
    EXPECT_FALSE(fields.txtObject(2).isChanged());
}

TEST(ProjectFields, give_a_new_panel_the_values_of_a_new_project) {
    ProjectFields fields;
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::Figures, 3);
    EXPECT_EQ(textsOf(fields, FieldId::txtAttachFig), (Texts{"filled", "", ""}));
    EXPECT_EQ(textsOf(fields, FieldId::cboFigureType),
              (Texts{"filled", "SELECT A VIEW", "SELECT A VIEW"}));
    EXPECT_EQ(textsOf(fields, FieldId::txtFigureDetail), (Texts{"filled", "", ""}));
}

TEST(ProjectFields, tell_nobody_of_panels_that_come_or_go) {
    ProjectFields fields;
    fillEveryField(fields);
    RecordingObserver observer;
    fields.setObserver(&observer);
    fields.setPanelCount(FieldGroup::Figures, 50);
    fields.setPanelCount(FieldGroup::Figures, 1);
    fields.setPanelCount(FieldGroup::Objects, 1);
    EXPECT_TRUE(observer.changes.empty());
}

TEST(ProjectFields, stay_in_their_place_when_their_group_grows) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Figures, 1);
    Field& first = fields.txtFigureDetail(0);
    FigureState& state = fields.figureState(0);
    fields.setPanelCount(FieldGroup::Figures, 50);
    first.setText(u"still here"_s);
    state.sizeText = u"1, 2"_s;
    EXPECT_EQ(&fields.txtFigureDetail(0), &first);
    EXPECT_EQ(fields.txtFigureDetail(0).text(), u"still here"_s);
    EXPECT_EQ(fields.figureState(0).sizeText, u"1, 2"_s);
}

TEST(ProjectFields, have_a_figures_state_come_and_go_with_its_panel) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Figures, 2);
    fields.figureState(0).workingCopy = u"/tmp/0.png"_s;
    fields.figureState(1) = {u"/tmp/1.png"_s, u"10, 20"_s};
    fields.setPanelCount(FieldGroup::Figures, 1);
    EXPECT_THROW(std::ignore = fields.figureState(1), std::out_of_range);
    fields.setPanelCount(FieldGroup::Figures, 2);
    EXPECT_EQ(fields.figureState(0).workingCopy, u"/tmp/0.png"_s);
    EXPECT_EQ(fields.figureState(1).workingCopy, QString());
    EXPECT_EQ(fields.figureState(1).sizeText, QString());
}

TEST(ProjectFields, keep_the_first_figure_as_it_is_for_a_count_of_0) {
    ProjectFields fields;
    fields.txtAttachFig(0).setText(u"/tmp/0.png"_s);
    fields.setPanelCount(FieldGroup::Figures, 0);
    EXPECT_EQ(textsOf(fields, FieldId::txtAttachFig), Texts{"/tmp/0.png"});
}

// Inventors: their panels are hidden and shown

TEST(ProjectFields, empty_the_inventors_that_are_hidden_and_no_others) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Inventors, 5);
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::Inventors, 2);

    const Texts kept{"filled", "filled", "", "", "", "filled", "filled", "filled"};
    for (const FieldId id : {FieldId::txtNameStep2, FieldId::txtMIStep2, FieldId::txtLastStep2,
                             FieldId::txtAddress1Step2, FieldId::txtAddress2Step2,
                             FieldId::txtCityStep2, FieldId::cboStateStep2, FieldId::txtZipStep2})
        EXPECT_EQ(textsOf(fields, id), kept) << fieldRow(id).name.toString().toStdString();
    EXPECT_EQ(textsOf(fields, FieldId::cboCitizenshipStep2),
              (Texts{"filled", "filled", "United States", "United States", "United States",
                     "filled", "filled", "filled"}));
}

TEST(ProjectFields, show_an_inventor_again_as_he_was_hidden) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Inventors, 5);
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::Inventors, 2);
    fields.setPanelCount(FieldGroup::Inventors, 5);
    EXPECT_EQ(fields.panelCount(FieldGroup::Inventors), 5);
    EXPECT_EQ(fields.txtNameStep2(4).text(), QString());
    EXPECT_EQ(fields.cboStateStep2(4).text(), QString()); // not the AK of a new project
    EXPECT_EQ(fields.cboCitizenshipStep2(4).text(), u"United States"_s);
}

TEST(ProjectFields, show_an_inventor_for_the_first_time_with_his_first_state) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Inventors, 2);
    EXPECT_EQ(fields.cboStateStep2(1).text(), u"AK"_s);
}

TEST(ProjectFields, tell_of_every_text_that_a_hidden_inventor_loses) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Inventors, 2);
    fields.txtNameStep2(1).setText(u"Ann"_s);
    RecordingObserver observer;
    fields.setObserver(&observer);
    fields.setPanelCount(FieldGroup::Inventors, 1);
    EXPECT_EQ(observer.changes, (Texts{"txtNameStep2(1)", "cboStateStep2(1)"}));
}

TEST(ProjectFields, leave_the_check_box_of_the_contact_alone_when_inventors_are_hidden) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Inventors, 3);
    fields.chkSameAsContact.setText(u"1"_s);
    fields.setPanelCount(FieldGroup::Inventors, 1);
    EXPECT_EQ(fields.chkSameAsContact.text(), u"1"_s);
}

// Main Elements: three columns share their number

TEST(ProjectFields, empty_the_parts_of_a_dropped_Main_Element_at_once) {
    ProjectFields fields;
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::MainElements, 2);

    EXPECT_EQ(textsOf(fields, FieldId::txtElementName), (Texts{"filled", "filled"}));
    EXPECT_EQ(fields.panelCount(FieldGroup::SubElements), 3);
    EXPECT_EQ(fields.panelCount(FieldGroup::Descriptions), 3);
    for (const FieldId id :
         {FieldId::txtElementSub1, FieldId::txtElementSub2, FieldId::txtElementSub3,
          FieldId::txtElementSub4, FieldId::txtElementSub5, FieldId::txtElementSub6,
          FieldId::txtElementSub7, FieldId::txtElementSub8, FieldId::txtElementSub9,
          FieldId::txtMainElementNameDetail, FieldId::txtMainElementVariations})
        EXPECT_EQ(textsOf(fields, id), (Texts{"filled", "filled", ""}))
            << fieldRow(id).name.toString().toStdString();
}

TEST(ProjectFields, keep_the_name_in_Section_6_of_a_dropped_Main_Element) {
    ProjectFields fields;
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::MainElements, 2);
    EXPECT_EQ(textsOf(fields, FieldId::txtElementMain), (Texts{"filled", "filled", "filled"}));
}

TEST(ProjectFields, have_a_Main_Element_come_back_empty_with_all_its_parts) {
    ProjectFields fields;
    fillEveryField(fields);
    for (const int number : {2, 3})
        fields.setPanelCount(FieldGroup::MainElements, number);
    EXPECT_EQ(textsOf(fields, FieldId::txtElementName), (Texts{"filled", "filled", ""}));
    EXPECT_EQ(textsOf(fields, FieldId::txtElementDes), (Texts{"filled", "filled", ""}));
    EXPECT_EQ(textsOf(fields, FieldId::txtElementSub9), (Texts{"filled", "filled", ""}));
    EXPECT_EQ(textsOf(fields, FieldId::txtMainElementVariations), (Texts{"filled", "filled", ""}));
}

TEST(ProjectFields, empty_the_parts_up_to_the_last_panel_that_stands) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::SubElements, 5);
    fields.setPanelCount(FieldGroup::Descriptions, 1);
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::MainElements, 2);
    EXPECT_EQ(textsOf(fields, FieldId::txtElementSub1), (Texts{"filled", "filled", "", "", ""}));
    EXPECT_EQ(textsOf(fields, FieldId::txtMainElementNameDetail), Texts{"filled"});
}

TEST(ProjectFields, lose_no_part_when_the_number_of_Main_Elements_stays_or_rises) {
    for (const int number : {3, 4, 15}) {
        ProjectFields fields;
        fields.setPanelCount(FieldGroup::SubElements, 15);
        fillEveryField(fields);
        fields.setPanelCount(FieldGroup::MainElements, number);
        EXPECT_EQ(textsOf(fields, FieldId::txtElementSub1), Texts(15, "filled"));
        EXPECT_EQ(textsOf(fields, FieldId::txtMainElementNameDetail), Texts(3, "filled"));
    }
}

TEST(ProjectFields, drop_the_blocks_of_Section_6_without_touching_the_other_columns) {
    ProjectFields fields;
    fillEveryField(fields);
    fields.setPanelCount(FieldGroup::SubElements, 1);
    EXPECT_EQ(fields.txtElementMain.count(), 1);
    EXPECT_EQ(fields.txtElementSub9.count(), 1);
    EXPECT_EQ(textsOf(fields, FieldId::txtElementName), Texts(3, "filled"));
    EXPECT_EQ(textsOf(fields, FieldId::txtMainElementNameDetail), Texts(3, "filled"));
}

TEST(ProjectFields, tell_of_every_part_that_is_emptied) {
    ProjectFields fields;
    fields.txtElementSub2(2).setText(u"pin"_s);
    fields.txtMainElementVariations(2).setText(u"none"_s);
    fields.txtElementSub2(1).setText(u"bolt"_s);
    RecordingObserver observer;
    fields.setObserver(&observer);
    fields.setPanelCount(FieldGroup::MainElements, 2);
    EXPECT_EQ(observer.changes, (Texts{"txtElementSub2(2)", "txtMainElementVariations(2)"}));
}
