#include "draft/pages/PageText.h"

#include "draft/compose/HtmlComposition.h"
#include "draft/pages/LongRuns.h"
#include "support/FakePictureLoader.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QFontInfo>
#include <QPainter>
#include <QTextBlock>
#include <QUrl>

using namespace quillford;

namespace {

class PageTextTest : public HtmlComposition {
protected:
    void show(const QString& page, Medium medium = Medium::Paper) {
        setPage(document, page, loader, medium);
    }

    /// The first block that begins with the text.
    [[nodiscard]] QTextBlock block(const QString& text) const {
        for (QTextBlock each = document.begin(); each.isValid(); each = each.next())
            if (each.text().startsWith(text))
                return each;
        ADD_FAILURE() << "no block begins with " << qPrintable(text);
        return {};
    }

    [[nodiscard]] QTextBlock drawing() const {
        return block(QString(QChar(QChar::ObjectReplacementCharacter)));
    }

    QTextDocument document;
    FakePictureLoader loader;
};

double pixels(const QTextBlock& block) {
    return QFontInfo(block.begin().fragment().charFormat().font()).pixelSize();
}

} // namespace

TEST_F(PageTextTest, running_text_is_justified_indented_and_18_points_apart) {
    show(preview());
    const QTextBlockFormat format = block(u"Example embodiments in general"_s).blockFormat();
    EXPECT_EQ(format.alignment(), Qt::AlignJustify);
    EXPECT_EQ(format.textIndent(), 48);
    EXPECT_EQ(format.lineHeightType(), QTextBlockFormat::FixedHeight);
    EXPECT_EQ(format.lineHeight(), 24);
}

TEST_F(PageTextTest, lettered_headings_hang_by_36_points) {
    show(preview());
    const QTextBlock heading = block(u"A."_s);
    EXPECT_EQ(heading.blockFormat().leftMargin(), 48);
    EXPECT_EQ(heading.blockFormat().textIndent(), -48);
    EXPECT_TRUE(heading.begin().fragment().charFormat().fontItalic());
    EXPECT_TRUE(keepsWithNext(heading));
}

TEST_F(PageTextTest, type_has_the_sizes_of_the_template) {
    show(preview());
    EXPECT_NEAR(pixels(block(u"Confidential"_s)), 10 * 4 / 3.0, 0.4);
    EXPECT_NEAR(pixels(block(u"UNITED STATES"_s)), 16 * 4 / 3.0, 0.4);
    EXPECT_NEAR(pixels(block(u"SPECIFICATION"_s)), 14 * 4 / 3.0, 0.4);
    EXPECT_NEAR(pixels(block(u"TO ALL"_s)), 16, 0.1);
    EXPECT_NEAR(pixels(block(u"FIG. 1"_s)), 24, 0.1);
}

TEST_F(PageTextTest, headings_begin_pages_on_paper_and_stand_apart_on_the_screen) {
    show(preview());
    EXPECT_TRUE(beginsPage(block(u"CLAIMS"_s)));
    EXPECT_EQ(block(u"CLAIMS"_s).blockFormat().topMargin(), 0);
    EXPECT_FALSE(beginsPage(block(u"BACKGROUND"_s)));
    show(preview(), Medium::Screen);
    EXPECT_EQ(block(u"CLAIMS"_s).blockFormat().topMargin(), 64);
}

TEST_F(PageTextTest, every_object_is_indented) {
    show(preview());
    const QTextBlock first = block(u"Another object"_s);
    EXPECT_TRUE(first.next().text().startsWith(u"Another object"));
    EXPECT_EQ(first.next().blockFormat().textIndent(), 48);
}

TEST_F(PageTextTest, a_figure_is_drawn_in_its_computed_size_whatever_its_picture_has) {
    fields.figureState(0).sizeText = u"660, 500"_s;
    loader.pictures[u"/nowhere/fig1.png"_s] = QImage(10, 10, QImage::Format_RGB32);
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    show(preview());
    const auto figure = drawing().begin().fragment().charFormat().toImageFormat();
    EXPECT_EQ(QSizeF(figure.width(), figure.height()), QSizeF(660, 500));
    document.setTextWidth(624);
    EXPECT_NEAR(document.documentLayout()->blockBoundingRect(drawing()).height(), 500, 1);
}

TEST_F(PageTextTest, a_figure_is_loaded_when_it_is_drawn_for_the_first_time) {
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    fields.figureState(0).sizeText = u"300, 200"_s;
    show(preview(), Medium::Screen);
    document.setTextWidth(624);
    EXPECT_GT(document.size().height(), 2000);
    EXPECT_EQ(loader.asked, QStringList()) << "laid out, not drawn";
    QImage paper(10, 10, QImage::Format_RGB32);
    for (int drawing = 0; drawing < 2; ++drawing) {
        QPainter painter(&paper);
        document.drawContents(&painter);
    }
    EXPECT_EQ(loader.asked, QStringList{u"/nowhere/fig1.png"_s});
}

