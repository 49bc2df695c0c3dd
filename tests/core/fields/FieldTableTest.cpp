#include "core/fields/FieldTable.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using enum FieldGroup;
using enum FieldKind;
using enum FieldRequired;

struct Facts {
    QStringView name;
    int section;
    FieldGroup group;
    FieldKind kind;
    int limit;
    FieldRequired required;
    FieldListId list = FieldListId::None;
};

constexpr Facts AllFacts[] = {
    {u"txtFileNo", 1, Single, Text, 0, Yes},
    {u"txtInventionTitle", 1, Single, Text, 100, Yes},
    {u"txtTechTitle", 1, Single, Text, 50, Yes},
    {u"txtCompany", 1, Single, Text, 0, No},
    {u"txtNameStep1", 1, Single, Text, 0, Yes},
    {u"txtMIStep1", 1, Single, Text, 5, No},
    {u"txtLastStep1", 1, Single, Text, 0, Yes},
    {u"txtAddress1Step1", 1, Single, Text, 0, Yes},
    {u"txtAddress2Step1", 1, Single, Text, 0, No},
    {u"txtCityStep1", 1, Single, Text, 0, Yes},
    {u"cboStateStep1", 1, Single, Combo, 0, Yes, FieldListId::States},
    {u"txtZipStep1", 1, Single, Text, 0, Yes},
    {u"cboCountryStep1", 1, Single, Combo, 0, Yes, FieldListId::Countries},
    {u"txtTeleStep1", 1, Single, Text, 0, No},
    {u"txtFacsimileStep1", 1, Single, Text, 0, No},
    {u"txtEmailStep1", 1, Single, Text, 0, No},

    {u"cboInventorsNum", 2, Single, List, 0, ByList, FieldListId::InventorCounts},
    {u"chkSameAsContact", 2, Single, Check, 0, No},
    {u"txtNameStep2", 2, Inventors, Text, 0, Yes},
    {u"txtMIStep2", 2, Inventors, Text, 5, No},
    {u"txtLastStep2", 2, Inventors, Text, 0, Yes},
    {u"txtAddress1Step2", 2, Inventors, Text, 0, Yes},
    {u"txtAddress2Step2", 2, Inventors, Text, 0, No},
    {u"txtCityStep2", 2, Inventors, Text, 0, Yes},
    {u"cboStateStep2", 2, Inventors, Combo, 0, Yes, FieldListId::States},
    {u"txtZipStep2", 2, Inventors, Text, 0, Yes},
    {u"cboCitizenshipStep2", 2, Inventors, Combo, 0, Yes, FieldListId::Citizenships},

    {u"txtPurpose", 3, Single, MultiLineNoBar, 0, Yes},
    {u"cboObjectNum", 3, Single, List, 0, ByList, FieldListId::ObjectCounts},
    {u"txtObject", 3, Objects, MultiLineNoBar, 0, Yes},

    {u"cboFiguresNum", 4, Single, List, 0, ByList, FieldListId::FigureCounts},
    {u"txtAttachFig", 4, Figures, Text, 0, Yes},
    {u"cboFigureType", 4, Figures, Combo, 0, Yes, FieldListId::Views},
    {u"txtFigureDetail", 4, Figures, MultiLine, 0, Yes},

    {u"txtMainElement", 5, Single, MultiLine, 0, Yes},
    {u"cboMainElementNum", 5, Single, List, 0, ByList, FieldListId::MainElementCounts},
    {u"txtElementName", 5, MainElements, Text, 0, Yes},
    {u"txtElementDes", 5, MainElements, MultiLine, 0, Yes},

    {u"txtElementMain", 6, SubElements, Text, 0, Yes},
    {u"txtElementSub1", 6, SubElements, Text, 0, No},
    {u"txtElementSub2", 6, SubElements, Text, 0, No},
    {u"txtElementSub3", 6, SubElements, Text, 0, No},
    {u"txtElementSub4", 6, SubElements, Text, 0, No},
    {u"txtElementSub5", 6, SubElements, Text, 0, No},
    {u"txtElementSub6", 6, SubElements, Text, 0, No},
    {u"txtElementSub7", 6, SubElements, Text, 0, No},
    {u"txtElementSub8", 6, SubElements, Text, 0, No},
    {u"txtElementSub9", 6, SubElements, Text, 0, No},

    {u"txtMainElementNameDetail", 7, Descriptions, MultiLine, 0, Yes},
    {u"txtMainElementVariations", 7, Descriptions, MultiLine, 0, No},
    {u"txtDesConnections", 7, Single, MultiLine, 0, Yes},
    {u"txtDesAlterative", 7, Single, MultiLine, 0, No},

    {u"txtOperation", 8, Single, MultiLine, 0, Yes},
};

struct NamedLabel {
    QStringView name;
    QStringView label;
};

