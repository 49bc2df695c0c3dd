#include "editors/pages/PageObjects.h"

#include "editors/pages/FirstPagesFixture.h"

#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PageObjectsTest : public FirstPagesFixture {
protected:
    PageObjectsTest() { enter(); }

    /// Enters the section anew, as from another.
    void enter() {
        go(IntroductionTab);
        go(ObjectsTab);
        columns->layouts.clear();
    }

    void enterWithTitle(const QString& title) {
        fields.txtInventionTitle.setText(title);
        enter();
    }

    void chooseObjects(int count) { chooseCount(u"cboObjectNum"_s, count); }

    [[nodiscard]] QString sentence(int object) const {
        return label(controlName(u"lblObject", object));
    }

    [[nodiscard]] QString star(int object) const {
        return label(controlName(u"lblObjectValidate", object));
    }

    [[nodiscard]] QRect place(QStringView name, int object) const {
        return control(controlName(name, object)).geometry();
    }

    [[nodiscard]] int top(int object) const { return place(u"frmObjectsNum", object).y(); }

    [[nodiscard]] int height(int object) const { return place(u"frmObjectsNum", object).height(); }

    /// Each panel stands at the bottom of the one before, and its parts where its sentence says.
    void expectStacked(int count) const {
        for (int i = 0; i < count; ++i) {
            const QRect words = place(u"lblObject", i);
            EXPECT_EQ(words.width(), 350);
            EXPECT_EQ(words.height() % 13, 0);
            EXPECT_EQ(place(u"lblObjectValidate", i).width(), 350);
            EXPECT_EQ(place(u"lblObjectValidate", i).topLeft(), words.topLeft());
            EXPECT_EQ(place(u"txtObject", i).y(), words.y() + words.height() + 6);
            EXPECT_EQ(height(i), words.height() + 81 - 26);
            EXPECT_EQ(top(i), i == 0 ? 0 : top(i - 1) + height(i - 1));
        }
    }

    const QString longTitle =
        u"Collapsible Umbrella Stand with a Drain That Is Emptied Once a Month "
        u"and a Tray of Brass"_s;
};

} // namespace

// The sentences.

TEST_F(PageObjectsTest, without_a_title_a_placeholder_with_a_stands_in_the_sentences) {
    EXPECT_EQ(sentence(0), u"1. \"An object of my invention is to provide a [Descriptive Title] "
                           u"that _____________.\" (COMPLETE SENTENCE)"_s);
    EXPECT_EQ(sentence(1),
              u"2. \"Another object of my invention is to provide a [Descriptive Title] "
              u"that _____________.\" (COMPLETE SENTENCE)  "_s);
}

TEST_F(PageObjectsTest, the_article_goes_by_the_first_letter_alone) {
    enterWithTitle(u"Umbrella Stand"_s);
    EXPECT_TRUE(sentence(0).contains(u" provide an umbrella stand that "_s));
    enterWithTitle(u"Hour Meter"_s);
    EXPECT_TRUE(sentence(0).contains(u" provide a hour meter that "_s));
    EXPECT_TRUE(sentence(3).contains(u" provide a hour meter that "_s));
    enterWithTitle(u"Acme Press"_s);
    EXPECT_TRUE(sentence(0).contains(u" provide an acme press that "_s));
}

TEST_F(PageObjectsTest, twenty_objects_are_numbered_and_all_but_the_first_are_another) {
    enterWithTitle(u"Easel"_s);
    chooseObjects(20);
    EXPECT_EQ(sentence(0), u"1. \"An object of my invention is to provide an easel that "
                           u"_____________.\" (COMPLETE SENTENCE)"_s);
    for (int i = 1; i < 20; ++i)
        EXPECT_TRUE(sentence(i).startsWith(
            QString::number(i + 1) +
            u". \"Another object of my invention is to provide an easel that "_s));
    EXPECT_FALSE(exists(u"frmObjectsNum(20)"_s));
}

