#include "platform/linux/LibreOffice.h"

#include "base/Error.h"
#include "platform/linux/WriterStart.h"

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

QString LibreOffice::usualPrograms() {
    return QStringLiteral(QUILLFORD_LIBREOFFICE "/program");
}

LibreOffice::LibreOffice(Folders& folders, QString programs, std::chrono::milliseconds patience)
    : folders_(folders), programs_(std::move(programs)), patience_(patience) {}

QString LibreOffice::module() const {
    return folders_.programFolder() + QStringLiteral("/quillford_writer.so");
}

bool LibreOffice::isInstalled() const {
    const QDir programs(programs_);
    return QFileInfo(module()).isFile() &&
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
    QLibrary library(module());
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const QFunctionPointer function = library.resolve(StartWriterName);
    if (!function)
        throw Error(CannotCreate, library.errorString(), module());
    const WriterStart settings{programs_, folders_.temporaryFolder(), patience_};
    return std::unique_ptr<WordApplication>(reinterpret_cast<StartWriter*>(function)(settings));
}

} // namespace quillford
