#include "help/HelpPage.h"
#include "support/PrintQt.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

#include <gtest/gtest.h>

namespace quillford {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A pane of the help's size. Its vertical bar always stands, so that the width of the text is the
/// least that a page can meet.
class HelpPagesOnScreen : public testing::Test {
protected:
    HelpPagesOnScreen() {
        pane.setFixedSize(240, 240);
        pane.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        pane.show();
    }

    void load(const HelpPage& page) {
        pane.setSource(QUrl::fromLocalFile(helpFolder() + u'/' + page.name));
        QCoreApplication::processEvents();
    }

    QTextBrowser pane;
};

TEST_F(HelpPagesOnScreen, every_page_fits_the_width_of_the_pane) {
    for (const HelpPage& page : helpPages()) {
        load(page);
        EXPECT_EQ(pane.horizontalScrollBar()->maximum(), 0) << qPrintable(page.name);
    }
}

TEST_F(HelpPagesOnScreen, every_page_shows_its_title_and_all_of_its_text) {
    for (const HelpPage& page : helpPages()) {
        load(page);
        EXPECT_EQ(pane.documentTitle(), page.title);
        QString shown = pane.toPlainText();
        shown.remove(QChar::ObjectReplacementCharacter);
        EXPECT_EQ(joinedText(shown), page.text) << qPrintable(page.name);
    }
}

// The pane passes over a style sheet that it cannot find or whose type is missing.
TEST_F(HelpPagesOnScreen, every_page_wears_the_shared_style) {
    for (const HelpPage& page : helpPages()) {
        load(page);
        const QTextBlock heading = pane.document()->begin();
        EXPECT_EQ(heading.next().charFormat().font().pixelSize(), 12) << qPrintable(page.name);
        EXPECT_EQ(heading.charFormat().foreground().color(), QColor(0x32, 0x69, 0xc4))
            << qPrintable(page.name);
    }
}

TEST_F(HelpPagesOnScreen, a_link_is_followed_to_its_page) {
    for (const HelpPage& page : helpPages())
        for (const QString& link : page.links) {
            load(page);
            pane.setSource(pane.source().resolved(QUrl(link)));
            EXPECT_FALSE(pane.toPlainText().isEmpty()) << qPrintable(page.name + u' ' + link);
        }
}

} // namespace
} // namespace quillford
