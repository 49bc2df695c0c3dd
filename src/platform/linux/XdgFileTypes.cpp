#include "platform/linux/XdgFileTypes.h"

#include "base/Files.h"
#include "base/Text.h"
#include "platform/linux/DesktopEntry.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamWriter>

namespace quillford {

namespace {

QByteArray mimePackage(const FileType& type) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("mime-info"));
    xml.writeDefaultNamespace(
        QStringLiteral("http://www.freedesktop.org/standards/shared-mime-info"));
    xml.writeStartElement(QStringLiteral("mime-type"));
    xml.writeAttribute(QStringLiteral("type"), type.mimeType);
    xml.writeTextElement(QStringLiteral("comment"), type.description);
    xml.writeEmptyElement(QStringLiteral("glob"));
    xml.writeAttribute(QStringLiteral("pattern"), QStringLiteral("*.") + type.ending);
    xml.writeEndDocument();
    return bytes;
}

void writeWhole(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    replaceFile(path, bytes);
}

} // namespace

void XdgFileTypes::makeKnown(const FileType& type) {
    const QString program = lowerCase(type.programName);
    if (writeMissing(QStringLiteral("mime/packages/%1.xml").arg(program), mimePackage(type)))
        runTool(QStringLiteral("update-mime-database"), QStringLiteral("mime"));
    if (writeMissing(QStringLiteral("applications/%1.desktop").arg(program), desktopEntry(type)))
        runTool(QStringLiteral("update-desktop-database"), QStringLiteral("applications"));
}

/// Writes `name`, a path below the data folder, unless it stands in one of the data folders. True
/// when it was written.
bool XdgFileTypes::writeMissing(const QString& name, const QByteArray& bytes) const {
    const QString path = QDir(folders_.localDataFolder()).filePath(name);
    if (QFileInfo::exists(path) ||
        !QStandardPaths::locate(QStandardPaths::GenericDataLocation, name).isEmpty())
        return false;
    writeWhole(path, bytes);
    return true;
}

/// Runs one of the desktop's tools over a folder below the data folder. A tool that is missing,
/// fails or hangs is no failure: the desktop brings its databases up to date by itself in time.
void XdgFileTypes::runTool(const QString& tool, const QString& folder) const {
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        return;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, {QDir(folders_.localDataFolder()).filePath(folder)});
    if (process.waitForFinished(static_cast<int>(patience_.count())))
        return;
    process.kill();
    process.waitForFinished();
}

} // namespace quillford
