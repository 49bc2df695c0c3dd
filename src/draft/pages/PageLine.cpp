#include "draft/pages/PageLine.h"

namespace quillford {

PageLine pageLine(QStringView text, int page, int pages) {
    PageLine line;
    QString* part = &line.left;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'&' || at + 1 == text.size()) {
            *part += text[at];
            continue;
        }
        const QChar code = text[++at];
        if (code == u'p')
            *part += QString::number(page);
        else if (code == u'P')
            *part += QString::number(pages);
        else if (code == u'&')
            *part += u'&';
        else if (code == u'b')
            part = part == &line.left ? &line.centre : &line.right;
    }
    return line;
}

} // namespace quillford
