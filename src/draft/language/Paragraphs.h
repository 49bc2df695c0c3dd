#pragma once

#include <QString>
#include <QStringView>

/// The paragraphs that the lines of a long field become. A line ends at a carriage return and line
/// feed pair; either of them alone is a character like any other. Nothing here can fail, and time
/// grows with the length of the text.
namespace quillford {

/// What the draft is composed for: a page, where a break is "<br>" and an indent twelve "&nbsp;",
/// or the word processor, where a break is a carriage return and line feed and an indent a tab.
enum class Route { Html, Word };

/// What becomes of the lines of a field: paragraphs of the draft, each closed with a period and
/// parted by breaks, the later ones indented; or one line of text, as a title needs it.
enum class Lines { AsParagraphs, RunTogether };

/// How a paragraph ends.
struct ParagraphEnd {
    bool hasPeriod; ///< its text brings the closing period along; otherwise it is given one
    bool isLast;    ///< nothing follows; otherwise a break does
};

/// Adds one paragraph to `textSoFar`, which stays the caller's. It is indented unless it is the
/// first thing there: the indent of a field's first paragraph is the template's affair.
void setIndent(QStringView paragraph, QString& textSoFar, Route route, ParagraphEnd end);

/// The field as it stands in the draft. Each line loses its outer blanks and begins with an upper
/// case letter. A blank line is one break, and none at the very end of the field. A result that
/// holds a period anywhere has been through `capitalizeSentences`, and so ends in a blank.
[[nodiscard]] QString formatParagraphs(QStringView field, Route route, Lines lines);

} // namespace quillford