TEST_F(PageObjectsTest, the_star_stands_two_blanks_behind_the_sentence_whoever_wrote_it) {
    EXPECT_EQ(star(0), sentence(0) + u"  *"_s);
    EXPECT_EQ(star(2), sentence(2) + u"*"_s);
    chooseObjects(6);
    EXPECT_EQ(star(2), sentence(2) + u"*"_s);   // stood already
    EXPECT_EQ(star(5), sentence(5) + u"  *"_s); // comes from the layout
    EXPECT_TRUE(sentence(5).endsWith(u"(COMPLETE SENTENCE)"_s));
    enter();
    EXPECT_EQ(star(5), sentence(5) + u"*"_s);
}

TEST_F(PageObjectsTest, of_the_star_label_the_star_alone_shows) {
    for (const QString& title : {u""_s, longTitle}) {
        enterWithTitle(title);
        const QWidget& label = control(u"lblObjectValidate(1)"_s);
        const QRect seen = label.mask().boundingRect();
        EXPECT_EQ(seen.bottom(), label.rect().bottom());
        EXPECT_EQ(seen.height(), 13);
        EXPECT_GT(seen.left(), 100);
    }
}

TEST_F(PageObjectsTest, the_sentences_stand_still_until_the_section_is_entered_again) {
    fields.txtInventionTitle.setText(u"Easel"_s);
    EXPECT_TRUE(sentence(0).contains(u"[Descriptive Title]"_s));
    enter();
    EXPECT_TRUE(sentence(0).contains(u"an easel"_s));
}

TEST_F(PageObjectsTest, a_changed_title_leaves_what_was_typed_as_it_was) {
    for (int i = 0; i < 4; ++i)
        type(controlName(u"txtObject", i), u"Object "_s + QString::number(i));
    enterWithTitle(longTitle);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(shown(controlName(u"txtObject", i)), u"Object "_s + QString::number(i));
}

TEST_F(PageObjectsTest, an_assistive_program_hears_the_sentence_to_complete) {
    enterWithTitle(u"Easel"_s);
    EXPECT_EQ(control(u"txtObject(0)"_s).accessibleName(), sentence(0));
    EXPECT_EQ(control(u"txtObject(3)"_s).accessibleName(), sentence(3));
}

// The column.

TEST_F(PageObjectsTest, four_panels_of_two_lines_fill_the_view_and_the_bar_stays_off) {
    EXPECT_EQ(objects->column().panelCount(), 4);
    EXPECT_EQ(control(u"picObjectsContainer"_s).height(), 324);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(height(i), 81);
    EXPECT_EQ(top(3) + height(3), 324);
    EXPECT_FALSE(vscroll(1).isEnabled());
    EXPECT_EQ(vscroll(1).pageStep(), 81);
    expectStacked(4);
}

TEST_F(PageObjectsTest, a_fifth_panel_turns_the_bar_on) {
    chooseObjects(5);
    EXPECT_TRUE(vscroll(1).isEnabled());
    EXPECT_EQ(vscroll(1).maximum(), 81);
    EXPECT_EQ(vscroll(1).pageStep(), 81);
    vscroll(1).setValue(81);
    EXPECT_EQ(top(4) + 81, 324);
}

TEST_F(PageObjectsTest, a_longer_sentence_makes_its_panel_taller_by_its_lines) {
    enterWithTitle(longTitle);
    EXPECT_EQ(height(1), 94);
    EXPECT_TRUE(vscroll(1).isEnabled());
    EXPECT_EQ(vscroll(1).maximum(), 3 * height(1) + height(0) - 324);
    expectStacked(4);
    enterWithTitle(u"Easel"_s);
    EXPECT_EQ(height(1), 81);
    EXPECT_FALSE(vscroll(1).isEnabled());
    expectStacked(4);
}

TEST_F(PageObjectsTest, panels_that_a_layout_makes_are_fitted_to_the_title_too) {
    enterWithTitle(longTitle);
    chooseObjects(20);
    expectStacked(20);
}

TEST_F(PageObjectsTest, one_panel_has_no_scroll_bar) {
    enterWithTitle(longTitle);
    chooseObjects(1);
    EXPECT_EQ(objects->column().panelCount(), 1);
    EXPECT_FALSE(vscroll(1).isEnabled());
    enter();
    EXPECT_FALSE(vscroll(1).isEnabled());
}

