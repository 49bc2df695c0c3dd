#include "controls/HtmlView.h"

#include "support/FakePictureLoader.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class HtmlViewTest : public testing::Test {
protected:
    HtmlViewTest() {
        writeFile(start,
                  "<title>Inventors</title><p>Start. <a href=\"more.htm\">More</a> "
                  "<a href=\"more.htm#end\">End</a> <a href=\"https://host/x?a=1#b\">Away</a>");
        writeFile(more, "<p>More of it.</p><p><a name=\"end\">The end.</a></p>");
        view.resize(240, 200);
        view.show();
    }

    [[nodiscard]] QString place(const QString& name) const { return folder.filePath(name); }

    /// Clicks the link with this text.
    void clickLink(const QString& text) {
        const QTextCursor found = view.document()->find(text);
        ASSERT_FALSE(found.isNull()) << qPrintable(text);
        QTextCursor inside(found);
        inside.setPosition(found.selectionStart() + 1);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cursorRect(inside).center());
    }

    QTemporaryDir folder;
    QString start = place(u"help/Section 2/index.htm"_s);
    QString more = place(u"help/Section 2/more.htm"_s);
    HtmlView view;
    QSignalSpy loaded{&view, &HtmlView::pageLoaded};
    QSignalSpy leaves{&view, &HtmlView::linkLeaves};
    FakePictureLoader pictures;
};

} // namespace

TEST_F(HtmlViewTest, shows_a_file_and_tells_its_address) {
    view.setSource(start);
    EXPECT_TRUE(view.toPlainText().startsWith(u"Start."));
    EXPECT_EQ(view.address(), start);
    ASSERT_EQ(loaded.count(), 1);
    EXPECT_EQ(loaded.last().at(0).toString(), start);
}

TEST_F(HtmlViewTest, a_link_leads_to_the_next_page_and_back_returns) {
    view.setSource(start);
    clickLink(u"More"_s);
    EXPECT_EQ(view.toPlainText(), u"More of it.\nThe end."_s);
    EXPECT_EQ(view.address(), more);
    EXPECT_EQ(loaded.last().at(0).toString(), more);
    view.back();
    EXPECT_TRUE(view.toPlainText().startsWith(u"Start."));
    EXPECT_EQ(view.address(), start);
    EXPECT_EQ(loaded.count(), 3);
    EXPECT_EQ(loaded.last().at(0).toString(), start);
}

TEST_F(HtmlViewTest, the_first_page_has_none_before_it) {
    view.setSource(start);
    view.back();
    EXPECT_EQ(view.address(), start);
}

TEST_F(HtmlViewTest, another_start_page_is_shown_straight_from_a_second_page) {
    const QString next = place(u"help/Section 3/index.htm"_s);
    writeFile(next, "<p>Next section");
    view.setSource(start);
    clickLink(u"More"_s);
    view.setSource(next);
    EXPECT_EQ(view.address(), next);
    EXPECT_EQ(view.toPlainText(), u"Next section"_s);
}

TEST_F(HtmlViewTest, a_link_to_a_place_in_a_page_keeps_the_place_in_its_address) {
    view.setSource(start);
    clickLink(u"End"_s);
    EXPECT_EQ(view.address(), more + u"#end"_s);
    view.setSource(more + u"#end"_s);
    EXPECT_EQ(view.address(), more + u"#end"_s);
}

TEST_F(HtmlViewTest, a_link_out_of_the_program_is_told_and_the_page_stays) {
    view.setSource(start);
    clickLink(u"Away"_s);
    ASSERT_EQ(leaves.count(), 1);
    EXPECT_EQ(leaves.last().at(0).toString(), u"https://host/x?a=1#b"_s);
    EXPECT_EQ(view.address(), start);
    EXPECT_TRUE(view.toPlainText().startsWith(u"Start."));
}

TEST_F(HtmlViewTest, a_missing_file_is_named_on_a_plain_page) {
    const QString missing = place(u"help/<b>1</b>/index.htm"_s);
    view.setSource(missing);
    EXPECT_TRUE(view.toPlainText().contains(missing)) << qPrintable(view.toPlainText());
    EXPECT_EQ(view.address(), missing);
    EXPECT_EQ(loaded.count(), 1);
}

