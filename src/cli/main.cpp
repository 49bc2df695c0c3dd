#include "cli/CliProgram.h"
#include "cli/CliPrompts.h"
#include "draft/pages/PdfFile.h"
#include "platform/linux/LibreOffice.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/QtPictureReader.h"
#include "platform/linux/QuietErrors.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <memory>

namespace {

/// Printed pages have fonts, which exist under an application with a screen only, a pretended one
/// here. The other outputs do without, because it takes time.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
    const bool prints = std::any_of(
        argv, argv + argc, [](const char* text) { return QByteArray(text).startsWith("--pdf"); });
    if (!prints)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const quillford::QuietErrors quiet;
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    // Standard error holds the program's own line and nothing of the toolkit's.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    const auto application = makeApplication(argc, argv);
    // A file that grows beyond the limit set for the program is a failure like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    QFile output;
    QFile errors;
    if (!output.open(stdout, QIODevice::WriteOnly) || !errors.open(stderr, QIODevice::WriteOnly))
        return static_cast<int>(quillford::ExitStatus::Failed);
    quillford::LinuxFolders folders;
    quillford::QtPictureReader pictures;
    quillford::LibreOffice word(folders);
    const auto printPdf = [&pictures](const quillford::PrintJob& job) {
        const quillford::QuietErrors quiet; // what a library says of the user's fonts
        return quillford::pdfOf(job, pictures);
    };
    quillford::CliContext context{output, errors, folders, pictures, word, printPdf};
    const int status = quillford::CliProgram(context).run(QCoreApplication::arguments().sliced(1));
    const bool isTold = status == static_cast<int>(quillford::ExitStatus::Failed);
    if (isTold || output.flush())
        return status;
    quillford::writeErrorLine(errors, QStringLiteral("standard output"), output.errorString());
    return static_cast<int>(quillford::ExitStatus::Failed);
}
