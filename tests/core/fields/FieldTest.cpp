#include "core/fields/Field.h"

#include "core/fields/ProjectFields.h"
#include "support/PrintQt.h"
#include "support/RecordingObserver.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FieldTest : public testing::Test {
protected:
    FieldTest() { fields.setObserver(&observer); }

    ProjectFields fields;
    RecordingObserver observer;
};

} // namespace

TEST_F(FieldTest, keeps_a_text_as_it_was_typed) {
    const QString text = u"  first\tline\r\nsecond line  "_s;
    fields.txtOperation.setText(text);
    EXPECT_EQ(fields.txtOperation.text(), text);
    EXPECT_EQ(fields.txtOperation.trimmedText(), u"first\tline\r\nsecond line"_s);
}

TEST_F(FieldTest, counts_as_empty_when_it_holds_blanks_only) {
    EXPECT_FALSE(fields.txtFileNo.isFilled());
    fields.txtFileNo.setText(u"   "_s);
    EXPECT_FALSE(fields.txtFileNo.isFilled());
    for (const QString& text : {u"x"_s, u" x "_s, u"\t"_s, u"\r\n"_s, u"\u00A0"_s}) {
        fields.txtFileNo.setText(text);
        EXPECT_TRUE(fields.txtFileNo.isFilled()) << text.toStdString();
    }
}

TEST_F(FieldTest, gives_the_number_with_which_it_begins) {
    fields.cboFiguresNum.setText(u" 12"_s);
    EXPECT_EQ(fields.cboFiguresNum.number(), 12);
    fields.cboFiguresNum.setText(u"none"_s);
    EXPECT_EQ(fields.cboFiguresNum.number(), 0);
}

TEST_F(FieldTest, is_marked_by_a_change_until_the_mark_is_cleared) {
    EXPECT_FALSE(fields.txtFileNo.isChanged());
    fields.txtFileNo.setText(u"QF-1"_s);
    EXPECT_TRUE(fields.txtFileNo.isChanged());
    fields.txtFileNo.clearChanged();
    EXPECT_FALSE(fields.txtFileNo.isChanged());
    EXPECT_EQ(fields.txtFileNo.text(), u"QF-1"_s);
}

TEST_F(FieldTest, stays_marked_when_the_change_is_taken_back) {
    fields.txtFileNo.setText(u"QF-1"_s);
    fields.txtFileNo.setText(QString());
    EXPECT_TRUE(fields.txtFileNo.isChanged());
}

TEST_F(FieldTest, is_neither_marked_nor_told_when_the_text_stays_the_same) {
    fields.cboStateStep1.setText(u"AK"_s);
    fields.cboStateStep1.loadText(u"AK"_s);
    fields.txtFileNo.setText(u""_s); // a null text and an empty one are the same text
    EXPECT_FALSE(fields.cboStateStep1.isChanged());
    EXPECT_FALSE(fields.txtFileNo.isChanged());
    EXPECT_TRUE(observer.changes.empty());
}

TEST_F(FieldTest, takes_a_difference_in_case_or_in_blanks_as_a_change) {
    fields.cboStateStep1.setText(u"ak"_s);
    fields.cboStateStep1.setText(u"ak "_s);
    EXPECT_EQ(observer.changes, (std::vector<std::string>{"cboStateStep1(0)", "cboStateStep1(0)"}));
}

TEST_F(FieldTest, loaded_tells_of_the_text_and_leaves_the_mark) {
    fields.txtObject(2).loadText(u"from a file"_s);
    EXPECT_FALSE(fields.txtObject(2).isChanged());
    fields.txtObject(2).setText(u"typed"_s);
    fields.txtObject(2).loadText(u"from a file"_s);
    EXPECT_TRUE(fields.txtObject(2).isChanged());
    EXPECT_EQ(observer.changes,
              (std::vector<std::string>{"txtObject(2)", "txtObject(2)", "txtObject(2)"}));
}

TEST_F(FieldTest, keeps_a_text_that_is_longer_than_can_be_typed) {
    const QString title(250, u'x');
    fields.txtInventionTitle.setText(title);
    EXPECT_EQ(fields.txtInventionTitle.text(), title);
    fields.txtMIStep1.loadText(u"Quentin"_s);
    EXPECT_EQ(fields.txtMIStep1.text(), u"Quentin"_s);
}

TEST_F(FieldTest, takes_a_text_that_its_list_does_not_offer) {
    fields.cboCitizenshipStep2(0).setText(u"India"_s);
    EXPECT_EQ(fields.cboCitizenshipStep2(0).text(), u"India"_s);
}

TEST_F(FieldTest, knows_its_row_and_its_panel) {
    EXPECT_EQ(fields.txtElementSub9(2).row().name, u"txtElementSub9");
    EXPECT_EQ(fields.txtElementSub9(2).index(), 2);
    EXPECT_EQ(fields.txtElementSub9.row().id, FieldId::txtElementSub9);
    EXPECT_EQ(fields.txtOperation.index(), 0);
}
