#include "draft/compose/TemplateFile.h"

#include "base/Error.h"
#include "base/Files.h"

#include <QFile>
#include <QRandomGenerator>

namespace quillford {

QString writeTemplateFile(const QString& templateName, Folders& folders, const QString& ending) {
    constexpr int Names = 10000;
    const int number = QRandomGenerator::global()->bounded(Names);
    const QString path =
        folders.temporaryFolder() + QStringLiteral("/Temp%1.%2").arg(number).arg(ending);
    const QByteArray content =
        contentOfFile(QStringLiteral(":/templates/%1.%2").arg(templateName, ending));
    QFile file;
    openPlainFile(file, path);
    try {
        if (!file.resize(0))
            raiseFileError(file, path);
        writeAll(file, content, path);
    } catch (const Error&) {
        QFile::remove(path); // half a template serves nobody
        throw;
    }
    return path;
}

bool loadTemplateFile(HTMLTemplate& page, const QString& name, const QString& path,
                      UserPrompts& prompts) {
    if (page.Load(name, path))
        return true;
    prompts.showMessage(UserPrompts::Icon::Critical, QStringLiteral("Error"),
                        QStringLiteral("Can not open the html template"));
    return false;
}

} // namespace quillford
