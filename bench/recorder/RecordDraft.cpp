#include "BenchDraft.h"
#include "base/Error.h"

#include <QCoreApplication>

#include <cstdio>

/// record_draft PROJECT RECORDING: composes the project on the recording template and leaves what
/// the template was told in the file RECORDING.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: record_draft PROJECT RECORDING\n", stderr);
        return 2;
    }
    try {
        quillford::BenchDraft(arguments[1]).exportTo(arguments[2]);
    } catch (const quillford::Error& error) {
        std::fprintf(stderr, "record_draft: %s: %s\n", qPrintable(error.source()),
                     qPrintable(error.description()));
        return 2;
    }
    return 0;
}
