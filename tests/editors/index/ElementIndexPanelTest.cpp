#include "editors/index/ElementIndexPanel.h"

#include "editors/pages/ElementPagesFixture.h"

#include <QImage>
#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ElementIndexPanelTest : public ElementPagesFixture {
protected:
    [[nodiscard]] QWidget& surface() const { return control(u"picIndexOfMainElementD"_s); }

    [[nodiscard]] QScrollBar& bar() const { return control<QScrollBar>(u"VScroll1"_s); }

    /// Fills the index with so many Main Elements of one line.
    void fill(int elements) {
        columns->LayoutMainElements(elements);
        fields.cboMainElementNum.setText(QString::number(elements));
        for (int i = 0; i < elements; ++i)
            fields.txtElementName(i).setText(u"hinge"_s);
        index->RebuildElementIndex();
    }

    /// How dark a part of the surface is: the more ink, the greater.
    [[nodiscard]] int ink(const QRect& part) const {
        const QImage image = surface().grab(part).toImage();
        int sum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                sum += 255 - qGray(image.pixel(x, y));
        const int ground = 255 - qGray(image.pixel(image.width() - 1, 0));
        return sum - ground * image.width() * image.height();
    }
};

} // namespace

TEST_F(ElementIndexPanelTest, without_any_text_the_surface_has_height_1_and_no_scroll_bar) {
    index->RebuildElementIndex();
    EXPECT_EQ(surface().size(), QSize(179, 1));
    EXPECT_FALSE(bar().isEnabled());
    EXPECT_EQ(bar().maximum(), 0);
}

TEST_F(ElementIndexPanelTest, a_drawing_can_be_printed_and_an_emptied_one_cannot) {
    index->RebuildElementIndex();
    EXPECT_TRUE(control(u"imgPrint"_s).isEnabled());
    index->clearIndex();
    EXPECT_FALSE(control(u"imgPrint"_s).isEnabled());
    EXPECT_EQ(surface().height(), 0);
}

TEST_F(ElementIndexPanelTest, clearing_moves_the_scroll_bar_to_0) {
    fill(15);
    bar().setValue(50);
    index->clearIndex();
    EXPECT_EQ(bar().value(), 0);
    EXPECT_FALSE(bar().isEnabled());
    EXPECT_EQ(surface().y(), 0);
    EXPECT_EQ(indexText(), u""_s);
}

TEST_F(ElementIndexPanelTest, the_surface_is_as_high_as_its_lines_and_gaps) {
    fill(15);
    EXPECT_EQ(surface().height(), 1 + 15 * measure.lineHeight() + 14 * 5);
    EXPECT_TRUE(bar().isEnabled());
    EXPECT_EQ(bar().maximum(), surface().height() - 148 + 10);
}

TEST_F(ElementIndexPanelTest, the_scroll_bar_moves_the_surface_and_a_redraw_leaves_it_there) {
    fill(15);
    bar().setValue(40);
    EXPECT_EQ(surface().y(), -40);
    index->RebuildElementIndex();
    EXPECT_EQ(surface().y(), -40);
    fill(2);
    EXPECT_EQ(bar().value(), 0);
    EXPECT_EQ(surface().y(), 0);
}

TEST_F(ElementIndexPanelTest, a_name_in_capitals_shows_in_proper_case_and_stays_as_typed) {
    fields.txtElementName(0).setText(u"LEG OF the MAST"_s);
    index->RebuildElementIndex();
    EXPECT_EQ(indexText(), u"10: Leg OF The Mast"_s);
    EXPECT_EQ(fields.txtElementName(0).text(), u"LEG OF the MAST"_s);
}

TEST_F(ElementIndexPanelTest, a_sub_element_alone_is_numbered_by_its_slot) {
    fields.txtElementSub4(0).setText(u"pin"_s);
    index->RebuildElementIndex();
    EXPECT_EQ(indexText(), u"14: Pin"_s);
}

TEST_F(ElementIndexPanelTest,
       a_word_longer_than_the_line_is_cut_and_all_of_it_stays_on_the_surface) {
    fields.txtElementName(0).setText(QString(200, u'w'));
    index->RebuildElementIndex();
    const int lines = (surface().height() - 1) / measure.lineHeight();
    EXPECT_GT(lines, 5);
    EXPECT_EQ(indexText().remove(u' ').size(), 3 + 200);
    EXPECT_GT(ink({30, 0, 140, surface().height()}), 0);
    EXPECT_EQ(ink({177, 0, 2, surface().height()}), 0);
}

TEST_F(ElementIndexPanelTest, numbers_and_texts_are_drawn_in_their_columns_and_names_in_bold) {
    fields.txtElementName(0).setText(u"hinge"_s);
    fields.txtElementSub1(0).setText(u"hinge"_s);
    index->RebuildElementIndex();
    const int line = measure.lineHeight();
    EXPECT_EQ(ink({0, 0, 6, 2 * line}), 0);
    EXPECT_GT(ink({6, 0, 24, line}), 0);
    EXPECT_GT(ink({30, 0, 60, line}), ink({30, line, 60, line}));
    EXPECT_GT(ink({30, line, 60, line}), 0);
}

TEST_F(ElementIndexPanelTest, a_name_shows_at_the_next_redraw_that_something_else_starts) {
    go(MainElementsTab);
    type(u"txtElementName(0)"_s, u"hinge"_s);
    clickTo(u"txtElementDes(0)"_s);
    EXPECT_EQ(indexText(), u""_s);
    chooseCount(3);
    EXPECT_EQ(indexText(), u"10: Hinge"_s);
}

TEST_F(ElementIndexPanelTest, a_click_gives_the_index_the_focus) {
    fill(3);
    EXPECT_FALSE(index->indexHasFocus());
    QTest::mouseClick(&surface(), Qt::LeftButton);
    EXPECT_TRUE(index->indexHasFocus());
}

TEST_F(ElementIndexPanelTest, the_whole_index_can_be_disabled) {
    index->enableIndex(false);
    EXPECT_FALSE(control(u"picIndexContainer"_s).isEnabled());
    index->enableIndex(true);
    EXPECT_TRUE(control(u"picIndexContainer"_s).isEnabled());
}

TEST_F(ElementIndexPanelTest, a_disabled_index_is_as_legible_as_before) {
    fill(3);
    const QImage enabled = surface().grab().toImage();
    index->enableIndex(false);
    EXPECT_EQ(surface().grab().toImage(), enabled);
}
