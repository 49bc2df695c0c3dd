#pragma once

#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillford {

/// No test may meet the real user's files: home and all folders derived from it are moved into a
/// folder that vanishes with the test program.
inline void leaveTheUsersFolders(const QString& home) {
    qputenv("HOME", home.toUtf8());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, (home + u'/' + QString::fromLatin1(variable)).toUtf8());
    qunsetenv("Temp");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QUILLFORD_TIME_SCALE", "0");
}

/// Runs the tests of a program under the kind of application that they need.
template <typename Application>
int runTests(int argc, char** argv) {
    const QTemporaryDir home;
    leaveTheUsersFolders(home.path());
    testing::InitGoogleTest(&argc, argv);
    const Application application(argc, argv);
    return RUN_ALL_TESTS();
}

} // namespace quillford
