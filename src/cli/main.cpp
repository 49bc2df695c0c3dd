#include "cli/CliProgram.h"
#include "cli/CliPrompts.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/QtPictureReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include <csignal>
#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // Standard error holds the program's own line and nothing of the toolkit's.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    // A file that grows beyond the limit set for the program is a failure like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    QFile output;
    QFile errors;
    if (!output.open(stdout, QIODevice::WriteOnly) || !errors.open(stderr, QIODevice::WriteOnly))
        return static_cast<int>(quillford::ExitStatus::Failed);
    quillford::LinuxFolders folders;
    quillford::QtPictureReader pictures;
    quillford::CliContext context{output, errors, folders, pictures};
    const int status = quillford::CliProgram(context).run(QCoreApplication::arguments().sliced(1));
    const bool isTold = status == static_cast<int>(quillford::ExitStatus::Failed);
    if (isTold || output.flush())
        return status;
    quillford::writeErrorLine(errors, QStringLiteral("standard output"), output.errorString());
    return static_cast<int>(quillford::ExitStatus::Failed);
}
