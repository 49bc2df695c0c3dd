#include "controls/HtmlView.h"
#include "core/rules/FigureSize.h"
#include "draft/compose/HtmlComposition.h"
#include "draft/pages/PdfFile.h"
#include "support/Chromium.h"
#include "support/FakePictureLoader.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTextBlock>

#include <iostream>
#include <memory>

using namespace quillford;

namespace {

/// What an inventor types or pastes into a field comes through three doors: the preview, the
/// exported page in a browser, and the paper.
class HtmlViewBadInputTest : public HtmlComposition {
protected:
    HtmlViewBadInputTest() {
        view.lock();
        view.resize(698, 385);
        view.show();
    }

    /// Composes the page and brings it through the preview and on paper, and tells how long each
    /// took.
    void showAndPrint(const char* what) {
        QElapsedTimer timer;
        timer.start();
        const QString page = preview();
        const qint64 composed = timer.restart();
        view.showHtml(page, loader);
        EXPECT_GT(view.document()->size().height(), 0);
        view.grab();
        const qint64 shown = timer.restart();
        pdf = pdfOf({page, {}, {}, {}, u"&bPage &p of &P&b"_s}, loader);
        EXPECT_TRUE(pdf.startsWith("%PDF"));
        std::cout << what << ": composed in " << composed << " ms, shown in " << shown
                  << " ms, printed in " << timer.elapsed() << " ms\n";
    }

    HtmlView view;
    FakePictureLoader loader;
    QByteArray pdf;
};

struct Typed {
    const char* what;
    QString text;
};

const QList<Typed>& typedTexts() {
    static const QList<Typed> texts{
        {"a script", u"a<script>document.write('it-ran')</script>b"_s},
        {"a picture with a handler", u"a <img src=x onerror=\"document.write('it-ran')\"> b"_s},
        {"a link to a style", u"a<link rel=stylesheet href=\"file:///etc/passwd\">b"_s},
        {"a style", u"a<style>p { color:red }</style>b"_s},
        {"an open tag", u"a<b>bold"_s},
        {"a tag cut off", u"a<b"_s},
        {"a value cut off", u"a<b class=\"x"_s},
        {"a comment", u"a<!-- hidden -->b"_s},
        {"an open comment", u"a<!-- hidden"_s},
        {"entities", u"a &lt;b&gt; &amp; &bogus; &#65; &#x41; x & y &copy; &"_s},
        {"signs", u"1 < 2 and 3 > 2, <3 or <"_s},
        {"closing tags", u"a</p></div></div></body></html>b"_s},
        {"a table", u"a<table><tr><td>b"_s},
        {"a frame", u"a<iframe src=\"file:///etc/passwd\"></iframe>b"_s},
        {"an object", u"a<object data=\"file:///etc/passwd\">b</object>c"_s},
        {"a title", u"a<title>b</title>c"_s},
        {"an instruction", u"a<?php b ?>c"_s},
    };
    return texts;
}

/// The words of a text, without what stands for pictures and for places to break a line.
QString words(QString text) {
    static const QRegularExpression between(u"[\\s\\x{FFFC}\\x{00A0}]+"_s);
    text.remove(QChar(0x200B));
    return text.split(between, Qt::SkipEmptyParts).join(u' ');
}

} // namespace

TEST_F(HtmlViewBadInputTest, the_preview_shows_and_swallows_what_a_browser_does) {
    if (!Chromium::isInstalled())
        GTEST_SKIP() << "chromium is not installed";
    const QTemporaryDir folder;
    Chromium chromium(folder.path(), 698, 385);
    for (const Typed& typed : typedTexts()) {
        for (Field* field : {&fields.txtPurpose, &fields.txtOperation}) {
            const QString before = field->text();
            field->setText(typed.text);
            exported();
            chromium.load(path(u"draft.htm"_s));
            view.showHtml(preview(), loader);
            EXPECT_EQ(words(view.toPlainText()), words(chromium.text())) << typed.what;
            field->setText(before);
        }
    }
}

