#include "editors/pages/PageFigures.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "core/fields/FieldLists.h"
#include "editors/pages/FiguresPageFixture.h"
#include "shell/TabWalk.h"

#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PageFiguresTest : public FiguresPageFixture {
protected:
    [[nodiscard]] int top(int figure) const { return control(u"picFigures", figure).y(); }

    [[nodiscard]] bool isShown(const QString& name) const {
        return control(name).isVisibleTo(control(name).parentWidget());
    }

    /// The controls that the Tab key meets, from one on, as often as it is pressed.
    QStringList walk(const QString& from, int presses) {
        control(from).setFocus(Qt::TabFocusReason);
        QStringList met;
        for (int i = 0; i < presses; ++i) {
            QWidget* const next = nextByTab(container(), order, true);
            if (!next)
                break;
            next->setFocus(Qt::TabFocusReason);
            met.append(next->objectName());
        }
        return met;
    }
};

} // namespace

TEST_F(PageFiguresTest, a_new_project_has_one_panel_of_the_designed_height_and_no_scroll_bar) {
    EXPECT_EQ(page.column().panelCount(), 1);
    EXPECT_EQ(control(u"picFigures", 0).height(), 245);
    EXPECT_EQ(control(u"picFigureContainer"_s).height(), 344);
    EXPECT_FALSE(vscroll().isEnabled());
    EXPECT_EQ(vscroll().maximum(), 0);
    EXPECT_EQ(control<FormCombo>(u"cboFigureType", 0).text(), u"SELECT A VIEW"_s);
    EXPECT_EQ(control<FormCombo>(u"cboFiguresNum"_s).text(), u"1"_s);
}

TEST_F(PageFiguresTest, every_panel_names_its_figure) {
    chooseCount(12);
    EXPECT_EQ(label(u"lblFigN", 11), u"Figure 12"_s);
    EXPECT_EQ(label(u"lblAttachFig", 11), u"Attach Figure 12 Image File"_s);
    EXPECT_EQ(label(u"lblFigureDetail", 11), u"Detailed Description of Figure 12"_s);
    EXPECT_EQ(label(u"lblFiegureType", 11), u"Figure 12 is a"_s);
    EXPECT_EQ(label(u"lblNoFigure", 11), u"No Preview Available"_s);
}

TEST_F(PageFiguresTest, two_panels_have_a_scroll_bar) {
    chooseCount(2);
    EXPECT_TRUE(vscroll().isEnabled());
    EXPECT_EQ(vscroll().pageStep(), 245);
    EXPECT_EQ(vscroll().maximum(), 245 - 100);
}

TEST_F(PageFiguresTest, the_last_of_50_panels_ends_one_pixel_above_the_views_bottom) {
    chooseCount(50);
    EXPECT_EQ(vscroll().maximum(), 49 * 245 - 100);
    vscroll().setValue(vscroll().maximum());
    EXPECT_EQ(top(49), 100);
    EXPECT_EQ(top(49) + 245, 345);
    for (int i = 1; i < 50; ++i)
        EXPECT_EQ(top(i), top(i - 1) + 245);
}

TEST_F(PageFiguresTest, a_panel_that_went_comes_back_empty) {
    chooseCount(3);
    type(u"txtFigureDetail(2)"_s, u"gone"_s);
    type(u"txtFigureDetail(1)"_s, u"stays"_s);
    choose(u"cboFigureType(2)"_s, u"front view"_s);
    browse(picture(u"a.png"_s, {30, 30}), 2);
    chooseCount(2);
    EXPECT_FALSE(exists(u"picFigures", 2));
    EXPECT_FALSE(exists(u"txtFigureDetail", 2));
    chooseCount(3);
    EXPECT_EQ(control<TextField>(u"txtFigureDetail", 2).text(), QString());
    EXPECT_EQ(control<LineField>(u"txtAttachFig", 2).text(), QString());
    EXPECT_EQ(control<FormCombo>(u"cboFigureType", 2).text(), u"SELECT A VIEW"_s);
    EXPECT_TRUE(isShown(u"lblNoFigure(2)"_s));
    EXPECT_TRUE(preview(2).isNull());
    EXPECT_EQ(control<TextField>(u"txtFigureDetail", 1).text(), u"stays"_s);
}

