#include "BenchDraft.h"

#include "base/Error.h"
#include "core/rules/FigureSize.h"
#include "draft/compose/HtmlComposer.h"
#include "persistence/project/ProjectReader.h"
#include "platform/linux/QtPictureReader.h"

namespace quillford {

BenchDraft::BenchDraft(const QString& path) {
    if (!folder_.isValid())
        throw Error(0, folder_.errorString(), folder_.path());
    folders_.temporary = folder_.path();
    readProject(path, project_);
    QtPictureReader pictures;
    measureFigures(project_.fields, pictures);
}

void BenchDraft::exportTo(const QString& path) {
    QString written; // an empty text asks for a file
    compose(path, written);
}

QString BenchDraft::preview() {
    QString html = QStringLiteral("preview");
    compose({}, html);
    return html;
}

void BenchDraft::compose(const QString& path, QString& html) {
    HtmlComposer composer(project_.fields, folders_, prompts_);
    if (!composer.ExportToHTML(path, html))
        throw composer.failure().value_or(Error(0, QStringLiteral("nothing was composed"), path));
}

} // namespace quillford