TEST_F(HtmlViewBadInputTest, nothing_runs) {
    for (const Typed& typed : typedTexts()) {
        fillLongFields(typed.text);
        showAndPrint(typed.what);
        EXPECT_FALSE(view.toPlainText().contains(u"it-ran")) << typed.what;
    }
}

TEST_F(HtmlViewBadInputTest, nothing_is_fetched_and_no_file_but_a_figure_s_is_read) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString host = u"http://127.0.0.1:%1/"_s.arg(server.serverPort());
    const QString typed =
        u"<img src=\"%1a.png\"><link rel=stylesheet href=\"%1a.css\"><style>@import url(%1b.css);"
        "p { background-image:url(%1c.png) }</style><table background=\"%1d.png\"><tr><td>x</table>"
        "<script src=\"%1a.js\"></script><iframe src=\"%1a.htm\"></iframe>"
        "<img src=\"file:////etc/passwd\" width =\"9\" height =\"9\">"_s.arg(host);
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    fields.figureState(0).sizeText = u"300, 200"_s;
    fields.txtAttachFig(0).setText(QString());
    for (Field* field :
         {&fields.txtPurpose, &fields.txtOperation, &fields.txtElementName(0), &fields.txtFileNo})
        field->setText(typed);
    showAndPrint("addresses");
    for (const QString& asked : loader.asked)
        EXPECT_EQ(asked, u"/nowhere/fig1.png"_s);
    EXPECT_FALSE(server.waitForNewConnection(200)) << "by the preview or on paper";
    if (!Chromium::isInstalled())
        GTEST_SKIP() << "chromium is not installed: the exported page was not opened";
    const QTemporaryDir folder;
    Chromium chromium(folder.path(), 698, 385);
    exported();
    chromium.load(path(u"draft.htm"_s));
    EXPECT_FALSE(server.waitForNewConnection(200)) << "by the exported page";
}

TEST_F(HtmlViewBadInputTest, a_megabyte_of_anything_comes_through) {
    const QList<Typed> texts{
        {"a megabyte without a blank", QString(1000000, u'x')},
        {"a megabyte of <", QString(1000000, u'<')},
        {"a megabyte of blanks", QString(1000000, u' ')},
        {"a megabyte of tags cut off", u"<p "_s.repeated(333333)},
        {"a megabyte of comments", u"<!--"_s.repeated(250000)},
        {"a megabyte of notices", u"<div class=\"notice\" "_s.repeated(50000)},
        {"a megabyte of pictures", u"<img src=\"file:///"_s.repeated(55000)},
    };
    for (const Typed& typed : texts) {
        fields.txtOperation.setText(typed.text);
        showAndPrint(typed.what);
    }
}

TEST_F(HtmlViewBadInputTest, no_figure_makes_the_preview_or_the_paper_higher_than_a_page) {
    constexpr double PageHeight = 9 * 96;
    const auto pagesOf = [](const QByteArray& paper) { return paper.count("/Type /Page\n"); };
    fields.txtAttachFig(0).setText(QString());
    fields.figureState(0).workingCopy = u"/nowhere/fig1.png"_s;
    showAndPrint("no figure");
    const auto fewest = pagesOf(pdf);
    for (const QSize size : {QSize(1, 20000), QSize(20000, 1), QSize(5000, 5000), QSize(659, 810),
                             QSize(660, 20000), QSize()}) {
        for (const bool isMeasured : {true, false}) {
            QImage picture(size.isValid() ? size : QSize(), QImage::Format_RGB32);
            picture.fill(Qt::black);
            loader.pictures[u"/nowhere/fig1.png"_s] = picture;
            fields.figureState(0).sizeText =
                isMeasured && size.isValid() ? figureSizeText(size) : QString();
            showAndPrint("a figure");
            EXPECT_EQ(pagesOf(pdf), fewest) << size.width() << 'x' << size.height();
            for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
                EXPECT_LE(view.document()->documentLayout()->blockBoundingRect(block).height(),
                          PageHeight)
                    << size.width() << 'x' << size.height() << ' ' << block.blockNumber();
        }
    }
}