TEST_F(HtmlViewTest, a_file_s_name_is_no_address) {
    const QString odd = place(u"100%25 a#1/index.htm"_s);
    writeFile(odd, "<p>Odd name <a href=\"two.htm\">Two");
    writeFile(place(u"100%25 a#1/two.htm"_s), "<p>Second");
    view.setSource(odd);
    EXPECT_TRUE(view.toPlainText().startsWith(u"Odd name"));
    EXPECT_EQ(view.address(), odd);
    clickLink(u"Two"_s);
    EXPECT_EQ(view.toPlainText(), u"Second"_s);
}

TEST_F(HtmlViewTest, pages_are_in_utf_8) {
    writeFile(start, u"<p>Schräge – ½"_s.toUtf8());
    view.setSource(start);
    EXPECT_EQ(view.toPlainText(), u"Schräge – ½"_s);
}

TEST_F(HtmlViewTest, a_file_page_shows_the_pictures_beside_it) {
    QImage black(30, 20, QImage::Format_RGB32);
    black.fill(Qt::black);
    ASSERT_TRUE(black.save(place(u"help/Section 2/a.png"_s)));
    writeFile(start, "<img src=\"a.png\">");
    view.setSource(start);
    EXPECT_GE(view.document()->size().width(), 30);
    const QImage shot = view.grab().toImage();
    EXPECT_EQ(shot.pixelColor(15, 15), QColor(Qt::black));
}

TEST_F(HtmlViewTest, gives_the_page_for_printing) {
    view.setSource(start);
    const PrintJob job = view.printJob();
    EXPECT_TRUE(job.html.contains(u"href=\"more.htm\""));
    EXPECT_EQ(job.folder, place(u"help/Section 2"_s));
    EXPECT_EQ(job.title, u"Inventors"_s);
    view.showBlank();
    EXPECT_EQ(view.printJob().html, u""_s);
}

TEST_F(HtmlViewTest, a_blank_page_has_no_text_and_the_blank_address) {
    view.setSource(start);
    view.showBlank();
    EXPECT_EQ(view.toPlainText(), u""_s);
    EXPECT_EQ(view.address(), u"about:blank"_s);
    EXPECT_EQ(loaded.last().at(0).toString(), u"about:blank"_s);
    view.back();
    EXPECT_EQ(view.toPlainText(), u""_s);
}

TEST_F(HtmlViewTest, a_file_is_read_again_after_a_blank_page) {
    view.setSource(start);
    view.showBlank();
    view.setSource(start);
    EXPECT_TRUE(view.toPlainText().startsWith(u"Start."));
    view.back();
    EXPECT_TRUE(view.toPlainText().startsWith(u"Start."));
}

