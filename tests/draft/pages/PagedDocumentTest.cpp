#include "draft/pages/PagedDocument.h"

#include "base/Error.h"
#include "draft/compose/HtmlComposition.h"
#include "support/ErrorOf.h"
#include "support/FakePictureLoader.h"

#include <QBuffer>
#include <QPdfWriter>

using namespace quillford;

namespace {

class PagedDocumentTest : public HtmlComposition {
protected:
    PagedDocument pages(const QString& html) {
        return PagedDocument({html, {}, u"a print"_s, {}, u"&bPage &p of &P&b"_s}, loader);
    }

    FakePictureLoader loader;
};

/// A page drawn at a multiple of 96 dots to the inch.
QImage drawn(const PagedDocument& document, int page, int scale = 1) {
    QImage paper(816 * scale, 1056 * scale, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(scale, scale);
    document.drawPage(painter, page);
    return paper;
}

/// The smallest rectangle around everything within `part` that is not white.
QRect inked(const QImage& paper, const QRect& part) {
    QRect ink;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (paper.pixelColor(x, y).lightness() < 128)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

constexpr QRect TextArea(96, 96, 624, 864);
constexpr QRect Foot(0, 960, 816, 96);

} // namespace

TEST_F(PagedDocumentTest, the_final_draft_has_the_pages_that_its_text_needs) {
    // One for each of the seven page breaks, one before them, and the background fills two.
    EXPECT_EQ(pages(preview()).pageCount(), 9);
}

TEST_F(PagedDocumentTest, without_figures_the_index_stands_on_a_page_of_its_own) {
    setCount(fields, FieldGroup::Figures, 0);
    EXPECT_EQ(pages(preview()).pageCount(), 9);
}

TEST_F(PagedDocumentTest, an_empty_page_is_one_page) {
    PagedDocument document = pages(u""_s);
    EXPECT_EQ(document.pageCount(), 1);
    EXPECT_TRUE(inked(drawn(document, 1), TextArea).isNull());
}

TEST_F(PagedDocumentTest, text_stands_between_margins_of_an_inch) {
    const PagedDocument document = pages(preview());
    for (int page = 1; page <= document.pageCount(); ++page) {
        const QImage paper = drawn(document, page);
        const QRect ink = inked(paper, QRect(0, 0, 816, 960));
        EXPECT_TRUE(TextArea.adjusted(-1, -1, 1, 1).contains(ink)) << page;
    }
}

TEST_F(PagedDocumentTest, the_footer_stands_centred_below_the_text_on_every_page) {
    const PagedDocument document = pages(preview());
    for (int page = 1; page <= document.pageCount(); ++page) {
        const QRect foot = inked(drawn(document, page), Foot);
        EXPECT_NEAR(foot.center().x(), 816 / 2, 1.5) << page;
        EXPECT_GT(foot.height(), 8) << page;
    }
}

TEST_F(PagedDocumentTest, a_page_looks_the_same_at_any_resolution) {
    const PagedDocument document = pages(preview());
    const QRect once = inked(drawn(document, 2), TextArea);
    const QRect thrice = inked(drawn(document, 2, 3), QRect(0, 0, 2448, 2800));
    EXPECT_NEAR(thrice.left() / 3.0, once.left(), 1.5);
    EXPECT_NEAR(thrice.right() / 3.0, once.right(), 1.5);
    EXPECT_NEAR(thrice.bottom() / 3.0, once.bottom(), 1.5);
}

TEST_F(PagedDocumentTest, a_drawing_of_660_pixels_reaches_into_both_margins) {
    QImage black(10, 10, QImage::Format_RGB32);
    black.fill(Qt::black);
    loader.pictures[u"/nowhere/fig1.png"_s] = black;
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    fields.figureState(0).sizeText = u"660, 500"_s;
    const QRect figure = inked(drawn(pages(preview()), 8), QRect(0, 120, 816, 500));
    EXPECT_NEAR(figure.left(), 78, 1);
    EXPECT_NEAR(figure.width(), 660, 1);
}

TEST_F(PagedDocumentTest, a_drawing_of_810_pixels_stands_with_its_heading_and_its_number) {
    fields.figureState(0).sizeText = u"600, 810"_s;
    EXPECT_EQ(pages(preview()).pageCount(), 9);
}

TEST_F(PagedDocumentTest, each_drawing_stands_on_one_page_with_its_number) {
    setCount(fields, FieldGroup::Figures, 3);
    for (int i = 0; i < 3; ++i)
        fields.figureState(i).sizeText = u"400, 361"_s;
    EXPECT_EQ(pages(preview()).pageCount(), 9 + 1) << "two on the first page, one on the next";
}

TEST_F(PagedDocumentTest, prints_the_pages_that_it_is_told) {
    QByteArray pdf;
    QBuffer buffer(&pdf);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    QPdfWriter writer(&buffer);
    pages(preview()).printOn(writer, {2, 8, 2});
    EXPECT_TRUE(pdf.contains("/Count 3"));
}

TEST_F(PagedDocumentTest, raises_an_error_when_the_device_takes_nothing) {
    QPdfWriter writer(path(u"missing/print.pdf"_s));
    PagedDocument document = pages(preview());
    const Error error = errorOf([&] { document.printOn(writer, {1}); });
    EXPECT_EQ(error.description(), u"The pages cannot be printed."_s);
}

TEST_F(PagedDocumentTest, a_page_of_files_shows_its_local_pictures) {
    QImage black(40, 40, QImage::Format_RGB32);
    black.fill(Qt::black);
    ASSERT_TRUE(QDir().mkpath(path(u"help"_s)));
    ASSERT_TRUE(black.save(path(u"help/in.png"_s)) && black.save(path(u"out.png"_s)));
    const auto inkOf = [&](const QString& name) {
        const PagedDocument page(
            {u"<img src=\"%1\" width=40>"_s.arg(name), path(u"help"_s), {}, {}, {}}, loader);
        const QRect ink = inked(drawn(page, 1), QRect(100, 100, 30, 30));
        return ink.width() * ink.height();
    };
    EXPECT_EQ(inkOf(u"in.png"_s), 900);
    EXPECT_EQ(inkOf(u"../out.png"_s), 900);
    EXPECT_EQ(inkOf(u"gone.png"_s), 0);
    EXPECT_EQ(inkOf(u"file://"_s + path(u"help/in.png"_s)), 900);
    EXPECT_EQ(inkOf(u"http://host/in.png"_s), 0);
}

TEST_F(PagedDocumentTest, a_composed_page_reads_no_file_of_its_own) {
    QImage black(40, 40, QImage::Format_RGB32);
    black.fill(Qt::black);
    ASSERT_TRUE(black.save(path(u"a.png"_s)));
    for (const QString& name : {path(u"a.png"_s), u"file://"_s + path(u"a.png"_s)}) {
        const PagedDocument page = pages(u"<img src=\"%1\" width=40 height=40>"_s.arg(name));
        EXPECT_TRUE(inked(drawn(page, 1), QRect(100, 100, 30, 30)).isNull());
    }
}

TEST_F(PagedDocumentTest, type_in_pixels_has_its_size_on_paper) {
    const PagedDocument page = pages(u"<p style=\"font-size:96px; margin:0\">H</p>"_s);
    EXPECT_NEAR(inked(drawn(page, 1), TextArea).height(), 96 * 0.66, 4);
}
