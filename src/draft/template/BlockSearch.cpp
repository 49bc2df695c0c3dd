#include "draft/template/BlockSearch.h"

#include "base/Error.h"

#include <QRegularExpression>

#include <algorithm>

namespace quillford {

namespace {

const QString BeginMark = QStringLiteral("&lt;!--BEGIN %1--&gt;");
const QString EndMark = QStringLiteral("&lt;!--END %1--&gt;");

/// The runtime's number for a broken expression.
constexpr int BrokenExpression = 5017;

/// Names of letters, digits and blanks, as nearly all are, stand for themselves in an expression.
bool meansItself(const QString& name) {
    return std::all_of(name.begin(), name.end(), [](QChar c) {
        return c.unicode() < 128 && (c.isLetterOrNumber() || c == u' ');
    });
}

/// What the expression would find, without the time that making one takes. From the first begin to
/// the last end is all there can be: behind the last end nothing ends.
std::vector<FoundBlock> findByText(const QString& text, const QString& name) {
    const QString begin = BeginMark.arg(name);
    const QString end = EndMark.arg(name);
    const qsizetype from = text.indexOf(begin, 0, Qt::CaseInsensitive);
    if (from < 0)
        return {};
    const qsizetype bodyFrom = from + begin.size();
    qsizetype bodyEnd = -1;
    for (qsizetype at = text.indexOf(end, bodyFrom, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(end, at + end.size(), Qt::CaseInsensitive))
        bodyEnd = at;
    if (bodyEnd < 0)
        return {};
    return {{text.sliced(from, bodyEnd + end.size() - from),
             text.sliced(bodyFrom, bodyEnd - bodyFrom)}};
}

std::vector<FoundBlock> findByExpression(const QString& text, const QString& name,
                                         const QString& errorSource) {
    const QRegularExpression pattern(BeginMark.arg(name) + QStringLiteral("([\\s\\S.]*)") +
                                         EndMark.arg(name),
                                     QRegularExpression::CaseInsensitiveOption);
    if (!pattern.isValid())
        throw Error(BrokenExpression, pattern.errorString(), errorSource);
    std::vector<FoundBlock> found;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(text))
        found.push_back({match.captured(0), match.captured(1)});
    return found;
}

} // namespace

std::vector<FoundBlock> findBlocks(const QString& text, const QString& name,
                                   const QString& errorSource) {
    return meansItself(name) ? findByText(text, name) : findByExpression(text, name, errorSource);
}

} // namespace quillford
