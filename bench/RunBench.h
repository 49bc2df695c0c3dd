#pragma once

#include "base/Error.h"

#include <QTemporaryDir>

#include <cstdio>

namespace quillford {

/// Runs a benchmark. Gives the exit status of its program: 2 when it raised an `Error`, which is
/// told in one line.
template <typename Body>
int runBench(const char* name, const Body& body) {
    try {
        body();
    } catch (const Error& error) {
        std::fprintf(stderr, "%s: %s: %s\n", name, qPrintable(error.source()),
                     qPrintable(error.description()));
        return 2;
    }
    return 0;
}

/// A home for a benchmark of the whole program, which keeps the user's own settings and files out
/// of it. Stands before the application object.
class BenchHome {
public:
    BenchHome() {
        qputenv("HOME", home_.path().toUtf8());
        for (const char* variable :
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "Temp"})
            qunsetenv(variable);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QUILLFORD_TIME_SCALE", "0");
    }

private:
    QTemporaryDir home_;
};

} // namespace quillford
