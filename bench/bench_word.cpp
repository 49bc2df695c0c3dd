#include "BenchProjects.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "base/Error.h"
#include "core/fields/Project.h"
#include "draft/compose/WordComposer.h"
#include "persistence/project/ProjectReader.h"
#include "platform/linux/LibreOffice.h"
#include "support/FakeFolders.h"
#include "support/UnattendedPrompts.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

/// The export of a Word document, from a project that is read to a file that is saved, beside
/// LibreOffice's own conversion of the finished text: the start of a LibreOffice is in both.
namespace quillford {

namespace {

constexpr double MostTimesConversion = 1.5;
constexpr std::size_t Runs = 9;
constexpr std::size_t RunsOfLargest = 3;

/// Converts a document within the folder, in a profile that stays from run to run.
void convert(const QString& kind, const QString& document, const QString& folder) {
    const QString soffice = LibreOffice::usualPrograms() + QStringLiteral("/soffice");
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(soffice, {QStringLiteral("--headless"), QStringLiteral("--norestore"),
                            QStringLiteral("--nologo"), QStringLiteral("--nodefault"),
                            QStringLiteral("-env:UserInstallation=file://%1/profile").arg(folder),
                            QStringLiteral("--convert-to"), kind, QStringLiteral("--outdir"),
                            folder, folder + u'/' + document});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        throw Error(process.error(), QStringLiteral("did not convert %1").arg(document), soffice);
}

void benchExport(const BenchProject& sample, bool isLargest, const QString& folder) {
    const QString exported = folder + QStringLiteral("/exported.doc");
    FakeFolders folders;
    folders.program = QStringLiteral(QUILLFORD_PROGRAM_FOLDER "/quillford");
    folders.temporary = folder;
    LibreOffice word(folders);
    UnattendedPrompts prompts;
    Project project;
    readProject(sample.path, project);
    WordComposer composer(project.fields, folders, prompts, word);
    const auto exportOnce = [&] {
        if (!composer.ExportToWord(exported))
            throw composer.failure().value_or(Error(0, QStringLiteral("was not exported")));
    };
    exportOnce();
    convert(QStringLiteral("fodt"), QStringLiteral("exported.doc"), folder);
    QFile::rename(folder + QStringLiteral("/exported.fodt"), folder + QStringLiteral("/text.fodt"));
    const PairedTimes times = measuredInTurns(
        exportOnce,
        [&] { convert(QStringLiteral("doc:MS Word 97"), QStringLiteral("text.fodt"), folder); },
        isLargest ? RunsOfLargest : Runs);
    QFile::remove(folder + QStringLiteral("/text.fodt"));
    // The aim is for the middling project; the largest fills its marks one by one, too.
    const char* aim = sample.name != u"folding easel"        ? "none"
                      : times.ratio() <= MostTimesConversion ? "at most 1.5, met"
                                                             : "at most 1.5, missed";
    std::printf("%-14s %12.0f %12.0f %7.2f  %-19s %6d\n", qPrintable(sample.name),
                times.ours / 1000, times.peer / 1000, times.ratio(), aim, times.runs);
}

void benchAll() {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(0, folder.errorString(), folder.path());
    std::printf("%-14s %12s %12s %7s  %-19s %6s\n", "project", "export [ms]", "soffice [ms]",
                "ratio", "aim", "runs");
    const QString clip = QStringLiteral(QUILLFORD_SAMPLES "/pencil-clip/pencil-clip.json");
    benchExport({QStringLiteral("pencil clip"), clip}, false, folder.path());
    const QList<BenchProject> samples = benchProjects(folder.path());
    for (const BenchProject& sample : samples)
        benchExport(sample, &sample == &samples.back(), folder.path());
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quillford::runBench("bench_word", quillford::benchAll);
}
