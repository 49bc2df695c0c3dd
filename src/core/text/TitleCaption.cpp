#include "core/text/TitleCaption.h"

#include "base/Text.h"
#include "core/text/LineBreaks.h"

namespace quillford {

QString titleInventionCaption(const QString& fileNo, const QString& inventionTitle,
                              const TextMeasure& measure) {
    constexpr double Width = 530;
    const QString file = trimBlanks(fileNo).toString();
    const QString title = trimBlanks(inventionTitle).toString();
    if (file.isEmpty() && title.isEmpty())
        return {};
    const bool both = !file.isEmpty() && !title.isEmpty();
    QString line =
        fitCaptionToWidth(both ? file + u':' + title : file + title, Width, false, measure);
    // The colons are widened after the cut, so that the caption may come out a little wider.
    if (both)
        line.replace(u':', QStringLiteral(": "));
    return u'(' + line + u')';
}

} // namespace quillford