TEST_F(HtmlViewTest, a_locked_page_gives_nothing_away) {
    view.lock();
    view.showHtml(u"<p>secret words, and <a href=\"file:///etc/passwd\">a link</a></p>"_s,
                  pictures);
    QGuiApplication::clipboard()->setText(u"before"_s);
    QWidget* page = view.viewport();
    QTest::mousePress(page, Qt::LeftButton, {}, QPoint(15, 20));
    QTest::mouseMove(page, QPoint(120, 22));
    QTest::mouseRelease(page, Qt::LeftButton, {}, QPoint(120, 22));
    QTest::mouseDClick(page, Qt::LeftButton, {}, QPoint(30, 20));
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(view.textCursor().hasSelection());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before"_s);
    clickLink(u"a link"_s);
    EXPECT_EQ(view.address(), u"about:blank"_s);
    EXPECT_EQ(leaves.count(), 0);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(30, 20),
                           page->mapToGlobal(QPoint(30, 20)));
    QCoreApplication::sendEvent(page, &menu);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(HtmlViewTest, a_locked_page_can_be_scrolled) {
    view.lock();
    view.showHtml(u"<p>line</p>"_s.repeated(100), pictures);
    const QPoint place(50, 50);
    QWheelEvent wheel(place, view.viewport()->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
    const int byWheel = view.verticalScrollBar()->value();
    EXPECT_GT(byWheel, 0);
    QTest::keyClick(&view, Qt::Key_PageDown);
    EXPECT_GT(view.verticalScrollBar()->value(), byWheel);
}

TEST_F(HtmlViewTest, a_composed_page_begins_at_its_top) {
    view.showHtml(u"<p>line</p>"_s.repeated(100), pictures);
    view.verticalScrollBar()->setValue(300);
    view.showHtml(u"<p>other</p>"_s.repeated(100), pictures);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(HtmlViewTest, a_composed_page_reads_no_file_of_its_own) {
    QImage black(60, 60, QImage::Format_RGB32);
    black.fill(Qt::black);
    ASSERT_TRUE(black.save(place(u"a.png"_s)));
    view.showHtml(u"<img src=\"%1\" width=60 height=60>"_s.arg(place(u"a.png"_s)), pictures);
    EXPECT_NE(view.grab().toImage().pixelColor(40, 40), QColor(Qt::black));
    view.showHtml(u"<img src=\"file://%1\" width=60 height=60>"_s.arg(place(u"a.png"_s)), pictures);
    EXPECT_NE(view.grab().toImage().pixelColor(40, 40), QColor(Qt::black));
}

TEST_F(HtmlViewTest, a_composed_page_shows_its_figures_in_their_sizes) {
    QImage black(10, 10, QImage::Format_RGB32);
    black.fill(Qt::black);
    pictures.pictures[u"/x#1 50%.png"_s] = black;
    view.resize(400, 300);
    view.showHtml(
        u"<head><title>Project - 1</title></head><div class=\"drawings\"><p class=\"drawing\"> "
        "<img src=\"file:////x#1 50%.png\" width =\"120\" height =\"80\"> </p>"_s,
        pictures);
    const QImage shot = view.grab().toImage();
    int wide = 0;
    int high = 0;
    for (int x = 0; x < shot.width(); ++x)
        wide += shot.pixelColor(x, 40) == QColor(Qt::black) ? 1 : 0;
    for (int y = 0; y < shot.height(); ++y)
        high += shot.pixelColor(200, y) == QColor(Qt::black) ? 1 : 0;
    EXPECT_EQ(wide, 120);
    EXPECT_EQ(high, 80);
}

TEST_F(HtmlViewTest, a_figure_is_loaded_when_it_comes_into_sight) {
    view.showHtml(u"<head><title>Project - 1</title></head>"_s + u"<p>line</p>"_s.repeated(100) +
                      u"<div class=\"drawings\"><p class=\"drawing\"><img src=\"file:///a.png\" "
                      u"width =\"120\" "
                      "height =\"80\"> </p>"_s,
                  pictures);
    EXPECT_GT(view.document()->size().height(), 100 * 24);
    view.grab();
    EXPECT_EQ(pictures.asked, QStringList());
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    view.grab();
    view.grab();
    EXPECT_EQ(pictures.asked, QStringList{u"a.png"_s});
}

TEST_F(HtmlViewTest, every_line_of_a_composed_page_has_its_place) {
    const QString text = u"<p class=\"text\">"_s + u"words "_s.repeated(150) + u"</p>"_s;
    const QString drawing =
        u"<p class=\"drawing\"><img src=\"file:///x\" width =\"90\" height =\"90\"></p>"_s;
    const QString part = u"<div class=\"new-page\"><br></div><p class=\"section\">HEAD</p>"_s +
                         text + drawing + text;
    const QString element = u"<p class=\"element\">11: Leg</p>"_s;
    for (const int parts : {1, 2, 3, 5, 8, 13, 60}) {
        view.showHtml(u"<head><title>Project - 1</title></head>"_s + part.repeated(parts) +
                          element.repeated(10),
                      pictures);
        QCoreApplication::processEvents();
        double bottom = 0;
        for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
            const QRectF place = view.document()->documentLayout()->blockBoundingRect(block);
            EXPECT_GT(place.height(), 8) << parts << ' ' << block.blockNumber();
            EXPECT_GE(place.top(), bottom - 1) << parts << ' ' << block.blockNumber();
            bottom = place.bottom();
        }
        EXPECT_EQ(view.document()->blockCount(), 4 * parts + 10);
    }
}
