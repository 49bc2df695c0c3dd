#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The help pages as the tests see them: read from the folder in which the program finds them.
namespace quillford {

/// What one page holds.
struct HelpPage {
    QString name;         ///< the path below the help folder, such as "Section 1/index.htm"
    QString damage;       ///< why the page is not well formed, with the line; empty if it is
    QString title;        ///< the text of the title element
    QStringList headings; ///< the texts of the main headings
    QStringList links;    ///< what the page's links lead to, as written
    QStringList parts;    ///< the pictures and style sheets that it shows itself with, as written
    QString text;         ///< all text of the body, each run of white space as one blank

    /// The folder of the page, "Section 1".
    [[nodiscard]] QString section() const;

    /// Whether the help pane takes the page for a start page; it looks at the address alone.
    [[nodiscard]] bool isStartPage() const;

    /// The path below the help folder that a link or part of this page leads to. It begins with
    /// "../" where that lies outside.
    [[nodiscard]] QString target(const QString& address) const;
};

/// The folder of the help pages.
[[nodiscard]] QString helpFolder();

/// All pages below the help folder.
[[nodiscard]] QList<HelpPage> helpPages();

/// The text with each run of white space as one blank.
[[nodiscard]] QString joinedText(const QString& text);

} // namespace quillford