TEST_F(PageObjectsTest, lowering_the_count_drops_the_texts_for_good) {
    for (int i = 0; i < 4; ++i)
        type(controlName(u"txtObject", i), u"Text"_s);
    chooseObjects(2);
    EXPECT_FALSE(exists(u"frmObjectsNum(2)"_s));
    EXPECT_FALSE(exists(u"txtObject(2)"_s));
    chooseObjects(4);
    EXPECT_EQ(shown(u"txtObject(1)"_s), u"Text"_s);
    EXPECT_EQ(shown(u"txtObject(2)"_s), u""_s);
    EXPECT_EQ(shown(u"txtObject(3)"_s), u""_s);
    EXPECT_EQ(fields.txtObject(3).text(), u""_s);
}

TEST_F(PageObjectsTest, choosing_the_count_that_stands_moves_the_column_to_its_top) {
    chooseObjects(9);
    vscroll(1).setValue(100);
    EXPECT_EQ(top(0), -100);
    columns->layouts.clear();
    chooseObjects(9);
    EXPECT_EQ(columns->layouts, QList<int>{9});
    EXPECT_EQ(top(0), 0);
    EXPECT_EQ(vscroll(1).value(), 0);
}

TEST_F(PageObjectsTest, two_quick_choices_make_one_layout_with_the_second_count) {
    choose(u"cboObjectNum"_s, u"12"_s);
    choose(u"cboObjectNum"_s, u"7"_s);
    EXPECT_EQ(objects->column().panelCount(), 4);
    waitForLayout();
    EXPECT_EQ(columns->layouts, QList<int>{7});
    EXPECT_EQ(objects->column().panelCount(), 7);
}

TEST_F(PageObjectsTest, entering_lays_out_what_the_count_field_says) {
    type(u"txtObject(1)"_s, u"Text"_s);
    fields.cboObjectNum.setText(u"6"_s);
    enter();
    EXPECT_EQ(objects->column().panelCount(), 6);
    EXPECT_EQ(fields.panelCount(FieldGroup::Objects), 6);
    EXPECT_EQ(shown(u"txtObject(1)"_s), u"Text"_s);
    EXPECT_TRUE(vscroll(1).isEnabled());
}

// Keys.

TEST_F(PageObjectsTest, enter_adds_no_line) {
    type(u"txtPurpose"_s, u"one"_s);
    QTest::keyClick(&control(u"txtPurpose"_s), Qt::Key_Return);
    QTest::keyClick(&control(u"txtPurpose"_s), Qt::Key_Enter);
    QTest::keyClicks(&control(u"txtPurpose"_s), u"two"_s);
    EXPECT_EQ(fields.txtPurpose.text(), u"onetwo"_s);
    chooseObjects(5);
    for (const int object : {0, 4}) {
        const QString name = controlName(u"txtObject", object);
        clickTo(name);
        QTest::keyClicks(&control(name), u"a"_s);
        QTest::keyClick(&control(name), Qt::Key_Return);
        QTest::keyClicks(&control(name), u"b"_s);
        EXPECT_EQ(fields.txtObject(object).text(), u"ab"_s);
    }
}

TEST_F(PageObjectsTest, the_tab_key_walks_the_objects_and_closes_on_the_purpose) {
    clickTo(u"txtPurpose"_s);
    QStringList walked;
    for (int i = 0; i < 6; ++i)
        walked.append(pressTab());
    EXPECT_EQ(walked, QStringList({u"cboObjectNum"_s, u"txtObject(0)"_s, u"txtObject(1)"_s,
                                   u"txtObject(2)"_s, u"txtObject(3)"_s, u"txtPurpose"_s}));
}

TEST_F(PageObjectsTest, objects_that_come_later_are_walked_in_their_place) {
    chooseObjects(6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(order.tabIndex(controlName(u"txtObject", i)),
                  order.tabIndex(u"txtObject(0)"_s) + i);
    clickTo(u"txtObject(4)"_s);
    EXPECT_EQ(pressTab(), u"txtObject(5)"_s);
    EXPECT_EQ(pressTab(), u"txtPurpose"_s);
    EXPECT_EQ(pressTab(), u"cboObjectNum"_s);
}

TEST_F(PageObjectsTest, the_view_follows_the_tab_key_through_twenty_objects_of_many_lines) {
    enterWithTitle(longTitle);
    chooseObjects(20);
    clickTo(u"cboObjectNum"_s);
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(pressTab(), controlName(u"txtObject", i));
        const QWidget& field = *QApplication::focusWidget();
        EXPECT_EQ(field.visibleRegion().boundingRect(), field.rect()) << i;
    }
}