TEST_F(PageFiguresTest, every_panel_offers_the_28_rows_of_views) {
    chooseCount(2);
    for (int i = 0; i < 2; ++i) {
        const auto& views = control<FormCombo>(u"cboFigureType", i);
        ASSERT_EQ(views.count(), 28);
        for (int row = 0; row < views.count(); ++row)
            EXPECT_EQ(views.itemText(row), listRows(FieldListId::Views)[row]);
    }
}

TEST_F(PageFiguresTest, no_figure_hides_the_panels_and_empties_the_first_before_the_layout) {
    chooseCount(3);
    browse(picture(u"a.png"_s, {30, 30}));
    choose(u"cboFigureType(0)"_s, u"front view"_s);
    type(u"txtFigureDetail(0)"_s, u"gone"_s);
    type(u"txtFigureDetail(1)"_s, u"goes with its panel"_s);
    clickCount(0);
    EXPECT_FALSE(isShown(u"picFigureContainer"_s));
    EXPECT_FALSE(isShown(u"vscroll(2)"_s));
    EXPECT_EQ(fields.txtAttachFig(0).text(), QString());
    EXPECT_EQ(fields.txtFigureDetail(0).text(), QString());
    EXPECT_EQ(fields.cboFigureType(0).text(), u"front view"_s);
    EXPECT_TRUE(preview().isNull());
    EXPECT_EQ(fields.txtFigureDetail(1).text(), u"goes with its panel"_s);
    waitForLayout();
    EXPECT_EQ(page.column().panelCount(), 1);
    EXPECT_FALSE(vscroll().isEnabled());
    chooseCount(2);
    EXPECT_TRUE(isShown(u"picFigureContainer"_s));
    EXPECT_TRUE(isShown(u"vscroll(2)"_s));
    EXPECT_TRUE(isShown(u"lblNoFigure(0)"_s));
    EXPECT_EQ(control<FormCombo>(u"cboFigureType", 0).text(), u"front view"_s);
    EXPECT_EQ(control<TextField>(u"txtFigureDetail", 1).text(), QString());
}

TEST_F(PageFiguresTest, a_project_without_figures_that_is_opened_shows_no_panel) {
    fields.cboFiguresNum.loadText(u"0"_s);
    page.LayoutFigures(0);
    EXPECT_FALSE(isShown(u"picFigureContainer"_s));
    EXPECT_FALSE(isShown(u"vscroll(2)"_s));
    fields.cboFiguresNum.loadText(u"4"_s);
    page.LayoutFigures(4);
    EXPECT_TRUE(isShown(u"picFigureContainer"_s));
    EXPECT_EQ(fields.panelCount(FieldGroup::Figures), 4);
}

TEST_F(PageFiguresTest, choosing_the_count_that_stands_moves_the_column_to_its_top) {
    chooseCount(5);
    vscroll().setValue(300);
    EXPECT_EQ(top(0), -300);
    chooseCount(5);
    EXPECT_EQ(top(0), 0);
    EXPECT_EQ(vscroll().value(), 0);
}

TEST_F(PageFiguresTest, two_quick_choices_make_one_layout_with_the_second_count) {
    clickCount(50);
    clickCount(2);
    waitForLayout();
    EXPECT_EQ(page.column().panelCount(), 2);
    EXPECT_EQ(fields.panelCount(FieldGroup::Figures), 2);
}

TEST_F(PageFiguresTest, the_article_follows_the_first_letter_of_the_view) {
    chooseCount(2);
    choose(u"cboFigureType(1)"_s, u"upper perspective view"_s);
    EXPECT_EQ(label(u"lblFiegureType", 1), u"Figure 2 is an"_s);
    choose(u"cboFigureType(1)"_s, u"front view"_s);
    EXPECT_EQ(label(u"lblFiegureType", 1), u"Figure 2 is a"_s);
    auto& view = control<FormCombo>(u"cboFigureType", 1);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&view, u"Isometric"_s);
    EXPECT_EQ(fields.cboFigureType(1).text(), u"Isometric"_s);
    EXPECT_EQ(label(u"lblFiegureType", 1), u"Figure 2 is an"_s);
}

