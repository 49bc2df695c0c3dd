#include "editors/binding/FieldGuidance.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "core/fields/Project.h"
#include "editors/pages/PageIntroduction.h"
#include "support/PrintQt.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FieldGuidanceTest : public testing::Test {
protected:
    FieldGuidanceTest() {
        panel.resize(700, 430);
        new PageIntroduction(panel, bound);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    [[nodiscard]] LineField& line(const QString& name) {
        return *panel.findChild<LineField*>(name);
    }

    Project project;
    BoundFields bound{project.fields};
    QWidget panel;
    QList<PanelScroll> scrolls;
    FieldGuidance guidance{project.fields, project.state, bound,
                           [this](const PanelScroll& scroll) { scrolls.append(scroll); }};
};

} // namespace

TEST_F(FieldGuidanceTest, the_required_fields_that_are_empty_are_tinted_and_no_others) {
    project.fields.txtFileNo.setText(u"QF-1"_s);
    guidance.TextHighLight(0);
    EXPECT_FALSE(line(u"txtFileNo"_s).isTinted());
    EXPECT_TRUE(line(u"txtInventionTitle"_s).isTinted());
    EXPECT_FALSE(line(u"txtCompany"_s).isTinted());
    EXPECT_FALSE(panel.findChild<FormCombo*>(u"cboStateStep1"_s)->isTinted());
}

TEST_F(FieldGuidanceTest, blanks_alone_count_as_empty) {
    project.fields.txtFileNo.setText(u"   "_s);
    guidance.TextHighLight(0);
    EXPECT_TRUE(line(u"txtFileNo"_s).isTinted());
    guidance.TextgotFocus(0);
    EXPECT_EQ(QApplication::focusWidget(), &line(u"txtFileNo"_s));
}

TEST_F(FieldGuidanceTest, the_tab_that_is_passed_does_not_matter) {
    project.state.currentTab = 0;
    guidance.TextHighLight(7);
    EXPECT_TRUE(line(u"txtFileNo"_s).isTinted());
}

TEST_F(FieldGuidanceTest, the_focus_goes_to_the_first_empty_field_in_the_users_order) {
    project.fields.txtFileNo.setText(u"QF-1"_s);
    project.fields.txtTechTitle.setText(u"easel"_s);
    guidance.TextgotFocus(0);
    EXPECT_EQ(QApplication::focusWidget(), &line(u"txtInventionTitle"_s));
}

TEST_F(FieldGuidanceTest, a_section_without_empty_fields_keeps_the_focus_where_it_is) {
    for (const FieldPlace& place : requiredFields(project.fields, 0))
        project.fields.at(place.field).setText(u"x"_s);
    line(u"txtCompany"_s).setFocus();
    guidance.TextgotFocus(0);
    EXPECT_EQ(QApplication::focusWidget(), &line(u"txtCompany"_s));
    EXPECT_TRUE(scrolls.isEmpty());
}

TEST_F(FieldGuidanceTest, every_tint_can_be_taken_away_at_once) {
    guidance.TextHighLight(0);
    guidance.whitenAll();
    EXPECT_FALSE(line(u"txtFileNo"_s).isTinted());
}
