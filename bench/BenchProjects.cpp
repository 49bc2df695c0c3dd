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

QList<BenchProject> benchProjects(const QString& folder) {
    const QString samples = QStringLiteral(QUILLFORD_SAMPLES);
    run(QStringLiteral(QUILLFORD_PYTHON),
        {samples + QStringLiteral("/make_largest_project.py"), folder});
    return {
        {QStringLiteral("folding easel"),
         samples + QStringLiteral("/folding-easel/folding-easel.json")},
        {QStringLiteral("largest"), folder + QStringLiteral("/largest.json")},
    };
}

QList<TemplateCall> recordedCalls(const BenchProject& project, const QString& folder) {
    const QString recording = folder + QStringLiteral("/calls.json");
    run(QCoreApplication::applicationDirPath() + QStringLiteral("/record_draft"),
        {project.path, recording});
    return readTemplateCalls(recording);
}

} // namespace quillford
