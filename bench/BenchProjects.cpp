#include "BenchProjects.h"

#include "base/Error.h"

#include <QCoreApplication>
#include <QProcess>

namespace quillford {

namespace {

void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(-1))
        throw Error(process.error(), process.errorString(), program);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw Error(process.exitCode(), QStringLiteral("did not succeed"), program);
}

} // namespace

BenchProject madeProject(const QString& name, const QString& folder, const MadeSize& size) {
    run(QStringLiteral(QUILLFORD_PYTHON),
        {QStringLiteral(QUILLFORD_SAMPLES "/make_largest_project.py"), folder,
         QStringLiteral("--text-bytes"), QString::number(size.textBytes),
         QStringLiteral("--picture-bytes"), QString::number(size.pictureBytes)});
    return {name, folder + QStringLiteral("/largest.json")};
}

QList<BenchProject> benchProjects(const QString& folder, const MadeSize& largest) {
    return {
        {QStringLiteral("folding easel"),
         QStringLiteral(QUILLFORD_SAMPLES "/folding-easel/folding-easel.json")},
        madeProject(QStringLiteral("largest"), folder, largest),
    };
}

QList<TemplateCall> recordedCalls(const BenchProject& project, const QString& folder) {
    const QString recording = folder + QStringLiteral("/calls.json");
    run(QCoreApplication::applicationDirPath() + QStringLiteral("/record_draft"),
        {project.path, recording});
    return readTemplateCalls(recording);
}

} // namespace quillford
