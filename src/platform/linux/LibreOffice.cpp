#include "platform/linux/LibreOffice.h"

#include "base/Error.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <utility>

namespace quillford {

namespace {

constexpr int CannotCreate = 429; // the runtime's number for a component that cannot be created

/// The file that LibreOffice keeps beside a document while it is open.
QString lockFile(const QString& document) {
    const QFileInfo file(document);
    return file.absoluteDir().filePath(QStringLiteral(".~lock.%1#").arg(file.fileName()));
}

} // namespace

WriterStart LibreOffice::usualStart(const QString& workFolder) {
    return {.programFolder = QStringLiteral(QUILLFORD_LIBREOFFICE "/program"),
            .workFolder = workFolder,
            .patience = std::chrono::minutes(1)};
}

LibreOffice::LibreOffice(QString module, WriterStart start)
    : module_(std::move(module)), start_(std::move(start)) {}

bool LibreOffice::isInstalled() const {
    const QDir programs(start_.programFolder);
    return QFileInfo(module_).isFile() &&
           QFileInfo(programs.filePath(QStringLiteral("soffice.bin"))).isExecutable() &&
           QFileInfo(programs.filePath(QStringLiteral("libmswordlo.so"))).isFile();
}

bool LibreOffice::isDocumentOpen(const QString& path) const {
    return QFileInfo::exists(lockFile(path));
}

/// The module stays loaded: LibreOffice's libraries keep threads of their own.
std::unique_ptr<WordApplication> LibreOffice::start() {
    if (!isInstalled())
        throw Error(CannotCreate, QStringLiteral("LibreOffice Writer is not installed"));
    QLibrary library(module_);
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const QFunctionPointer function = library.resolve(StartWriterName);
    if (!function)
        throw Error(CannotCreate, library.errorString(), module_);
    return std::unique_ptr<WordApplication>(reinterpret_cast<StartWriter*>(function)(start_));
}

} // namespace quillford
