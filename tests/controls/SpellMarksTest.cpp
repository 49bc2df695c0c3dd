#include "controls/SpellMarks.h"

#include "controls/LineField.h"
#include "controls/TextField.h"
#include "support/FakeSpellEngine.h"
#include "support/PrintQt.h"
#include "support/RedMarks.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What a field of either kind promises of its spelling.
template <typename Field>
class SpellMarksTest : public testing::Test {
protected:
    SpellMarksTest() {
        engine.unknown = {u"xqzt"_s};
        engine.suggested[u"xqzt"_s] = {u"next"_s, u"text"_s};
        field.resize(300, 40);
        field.show();
        field.setFocus();
        marks().bindTo(&spelling);
    }

    SpellMarks& marks() { return *SpellMarks::of(field); }

    /// Opens the menu at this place of the field, keeps its texts and chooses the one wanted.
    void chooseInMenu(const QPoint& place, const QString& wanted = {}) {
        texts.clear();
        QTimer::singleShot(0, [this, wanted] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions()) {
                texts.append(action->text());
                if (!wanted.isEmpty() && action->text() == wanted)
                    action->trigger();
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, field.mapToGlobal(place));
        QCoreApplication::sendEvent(target(), &event);
    }

    QWidget* target() {
        auto* area = qobject_cast<QAbstractScrollArea*>(&field);
        return area ? area->viewport() : static_cast<QWidget*>(&field);
    }

    QPoint middleOfMarks() {
        const auto columns = marksOf(field);
        EXPECT_TRUE(columns);
        return columns ? QPoint((columns->first + columns->last) / 2, 12) : QPoint();
    }

    FakeSpellEngine engine;
    Spelling spelling{engine, {}};
    Field field;
    QStringList texts;
};

using Fields = testing::Types<LineField, TextField>;
TYPED_TEST_SUITE(SpellMarksTest, Fields);

} // namespace

TYPED_TEST(SpellMarksTest, a_wavy_line_stands_under_an_unknown_word_and_under_it_alone) {
    this->field.clearFocus();
    this->field.showText(u"          xqzt"_s);
    const auto line = marksOf(this->field);
    this->marks().bindTo(nullptr);
    const auto word = columnsOf(this->field, isDark);
    ASSERT_TRUE(line && word);
    EXPECT_NEAR(line->first, word->first, 2);
    EXPECT_NEAR(line->last, word->last, 2);
}

TYPED_TEST(SpellMarksTest, known_words_have_no_line) {
    this->field.showText(u"the hinged leg"_s);
    EXPECT_FALSE(marksOf(this->field));
}

TYPED_TEST(SpellMarksTest, an_unknown_word_is_marked_while_it_is_typed) {
    QTest::keyClicks(&this->field, u"the xqz"_s);
    EXPECT_FALSE(marksOf(this->field));
    QTest::keyClicks(&this->field, u"t"_s);
    EXPECT_TRUE(marksOf(this->field));
    QTest::keyClicks(&this->field, u"s"_s);
    EXPECT_FALSE(marksOf(this->field));
}

TYPED_TEST(SpellMarksTest, a_field_that_is_not_bound_has_no_lines) {
    this->field.showText(u"the xqzt"_s);
    this->marks().bindTo(nullptr);
    EXPECT_FALSE(marksOf(this->field));
}

TYPED_TEST(SpellMarksTest, without_a_dictionary_there_are_no_lines) {
    this->engine.has = false;
    this->field.showText(u"the xqzt"_s);
    EXPECT_FALSE(marksOf(this->field));
}

TYPED_TEST(SpellMarksTest, the_menu_offers_suggestions_then_to_learn_then_the_usual) {
    this->field.showText(u"the xqzt leg"_s);
    this->chooseInMenu(this->middleOfMarks());
    EXPECT_EQ(this->texts.first(4),
              QStringList({u"next"_s, u"text"_s, QString(), u"Add to Dictionary"_s}));
    EXPECT_EQ(this->texts.value(4), u"Ignore"_s);
    EXPECT_TRUE(this->texts.filter(u"Paste"_s).size() == 1);
}

TYPED_TEST(SpellMarksTest, the_menu_on_a_known_word_is_the_usual_one) {
    this->field.showText(u"the                   xqzt"_s);
    this->chooseInMenu({10, 12});
    EXPECT_FALSE(this->texts.contains(u"Ignore"_s));
    EXPECT_TRUE(this->texts.filter(u"Paste"_s).size() == 1);
}