TEST_F(PageFiguresTest, the_sentence_pushes_the_view_6_behind_its_end) {
    chooseCount(50);
    for (const int i : {0, 49})
        for (const QString& view : {u"front view"_s, u"end view"_s}) {
            choose(controlName(u"cboFigureType", i), view);
            const auto& sentence = control<QLabel>(u"lblFiegureType", i);
            EXPECT_EQ(sentence.width(), sentence.sizeHint().width());
            EXPECT_EQ(control(u"cboFigureType", i).x(), sentence.x() + sentence.width() + 6);
        }
    EXPECT_GT(control(u"cboFigureType", 49).x(), control(u"cboFigureType", 0).x());
}

TEST_F(PageFiguresTest, a_view_that_is_loaded_writes_the_sentence) {
    state.isLoading = true;
    fields.cboFigureType(0).loadText(u"exploded side view"_s);
    EXPECT_EQ(label(u"lblFiegureType", 0), u"Figure 1 is an"_s);
    EXPECT_EQ(control<FormCombo>(u"cboFigureType", 0).text(), u"exploded side view"_s);
}

TEST_F(PageFiguresTest, a_heading_that_is_chosen_is_told_and_stays) {
    for (const QString& heading :
         {u"--- 2 Dimensional Views ---"_s, u"--- 3 Dimensional Views ----"_s, u"SELECT A VIEW"_s,
          u"--- Flowcharts & Block Diagrams ---"_s, u"--- Alternative Embodiments ---"_s}) {
        prompts.boxes.clear();
        choose(u"cboFigureType(0)"_s, heading);
        ASSERT_EQ(prompts.boxes.size(), 1U);
        EXPECT_EQ(prompts.boxes[0].title, u"Not a Proper Description of Figure"_s);
        EXPECT_EQ(fields.cboFigureType(0).text(), heading);
        EXPECT_EQ(label(u"lblFiegureType", 0), u"Figure 1 is a"_s);
    }
}

TEST_F(PageFiguresTest, a_heading_that_is_typed_or_loaded_is_not_told) {
    auto& view = control<FormCombo>(u"cboFigureType", 0);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&view, u"--- 2 Dimensional Views ---"_s);
    EXPECT_EQ(fields.cboFigureType(0).text(), u"--- 2 Dimensional Views ---"_s);
    fields.cboFigureType(0).loadText(u"SELECT A VIEW"_s);
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(PageFiguresTest, what_is_typed_takes_the_tint_away_and_stays_as_it_was_typed) {
    guidance->TextHighLight(FiguresTab);
    auto& view = control<FormCombo>(u"cboFigureType", 0);
    auto& detail = control<TextField>(u"txtFigureDetail", 0);
    EXPECT_TRUE(view.isTinted()) << "a heading is no view";
    EXPECT_TRUE(detail.isTinted());
    type(u"txtFigureDetail(0)"_s, u" "_s);
    EXPECT_TRUE(detail.isTinted()) << "a blank is nothing";
    type(u"txtFigureDetail(0)"_s, u"A"_s);
    QTest::keyClick(&detail, Qt::Key_Return);
    QTest::keyClicks(&detail, u"b"_s);
    EXPECT_FALSE(detail.isTinted());
    EXPECT_EQ(fields.txtFigureDetail(0).text(), u" A\r\nb"_s);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&view, u"a view"_s);
    EXPECT_FALSE(view.isTinted());
}

TEST_F(PageFiguresTest, with_no_figure_nothing_is_tinted_and_the_cursor_stays) {
    chooseCount(0);
    control(u"cboFiguresNum"_s).setFocus();
    guidance->TextHighLight(FiguresTab);
    guidance->TextgotFocus(FiguresTab);
    EXPECT_FALSE(control<TextField>(u"txtFigureDetail", 0).isTinted());
    EXPECT_TRUE(control(u"cboFiguresNum"_s).hasFocus());
}

