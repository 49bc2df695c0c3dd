#include "persistence/project/ProjectReader.h"

#include "base/Files.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/JsonReader.h"
#include "persistence/project/ProjectFileFormat.h"

#include <QFileInfo>

namespace quillford {

namespace {

constexpr qint64 BadFileFormat = 321; // the runtime's number for a file of the wrong format

class IgnoredPictures final : public PictureReceiver {
public:
    void takePicture(int, const QString&, const QByteArray&) override {}
};

ReadReport readJson(const QString& path, Project& project) {
    readProjectJson(contentOfFile(path), QFileInfo(path).absolutePath(), project);
    ReadReport report;
    report.outcome = ReadReport::Outcome::Read;
    return report;
}

/// On the way to a version the first failure is what kept it from being read.
[[noreturn]] void refuse(const ReadReport& report) {
    if (report.outcome == ReadReport::Outcome::HigherVersion)
        throw Error(BadFileFormat,
                    QStringLiteral("its version \"%1\" is not one up to %2, which can be read")
                        .arg(report.version, ProjectFileFormat::Version));
    const QString reason =
        report.failure ? report.failure->description() : QStringLiteral("it has no version");
    throw Error(BadFileFormat, QStringLiteral("it holds no project: %1").arg(reason));
}

} // namespace

ReadReport readProject(const QString& path, Project& project, PictureReceiver& pictures) {
    if (!QFileInfo(path).isFile() || !IsStorageFile(path))
        return readJson(path, project);
    ReadReport report = ProjectFileReader(project, pictures).read(path);
    if (report.outcome != ReadReport::Outcome::Read)
        refuse(report);
    return report;
}

ReadReport readProject(const QString& path, Project& project) {
    IgnoredPictures ignored;
    return readProject(path, project, ignored);
}

} // namespace quillford
