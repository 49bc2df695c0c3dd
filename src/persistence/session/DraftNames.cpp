#include "persistence/session/DraftNames.h"

#include "core/settings/FileNames.h"

namespace quillford {

namespace {

const QString Extension = QStringLiteral("ivd");

QString pathOf(const QString& folder, const QString& name) {
    return name.isEmpty() ? name : folder + u'/' + name;
}

} // namespace

QString DraftNames::newDraftFileName(const QDate& today) {
    const QString folder = draftsFolder();
    if (!fields_.txtFileNo.isFilled())
        return pathOf(folder,
                      WorkFolders::nextFreeName(QStringLiteral("Draft - "), Extension, folder));
    const QString ending =
        QStringLiteral("] (") + today.toString(QStringLiteral("MM-dd-yyyy")) + QStringLiteral(").");
    return pathOf(folder, fileNameWith(QStringLiteral("Provisional Project ["),
                                       fields_.txtFileNo.text(), ending + Extension));
}

QString DraftNames::newShadowFileName() {
    const QString folder = draftsFolder();
    const QString prefix = QStringLiteral("Project -");
    if (!fields_.txtFileNo.isFilled())
        return pathOf(folder, folders_.nextFreeName(prefix, Extension));
    return pathOf(folder, fileNameWith(prefix + u' ', fields_.txtFileNo.text(), u'.' + Extension));
}

QString DraftNames::draftsFolder() {
    return folders_.getWorkDir() + QStringLiteral("/Drafts");
}

} // namespace quillford
