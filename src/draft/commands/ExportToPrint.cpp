#include "draft/commands/ExportToPrint.h"

#include "core/settings/PathParts.h"
#include "draft/template/HTMLTemplate.h"

#include <QFile>

namespace quillford {

QString ExportToPrint(const QString& path) {
    const QString block = QStringLiteral("HTMLPTEMPLATE");
    const QString result = QStringLiteral("out");
    HTMLTemplate page;
    page.Load(block, path);
    page.Parse(result, block, QStringLiteral("False"));
    QString text = page.p(result);

    const qsizetype nameBegin = getFolderOf(path).size();
    const qsizetype point = path.indexOf(u'.', nameBegin);
    const QString pathWithoutEnding = point < 0 ? path : path.first(point);
    const QString name = pathWithoutEnding.sliced(nameBegin);
    if (!name.isEmpty())
        text.replace(name, pathWithoutEnding);
    QFile::remove(path);
    return text;
}

} // namespace quillford