constexpr NamedLabel AllLabels[] = {
    {u"txtFileNo", u"Your File Number"},
    {u"txtInventionTitle", u"Descriptive Title of Invention"},
    {u"txtTechTitle", u"Generic Title for Technology"},
    {u"txtCompany", u"Company"},
    {u"txtNameStep1", u"First Name"},
    {u"txtMIStep1", u"Middle Initial"},
    {u"txtLastStep1", u"Last Name"},
    {u"txtAddress1Step1", u"Address 1"},
    {u"txtAddress2Step1", u"Address 2"},
    {u"txtCityStep1", u"City"},
    {u"cboStateStep1", u"State/Province"},
    {u"txtZipStep1", u"Zip/Postal Code"},
    {u"cboCountryStep1", u"Country"},
    {u"txtTeleStep1", u"Telephone"},
    {u"txtFacsimileStep1", u"Fax"},
    {u"txtEmailStep1", u"Email"},
    {u"cboInventorsNum", u"Number of Inventors:"},
    {u"chkSameAsContact", u"Same As Contact"},
    {u"txtNameStep2", u"First Name"},
    {u"txtMIStep2", u"Middle Initial"},
    {u"txtLastStep2", u"Last Name"},
    {u"txtAddress1Step2", u"Address 1"},
    {u"txtAddress2Step2", u"Address 2"},
    {u"txtCityStep2", u"City"},
    {u"cboStateStep2", u"State/Province"},
    {u"txtZipStep2", u"Zip/Postal Code"},
    {u"cboCitizenshipStep2", u"Citizenship"},
    {u"txtPurpose", uR"("The purpose of my invention is for _________________________.")"
                    u"   (COMPLETE SENTENCE)"},
    {u"cboObjectNum", u"Number of Objects of Invention"},
    {u"txtObject", uR"(1."An object of my invention is to provide a [Descriptive Title] that )"
                   uR"(_____________." (COMPLETE SENTENCE))"},
    {u"cboFiguresNum", u"Number of Figures of Invention"},
    {u"txtAttachFig", u"Attach Figure 1 Image File"},
    {u"cboFigureType", u"Figure 1 is a"},
    {u"txtFigureDetail", u"Detailed Description of Figure 1"},
    {u"txtMainElement", uR"("The main elements of my invention include ..." (COMPLETE SENTENCE))"},
    {u"cboMainElementNum", u"Number of Main Elements"},
    {u"txtElementName", u"Name"},
    {u"txtElementDes", u"Describe the structure and function of the First Main Element"},
    {u"txtElementMain", u"10:"},
    {u"txtElementSub1", u"11:"},
    {u"txtElementSub2", u"12:"},
    {u"txtElementSub3", u"13:"},
    {u"txtElementSub4", u"14:"},
    {u"txtElementSub5", u"15:"},
    {u"txtElementSub6", u"16:"},
    {u"txtElementSub7", u"17:"},
    {u"txtElementSub8", u"18:"},
    {u"txtElementSub9", u"19:"},
    {u"txtMainElementNameDetail", uR"(Detailed Description of the "[MAIN ELEMENT 1 NAME]")"},
    {u"txtMainElementVariations", u"Describe All Possible Structural and Functional Variations of "
                                  uR"(the "[MAIN ELEMENT 1 NAME]")"},
    {u"txtDesConnections", u"Describe the Connections of the Main Elements and Sub-Elements"},
    {u"txtDesAlterative", u"Describe Any and All Alternative Variations of Your Invention"},
    {u"txtOperation", u"Describe in Significant Detail How Your Invention Operates/Functions"},
};

} // namespace

TEST(FieldTable, has_every_field_once_in_the_order_of_a_project_file) {
    ASSERT_EQ(fieldTable().size(), std::size(AllFacts));
    for (std::size_t row = 0; row < std::size(AllFacts); ++row)
        EXPECT_EQ(fieldTable()[row].name, AllFacts[row].name);
}

TEST(FieldTable, says_what_each_field_is) {
    for (const Facts& facts : AllFacts) {
        SCOPED_TRACE(facts.name.toString().toStdString());
        const FieldRow* row = findFieldRow(facts.name);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->section, facts.section);
        EXPECT_EQ(row->group, facts.group);
        EXPECT_EQ(row->kind, facts.kind);
        EXPECT_EQ(row->limit, facts.limit);
        EXPECT_EQ(row->required, facts.required);
        EXPECT_EQ(row->list, facts.list);
    }
}

TEST(FieldTable, labels_each_field) {
    ASSERT_EQ(std::size(AllLabels), fieldTable().size());
    for (const NamedLabel& expected : AllLabels) {
        SCOPED_TRACE(expected.name.toString().toStdString());
        const FieldRow* row = findFieldRow(expected.name);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->label, expected.label);
    }
}

TEST(FieldTable, numbers_its_rows_by_the_fields_name) {
    for (std::size_t row = 0; row < fieldTable().size(); ++row) {
        EXPECT_EQ(static_cast<std::size_t>(fieldTable()[row].id), row);
        EXPECT_EQ(&fieldRow(fieldTable()[row].id), &fieldTable()[row]);
    }
    EXPECT_EQ(fieldRow(FieldId::txtDesAlterative).name, u"txtDesAlterative");
}

TEST(FieldTable, knows_a_field_by_its_exact_name_alone) {
    EXPECT_NE(findFieldRow(u"txtFileNo"), nullptr);
    for (const QStringView name :
         {u"", u"txtfileno", u"txtFileNo ", u"txtFileNo(0)", u"imgFigure", u"txtDesAlternative"})
        EXPECT_EQ(findFieldRow(name), nullptr) << name.toString().toStdString();
}

TEST(FieldTable, bounds_every_group_and_names_the_field_with_its_number) {
    struct Bounds {
        FieldGroup group;
        int least;
        int most;
        FieldId count;
    };

    for (const Bounds& expected : {Bounds{Inventors, 1, 8, FieldId::cboInventorsNum},
                                   Bounds{Objects, 1, 20, FieldId::cboObjectNum},
                                   Bounds{Figures, 0, 50, FieldId::cboFiguresNum},
                                   Bounds{MainElements, 1, 15, FieldId::cboMainElementNum},
                                   Bounds{SubElements, 1, 15, FieldId::cboMainElementNum},
                                   Bounds{Descriptions, 1, 15, FieldId::cboMainElementNum}}) {
        SCOPED_TRACE(static_cast<int>(expected.group));
        const GroupLimits& limits = groupLimits(expected.group);
        EXPECT_EQ(limits.least, expected.least);
        EXPECT_EQ(limits.most, expected.most);
        EXPECT_EQ(limits.count, expected.count);
    }
}
