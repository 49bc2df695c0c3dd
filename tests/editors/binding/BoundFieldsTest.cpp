#include "editors/binding/BoundFields.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "controls/Theme.h"
#include "core/fields/Project.h"
#include "core/wizard/FocusOrder.h"
#include "support/PrintQt.h"
#include "support/RecordingObserver.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class BoundFieldsTest : public testing::Test {
protected:
    BoundFieldsTest() {
        window.resize(400, 400);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename Control>
    Control& make(const QString& name) {
        auto* control = new Control(&window);
        control->setObjectName(name);
        control->resize(200, 60);
        control->show();
        bound.bindAll(window);
        return *control;
    }

    Project project;
    ProjectFields& fields = project.fields;
    BoundFields bound{fields};
    QWidget window;
};

} // namespace

TEST_F(BoundFieldsTest, what_is_typed_stands_in_the_field_at_each_key) {
    auto& title = make<LineField>(u"txtInventionTitle"_s);
    QTest::keyClicks(&title, u" easel"_s);
    EXPECT_EQ(fields.txtInventionTitle.text(), u" easel"_s);
    EXPECT_TRUE(fields.txtInventionTitle.isChanged());
}

TEST_F(BoundFieldsTest, a_control_shows_what_its_field_holds_when_it_is_bound) {
    fields.txtFileNo.loadText(u"QF-7"_s);
    EXPECT_EQ(make<LineField>(u"txtFileNo"_s).text(), u"QF-7"_s);
    EXPECT_FALSE(fields.txtFileNo.isChanged());
}

TEST_F(BoundFieldsTest, lines_end_with_cr_lf_in_the_field_and_with_lf_on_screen) {
    auto& box = make<TextField>(u"txtOperation"_s);
    QTest::keyClicks(&box, u"one"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, u"two"_s);
    EXPECT_EQ(fields.txtOperation.text(), u"one\r\ntwo"_s);
    fields.txtOperation.setText(u"a\r\n\r\nb"_s);
    bound.showText({FieldId::txtOperation});
    EXPECT_EQ(box.text(), u"a\n\nb"_s);
}

TEST_F(BoundFieldsTest, typing_leaves_the_cursor_where_it_is) {
    auto& title = make<LineField>(u"txtInventionTitle"_s);
    fields.txtInventionTitle.setText(u"easel"_s);
    bound.showText({FieldId::txtInventionTitle});
    title.setCursorPosition(2);
    QTest::keyClicks(&title, u"xy"_s);
    EXPECT_EQ(title.text(), u"eaxysel"_s);
    EXPECT_EQ(title.cursorPosition(), 4);
}

TEST_F(BoundFieldsTest, typing_stops_at_the_fields_limit_and_a_loaded_text_over_it_is_shown_whole) {
    auto& title = make<LineField>(u"txtTechTitle"_s);
    QTest::keyClicks(&title, QString(60, u'x'));
    EXPECT_EQ(fields.txtTechTitle.text().size(), 50);
    fields.txtTechTitle.loadText(QString(80, u'y'));
    bound.showText({FieldId::txtTechTitle});
    EXPECT_EQ(title.text().size(), 80);
}

TEST_F(BoundFieldsTest, a_list_offers_its_rows_and_a_choice_is_told_after_the_field_holds_it) {
    auto& count = make<FormCombo>(u"cboObjectNum"_s);
    EXPECT_EQ(count.count(), 20);
    EXPECT_EQ(count.text(), u"4"_s);
    QString heldWhenTold;
    QObject::connect(&bound, &BoundFields::chosen, &window, [&](const FieldPlace& place) {
        heldWhenTold = fields.at(place.field).text();
    });
    count.setFocus();
    QTest::keyClick(&count, Qt::Key_Down);
    EXPECT_EQ(heldWhenTold, u"5"_s);
}

TEST_F(BoundFieldsTest, a_check_box_is_one_or_nought) {
    auto& box = make<QCheckBox>(u"chkSameAsContact"_s);
    box.click();
    EXPECT_EQ(fields.chkSameAsContact.text(), u"1"_s);
    fields.chkSameAsContact.setText(u"0"_s);
    bound.showText({FieldId::chkSameAsContact});
    EXPECT_FALSE(box.isChecked());
}

TEST_F(BoundFieldsTest, the_focus_tells_whether_the_tab_key_brought_it) {
    auto& title = make<LineField>(u"txtInventionTitle"_s);
    QSignalSpy reached(&bound, &BoundFields::focusReached);
    title.setFocus(Qt::TabFocusReason);
    title.clearFocus();
    title.setFocus(Qt::MouseFocusReason);
    ASSERT_EQ(reached.count(), 2);
    EXPECT_TRUE(reached[0][1].toBool());
    EXPECT_FALSE(reached[1][1].toBool());
}

TEST_F(BoundFieldsTest, a_control_that_is_gone_is_bound_no_more) {
    auto* title = &make<LineField>(u"txtInventionTitle"_s);
    delete title;
    EXPECT_EQ(bound.control({FieldId::txtInventionTitle}), nullptr);
    fields.txtInventionTitle.setText(u"easel"_s);
    bound.showText({FieldId::txtInventionTitle});
    bound.setTint({FieldId::txtInventionTitle}, true);
}

TEST_F(BoundFieldsTest, a_name_with_an_index_is_a_field_on_that_panel) {
    const NamedField found = fieldNamed(u"txtElementSub3(14)"_s);
    ASSERT_TRUE(found.row);
    EXPECT_EQ(found.row->id, FieldId::txtElementSub3);
    EXPECT_EQ(found.index, 14);
    EXPECT_EQ(controlName(FieldPlace{FieldId::txtElementSub3, 14}), u"txtElementSub3(14)"_s);
    EXPECT_FALSE(fieldNamed(u"lblObject(1)"_s).row);
}

TEST_F(BoundFieldsTest, every_bound_control_has_a_name_for_those_who_cannot_see_it) {
    EXPECT_EQ(make<LineField>(u"txtTechTitle"_s).accessibleName(),
              u"Generic Title for Technology"_s);
}
