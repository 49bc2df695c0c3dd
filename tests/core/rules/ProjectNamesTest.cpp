#include "core/rules/ProjectNames.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ProjectNamesTest, a_new_project_has_no_names) {
    EXPECT_EQ(projectNames(ProjectFields()), QStringList());
}

TEST(ProjectNamesTest, the_names_of_elements_and_inventors_are_names) {
    ProjectFields fields;
    fields.txtNameStep2(0).setText(u"Zbigniew"_s);
    fields.txtMIStep2(0).setText(u"Q."_s);
    fields.txtLastStep2(7).setText(u"Kowalski"_s);
    fields.txtElementName(1).setText(u"flexibar"_s);
    fields.txtElementMain(2).setText(u"twistolock"_s);
    fields.txtElementSub1(0).setText(u"legg"_s);
    fields.txtElementSub9(2).setText(u"armm"_s);
    QStringList names = projectNames(fields);
    names.sort();
    EXPECT_EQ(names, QStringList({u"Kowalski"_s, u"Q."_s, u"Zbigniew"_s, u"armm"_s, u"flexibar"_s,
                                  u"legg"_s, u"twistolock"_s}));
}

TEST(ProjectNamesTest, other_fields_and_blanks_are_no_names) {
    ProjectFields fields;
    fields.txtInventionTitle.setText(u"Easl"_s);
    fields.txtAddress1Step2(0).setText(u"1 Mple Street"_s);
    fields.txtElementDes(0).setText(u"flexibar"_s);
    fields.txtElementName(0).setText(u"  "_s);
    EXPECT_EQ(projectNames(fields), QStringList());
}