TEST_F(PageFiguresTest, a_path_that_leads_nowhere_scrolls_to_the_top_and_moves_no_cursor) {
    chooseCount(3);
    for (int i = 0; i < 3; ++i) {
        browse(picture(u"fig%1.png"_s.arg(i), {20, 20}), i);
        choose(controlName(u"cboFigureType", i), u"front view"_s);
        type(controlName(u"txtFigureDetail", i), u"x"_s);
    }
    ASSERT_TRUE(QFile::remove(fields.txtAttachFig(2).text()));
    vscroll().setValue(200);
    control(u"cboFiguresNum"_s).setFocus();
    guidance->TextgotFocus(FiguresTab);
    EXPECT_TRUE(control(u"cboFiguresNum"_s).hasFocus());
    EXPECT_EQ(vscroll().value(), 0);
}

TEST_F(PageFiguresTest, the_tab_key_goes_through_the_panels_and_round_to_the_count) {
    chooseCount(3);
    QStringList ring;
    for (int i = 0; i < 3; ++i)
        for (const QStringView name :
             {u"cboFigureType", u"imgBrowse", u"imgRemove", u"txtFigureDetail"})
            ring.append(controlName(name, i));
    ring.append(u"cboFiguresNum"_s);
    ring.append(ring.first());
    EXPECT_EQ(walk(u"cboFiguresNum"_s, 14), ring);
}

TEST_F(PageFiguresTest, the_view_follows_the_tab_key_and_no_other_focus) {
    chooseCount(3);
    control(u"txtFigureDetail", 1).setFocus(Qt::MouseFocusReason);
    control(u"txtFigureDetail", 2).setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(vscroll().value(), 0);
    const QRect detail = control(u"txtFigureDetail", 1).geometry();
    tabTo(u"txtFigureDetail", 1);
    EXPECT_EQ(vscroll().value(), detail.y() + detail.height() + 245 - 344);
}

TEST_F(PageFiguresTest, the_view_follows_the_tab_key_to_the_button_browse_but_not_to_remove) {
    chooseCount(3);
    tabTo(u"imgRemove", 2);
    EXPECT_EQ(vscroll().value(), 0);
    const QRect button = control(u"imgBrowse", 2).geometry();
    tabTo(u"imgBrowse", 2);
    EXPECT_EQ(vscroll().value(), button.y() + button.height() + 2 * 245 - 344);
}

TEST_F(PageFiguresTest, a_field_out_of_view_is_brought_into_it_and_one_in_view_stays) {
    chooseCount(3);
    columns->bringIntoView(FieldId::cboFigureType, 1);
    EXPECT_EQ(vscroll().value(), 0);
    columns->bringIntoView(FieldId::txtFigureDetail, 2);
    const QRect detail = control(u"txtFigureDetail", 2).geometry();
    EXPECT_EQ(vscroll().value(), detail.y() + detail.height() + 2 * 245 - 344);
}

TEST_F(PageFiguresTest, tabbing_into_a_field_in_view_moves_nothing) {
    chooseCount(3);
    tabTo(u"cboFigureType", 1);
    tabTo(u"imgBrowse", 1);
    EXPECT_EQ(vscroll().value(), 0);
}

TEST_F(PageFiguresTest, assistive_programs_hear_of_which_figure_a_control_is) {
    chooseCount(2);
    EXPECT_EQ(control(u"txtAttachFig", 1).accessibleName(), u"Attach Figure 2 Image File"_s);
    EXPECT_EQ(control(u"txtFigureDetail", 1).accessibleName(),
              u"Detailed Description of Figure 2"_s);
    for (const QStringView name : {u"cboFigureType", u"imgBrowse", u"imgRemove"})
        EXPECT_TRUE(control(name, 1).accessibleName().contains(u"Figure 2"_s));
}

TEST_F(PageFiguresTest, nothing_lies_over_anything_and_no_label_is_cut) {
    chooseCount(50);
    choose(u"cboFigureType(49)"_s, u"upper perspective view"_s);
    for (const int i : {0, 49}) {
        const QWidget& panel = control(u"picFigures", i);
        EXPECT_EQ(crowded(panel), QStringList());
        for (const QLabel* text : panel.findChildren<QLabel*>())
            EXPECT_LE(text->fontMetrics().horizontalAdvance(text->text()), text->width())
                << text->objectName().toStdString();
    }
    EXPECT_EQ(crowded(container()), QStringList());
}