TYPED_TEST(SpellMarksTest, a_suggestion_takes_the_word_s_place_and_can_be_taken_back) {
    QSignalSpy edits(&this->field, &TypeParam::edited);
    this->field.showText(u"the xqzt leg"_s);
    this->chooseInMenu(this->middleOfMarks(), u"text"_s);
    EXPECT_EQ(this->field.text(), u"the text leg"_s);
    EXPECT_EQ(edits.count(), 1);
    QTest::keyClick(&this->field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(this->field.text(), u"the xqzt leg"_s);
}

TYPED_TEST(SpellMarksTest, an_added_word_loses_its_line) {
    this->field.showText(u"the xqzt leg"_s);
    this->chooseInMenu(this->middleOfMarks(), u"Add to Dictionary"_s);
    EXPECT_EQ(this->engine.added, QStringList({u"xqzt"_s}));
    EXPECT_FALSE(marksOf(this->field));
    EXPECT_EQ(this->field.text(), u"the xqzt leg"_s);
}

TYPED_TEST(SpellMarksTest, an_ignored_word_loses_its_line) {
    this->field.showText(u"the xqzt leg"_s);
    this->chooseInMenu(this->middleOfMarks(), u"Ignore"_s);
    EXPECT_EQ(this->engine.ignored, QStringList({u"xqzt"_s}));
    EXPECT_FALSE(marksOf(this->field));
}

TYPED_TEST(SpellMarksTest, a_field_for_reading_offers_no_suggestions) {
    this->field.showText(u"the xqzt leg"_s);
    this->field.setReadOnly(true);
    this->chooseInMenu(this->middleOfMarks());
    EXPECT_FALSE(this->texts.contains(u"text"_s));
    EXPECT_TRUE(this->texts.contains(u"Ignore"_s));
}

TYPED_TEST(SpellMarksTest, a_word_in_the_seen_part_of_a_megabyte_is_marked) {
    this->field.showText(u"hinged leg "_s.repeated(100'000) + u"xqzt"_s);
    EXPECT_FALSE(marksOf(this->field));
    // In a field of one line the one, in a box the other.
    QTest::keyClick(&this->field, Qt::Key_End);
    QTest::keyClick(&this->field, Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(marksOf(this->field));
    EXPECT_LT(this->engine.asked.size(), 2000);
}

TYPED_TEST(SpellMarksTest, a_word_in_a_text_from_right_to_left_is_marked) {
    this->field.showText(u"\u05d0\u05d1 xqzt \u05d2\u05d3"_s);
    const auto marked = marksOf(this->field);
    ASSERT_TRUE(marked);
    EXPECT_NEAR(marked->last - marked->first,
                QFontMetrics(this->field.font()).horizontalAdvance(u"xqzt"_s), 4);
}

TEST(SpellMarksOfTest, a_line_that_is_scrolled_has_its_marks_under_the_words) {
    FakeSpellEngine engine;
    engine.unknown = {u"xqzt"_s};
    Spelling spelling(engine, {});
    LineField field;
    field.resize(200, 26);
    field.show();
    SpellMarks::of(field)->bindTo(&spelling);
    const QString rest = u"          "_s;
    field.showText(u"hinged leg "_s.repeated(20) + u"xqzt"_s + rest);
    field.end(false);
    const auto marked = marksOf(field);
    ASSERT_TRUE(marked);
    const int right = 200 - QFontMetrics(field.font()).horizontalAdvance(rest);
    EXPECT_NEAR(marked->last, right, 8);
    EXPECT_NEAR(marked->last - marked->first,
                QFontMetrics(field.font()).horizontalAdvance(u"xqzt"_s), 4);
}

TEST(SpellMarksOfTest, a_word_on_a_line_below_is_marked_there) {
    FakeSpellEngine engine;
    engine.unknown = {u"xqzt"_s};
    Spelling spelling(engine, {});
    TextField field;
    field.resize(300, 80);
    field.show();
    SpellMarks::of(field)->bindTo(&spelling);
    field.showText(u"one\ntwo\nxqzt"_s);
    const QImage image = field.grab().toImage();
    int first = -1;
    for (int y = 3; y < 77 && first < 0; ++y)
        for (int x = 3; x < 60 && first < 0; ++x)
            if (isRed(image.pixel(x, y)))
                first = y;
    EXPECT_GT(first, 2 * field.fontMetrics().height());
}

TEST(SpellMarksOfTest, a_control_without_a_text_has_no_marks) {
    const QWidget plain;
    EXPECT_EQ(SpellMarks::of(plain), nullptr);
}