TEST_F(PageTextTest, a_page_forgets_the_pictures_of_the_page_before) {
    fields.figureState(0).sizeText = u"300, 200"_s;
    const auto shown = [&] {
        show(preview(), Medium::Screen);
        return document.resource(QTextDocument::ImageResource, QUrl(u"picture:0"_s))
            .value<QImage>();
    };
    EXPECT_EQ(shown().size(), QSize(300, 200));
    fields.figureState(0).sizeText = u"30, 20"_s;
    EXPECT_EQ(shown().size(), QSize(30, 20));
}

TEST_F(PageTextTest, a_picture_that_cannot_be_read_leaves_a_frame_of_its_size) {
    fields.figureState(0).sizeText = u"300, 200"_s;
    show(preview());
    const auto name = drawing().begin().fragment().charFormat().toImageFormat().name();
    const auto frame = document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    EXPECT_EQ(frame.size(), QSize(300, 200));
    EXPECT_EQ(frame.pixelColor(0, 0), QColor(Qt::gray));
    EXPECT_EQ(frame.pixelColor(150, 100).alpha(), 0);
}

TEST_F(PageTextTest, an_element_without_a_name_keeps_its_line) {
    show(preview());
    const QTextBlock clip = block(u"20:   Clip"_s);
    EXPECT_EQ(clip.next().text(), u"21:   Spring"_s);
    EXPECT_EQ(clip.next().next().text(), QString(QChar::Nbsp));
    EXPECT_EQ(clip.next().blockFormat().lineHeight(), 16);
}

TEST_F(PageTextTest, nothing_of_a_field_runs_or_styles_the_rest) {
    fields.txtOperation.setText(u"<script>document.write('x')</script><style>p{}</style>ends"_s);
    show(preview());
    EXPECT_FALSE(document.toPlainText().contains(u"document.write"));
    EXPECT_TRUE(document.toPlainText().contains(u"ends"));
}

TEST_F(PageTextTest, a_run_without_a_blank_has_a_place_to_break_after_each_2000_characters) {
    fields.txtOperation.setText(QString(5000, u'x') + u' ' + QString(1999, u'y'));
    show(preview());
    const QString text = document.toPlainText();
    EXPECT_EQ(text.count(QChar(0x200B)), 2);
    const QString run(LongestRun, u'x');
    EXPECT_TRUE(text.contains(run.sliced(1) + QChar(0x200B) + run + QChar(0x200B) + u"xx"_s));
}

TEST_F(PageTextTest, no_character_of_two_code_units_is_cut) {
    show(u"x"_s + QString::fromUcs4(U"\U0001F600").repeated(1500));
    const qsizetype at = document.toPlainText().indexOf(QChar(0x200B));
    EXPECT_EQ(at, 2001);
}

TEST_F(PageTextTest, a_field_of_a_million_characters_without_a_blank_is_laid_out_in_seconds) {
    fields.txtOperation.setText(QString(1000000, u'x'));
    QElapsedTimer timer;
    timer.start();
    show(preview());
    document.setTextWidth(624);
    EXPECT_GT(document.size().height(), 24 * 10000);
    EXPECT_LT(timer.elapsed(), 15000);
}

TEST_F(PageTextTest, a_figure_is_scaled_smoothly_for_a_screen_and_kept_whole_for_paper) {
    QImage half(400, 400, QImage::Format_RGB32); // every second column is black
    for (int x = 0; x < 400; ++x)
        for (int y = 0; y < 400; ++y)
            half.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    loader.pictures[u"/nowhere/fig1.png"_s] = half;
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    fields.figureState(0).sizeText = u"200, 200"_s;
    const auto shown = [&] {
        const auto name = drawing().begin().fragment().charFormat().toImageFormat().name();
        return document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    };
    show(preview(), Medium::Screen);
    EXPECT_EQ(shown().size(), QSize(200, 200));
    EXPECT_NEAR(shown().pixelColor(100, 100).lightness(), 128, 8);
    show(preview(), Medium::Paper);
    EXPECT_EQ(shown().size(), QSize(400, 400));
}

TEST_F(PageTextTest, the_index_begins_a_page_where_there_are_no_figures) {
    fields.cboFiguresNum.setText(u"0"_s);
    show(preview());
    EXPECT_TRUE(beginsPage(block(u"Index of Elements"_s)));
    EXPECT_EQ(block(u"Index of Elements"_s).blockFormat().alignment(), Qt::AlignHCenter);
}

TEST_F(PageTextTest, an_empty_field_leaves_no_paragraph_and_changes_none) {
    fields.txtElementDes(0).setText(QString());
    fields.txtMainElementNameDetail(0).setText(u"  "_s);
    show(preview());
    const QTextBlock heading = block(u"B."_s);
    EXPECT_EQ(heading.next().text(), QString(QChar::Nbsp));
    EXPECT_EQ(heading.next().next().text(), QString(QChar::Nbsp));
    EXPECT_EQ(heading.next().blockFormat().textIndent(), 48);
}
