#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// No test may meet the real user's files: home and all folders derived from it are moved into a
/// folder that vanishes with the test program.
void leaveTheUsersFolders(const QString& home) {
    qputenv("HOME", home.toUtf8());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, (home + u'/' + QString::fromLatin1(variable)).toUtf8());
    qunsetenv("Temp");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QUILLFORD_TIME_SCALE", "0");
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    leaveTheUsersFolders(home.path());
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
