#include "help/HelpPage.h"
#include "support/PrintQt.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <gtest/gtest.h>

namespace quillford {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int Sections = 10;

QString startPage(int section) {
    return u"Section %1/index.htm"_s.arg(section);
}

/// The names of all files below a folder.
QSet<QString> filesBelow(const QString& folder) {
    QSet<QString> names;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names += QDir(folder).relativeFilePath(files.next());
    return names;
}

/// The pages of a section that a reader finds from its start page without leaving the section.
QSet<QString> pagesFoundFrom(const QString& start, const QHash<QString, HelpPage>& pages) {
    QSet<QString> found{start};
    QStringList ahead{start};
    while (!ahead.isEmpty()) {
        const HelpPage page = pages.value(ahead.takeFirst());
        for (const QString& link : page.links) {
            const QString target = page.target(link);
            if (pages.value(target).section() == page.section() && !found.contains(target)) {
                found += target;
                ahead += target;
            }
        }
    }
    return found;
}

TEST(HelpPages, the_programs_folder_holds_every_file_of_the_help_and_no_other) {
    const QSet<QString> written =
        filesBelow(QStringLiteral(QUILLFORD_SOURCE_TREE "/resources/help"));
    EXPECT_FALSE(written.isEmpty());
    EXPECT_EQ(filesBelow(helpFolder()), written);
}

TEST(HelpPages, every_section_has_a_start_page) {
    for (int section = 1; section <= Sections; ++section)
        EXPECT_TRUE(QFileInfo::exists(helpFolder() + u'/' + startPage(section))) << section;
}

TEST(HelpPages, every_page_is_well_formed) {
    for (const HelpPage& page : helpPages())
        EXPECT_EQ(page.damage, QString()) << qPrintable(page.name);
}

TEST(HelpPages, every_page_has_a_title_and_one_main_heading) {
    for (const HelpPage& page : helpPages()) {
        EXPECT_FALSE(page.title.isEmpty()) << qPrintable(page.name);
        EXPECT_EQ(page.headings.size(), 1) << qPrintable(page.name);
        EXPECT_FALSE(page.headings.join(QString()).isEmpty()) << qPrintable(page.name);
    }
}

TEST(HelpPages, nothing_needs_a_network) {
    for (const HelpPage& page : helpPages())
        for (const QString& address : page.links + page.parts)
            EXPECT_TRUE(QUrl(address).isRelative() && !address.startsWith(u'/'))
                << qPrintable(page.name + u' ' + address);
    QFile style(helpFolder() + u"/help.css"_s);
    ASSERT_TRUE(style.open(QIODevice::ReadOnly));
    const QByteArray rules = style.readAll();
    EXPECT_FALSE(rules.contains("url(") || rules.contains("@import"));
}

TEST(HelpPages, every_link_leads_to_another_page_of_the_help) {
    const QSet<QString> files = filesBelow(helpFolder());
    for (const HelpPage& page : helpPages())
        for (const QString& link : page.links) {
            EXPECT_TRUE(files.contains(page.target(link))) << qPrintable(page.name + u' ' + link);
            EXPECT_TRUE(link.endsWith(u".htm")) << qPrintable(page.name + u' ' + link);
            EXPECT_NE(page.target(link), page.name);
        }
}

TEST(HelpPages, every_picture_and_style_sheet_is_there) {
    const QSet<QString> files = filesBelow(helpFolder());
    for (const HelpPage& page : helpPages()) {
        EXPECT_TRUE(page.parts.contains(u"../help.css"_s)) << qPrintable(page.name);
        for (const QString& part : page.parts)
            EXPECT_TRUE(files.contains(page.target(part))) << qPrintable(page.name + u' ' + part);
    }
}

TEST(HelpPages, every_start_page_leads_to_a_further_page_of_its_section) {
    for (const HelpPage& page : helpPages()) {
        if (!page.isStartPage())
            continue;
        QSet<QString> sections;
        for (const QString& link : page.links)
            sections += page.target(link).section(u'/', 0, -2);
        EXPECT_TRUE(sections.contains(page.section())) << qPrintable(page.name);
    }
}

TEST(HelpPages, every_page_is_found_from_the_start_page_of_its_section) {
    QHash<QString, HelpPage> pages;
    for (const HelpPage& page : helpPages())
        pages.insert(page.name, page);
    QSet<QString> found;
    for (int section = 1; section <= Sections; ++section)
        found += pagesFoundFrom(startPage(section), pages);
    const QStringList names = pages.keys();
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()), found);
}

TEST(HelpPages, only_start_pages_have_the_name_of_a_start_page) {
    QSet<QString> expected;
    for (int section = 1; section <= Sections; ++section)
        expected += startPage(section);
    QSet<QString> found;
    for (const HelpPage& page : helpPages())
        if (page.isStartPage())
            found += page.name;
    EXPECT_EQ(found, expected);
}

// On a start page the pane offers no way back, so that a link to one would strand the reader.
TEST(HelpPages, no_link_leads_to_a_start_page) {
    for (const HelpPage& page : helpPages())
        for (const QString& link : page.links)
            EXPECT_FALSE(page.target(link).contains(u"index.htm"))
                << qPrintable(page.name + u' ' + link);
}

} // namespace
} // namespace quillford