TEST_F(PageObjectsTest, tabbing_into_a_field_in_view_moves_nothing) {
    chooseObjects(8);
    vscroll(1).setValue(30);
    tabTo(u"txtObject(2)"_s);
    EXPECT_EQ(vscroll(1).value(), 30);
}

TEST_F(PageObjectsTest, clicking_a_field_out_of_view_moves_nothing) {
    chooseObjects(8);
    clickTo(u"txtObject(7)"_s);
    EXPECT_EQ(focused(), u"txtObject(7)"_s);
    EXPECT_EQ(vscroll(1).value(), 0);
}

// Guidance.

TEST_F(PageObjectsTest, empty_and_blank_fields_are_tinted) {
    type(u"txtObject(1)"_s, u"Text"_s);
    type(u"txtObject(2)"_s, u"   "_s);
    guidance->TextHighLight(ObjectsTab);
    EXPECT_TRUE(isTinted(u"txtPurpose"_s));
    EXPECT_TRUE(isTinted(u"txtObject(0)"_s));
    EXPECT_FALSE(isTinted(u"txtObject(1)"_s));
    EXPECT_TRUE(isTinted(u"txtObject(2)"_s));
}

TEST_F(PageObjectsTest, a_filled_field_that_is_emptied_again_stays_white_until_the_next_look) {
    guidance->TextHighLight(ObjectsTab);
    type(u"txtObject(0)"_s, u"A"_s);
    empty(u"txtObject(0)"_s);
    EXPECT_FALSE(isTinted(u"txtObject(0)"_s));
    guidance->TextHighLight(ObjectsTab);
    EXPECT_TRUE(isTinted(u"txtObject(0)"_s));
}

TEST_F(PageObjectsTest, the_cursor_goes_to_the_first_empty_field_and_the_column_to_its_top) {
    chooseObjects(12);
    type(u"txtPurpose"_s, u"Text"_s);
    for (int i = 0; i < 9; ++i)
        fields.txtObject(i).setText(u"Text"_s);
    vscroll(1).setValue(vscroll(1).maximum());
    guidance->TextgotFocus(ObjectsTab);
    EXPECT_EQ(focused(), u"txtObject(9)"_s);
    EXPECT_EQ(vscroll(1).value(), 0);
}

TEST_F(PageObjectsTest, an_empty_purpose_takes_the_cursor_and_scrolls_nothing) {
    chooseObjects(12);
    vscroll(1).setValue(90);
    clickTo(u"txtObject(3)"_s);
    guidance->TextgotFocus(ObjectsTab);
    EXPECT_EQ(focused(), u"txtPurpose"_s);
    EXPECT_EQ(vscroll(1).value(), 90);
}

TEST_F(PageObjectsTest, with_all_fields_filled_the_cursor_stays) {
    type(u"txtPurpose"_s, u"Text"_s);
    for (int i = 0; i < 4; ++i)
        type(controlName(u"txtObject", i), u"Text"_s);
    clickTo(u"cboObjectNum"_s);
    guidance->TextgotFocus(ObjectsTab);
    EXPECT_EQ(focused(), u"cboObjectNum"_s);
}

// The look.

TEST_F(PageObjectsTest, nothing_lies_over_anything_and_no_label_is_cut) {
    for (const QString& title : {u""_s, u"Easel"_s, longTitle}) {
        enterWithTitle(title);
        EXPECT_EQ(crowded(container(ObjectsTab)), QStringList());
        EXPECT_EQ(clipped(container(ObjectsTab)), QStringList());
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(crowded(control(controlName(u"frmObjectsNum", i))), QStringList());
    }
}

TEST_F(PageObjectsTest, a_title_of_one_word_without_end_keeps_the_boxes_apart) {
    enterWithTitle(QString(100, u'W'));
    expectStacked(4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(crowded(control(controlName(u"frmObjectsNum", i))), QStringList());
}
