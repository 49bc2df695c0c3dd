#include "FirstPaint.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "app/Program.h"
#include "base/Error.h"
#include "controls/ClickLabel.h"
#include "controls/Theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// The time from the start of the process to the first painted main form, beside a bare program of
/// the toolkit that shows one page. Then what a key press takes in a field of an open project,
/// until all that hangs on the change is done.
namespace quillford {

namespace {

constexpr double MostTimesBare = 3;
constexpr double MostMilliseconds = 16;
constexpr char Once[] = "--once";

void leaveTheUsersFolders(const QString& home) {
    qputenv("HOME", home.toUtf8());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, (home + u'/' + QString::fromLatin1(variable)).toUtf8());
    qunsetenv("Temp");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QUILLFORD_TIME_SCALE", "0");
}

/// Runs a program to its end.
void run(const QByteArray& path, const char* argument) {
    QByteArray name = path;
    QByteArray option = argument;
    char* arguments[] = {name.data(), option.isEmpty() ? nullptr : option.data(), nullptr};
    pid_t child = 0;
    int status = 0;
    if (posix_spawn(&child, path.constData(), nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(child, &status, 0) != child || status != 0)
        throw Error(0, QStringLiteral("it did not end well"), QString::fromLocal8Bit(path));
}

/// What the program does until its form stands on the screen; ends the process there.
int startOnce(int argc, char** argv) {
    QApplication application(argc, argv);
    theme::apply(application);
    Program program;
    if (!program.start({}))
        return 1;
    const FirstPaint end(program.window()->form());
    return QApplication::exec();
}

void benchStart(const QByteArray& self) {
    const QByteArray bare = self.left(self.lastIndexOf('/')) + "/bare_start";
    const PairedTimes times = measuredInTurns([&] { run(self, Once); }, [&] { run(bare, ""); }, 20);
    std::printf("%-34s %10s %10s %6s  %s\n", "process to first painted window", "ours [ms]",
                "bare [ms]", "ratio", "aim");
    std::printf("%-34s %10.1f %10.1f %6.2f  at most %.1f, %s\n", "Welcome page / one text browser",
                times.ours / 1000, times.peer / 1000, times.ratio(), MostTimesBare,
                times.ratio() <= MostTimesBare ? "met" : "missed");
}

qsizetype lengthOf(const QWidget& field) {
    const bool isLine = field.inherits("QLineEdit");
    return field.property(isLine ? "text" : "plainText").toString().size();
}

/// Milliseconds of each key press, from its event to the end of its handlers.
std::vector<double> keyTimes(QWidget& field) {
    constexpr int Keys = 500;
    const QString text = QStringLiteral("the quick brown fox jumps ");
    const qsizetype before = lengthOf(field);
    field.setFocus();
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, text.sliced(i % text.size(), 1));
        QElapsedTimer time;
        time.start();
        QCoreApplication::sendEvent(&field, &event);
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
        QCoreApplication::processEvents();
    }
    if (lengthOf(field) != before + Keys)
        throw Error(0, QStringLiteral("keys were lost"), field.objectName());
    std::sort(times.begin(), times.end());
    return times;
}

void benchKeys() {
    Program program;
    if (!program.start({QStringLiteral(QUILLFORD_SAMPLE)}))
        throw Error(0, QStringLiteral("the project does not open"),
                    QStringLiteral(QUILLFORD_SAMPLE));
    std::printf("\n%-34s %10s %10s %10s  %s\n", "a key press in the open sample", "median[ms]",
                "p99[ms]", "worst[ms]", "aim");
    for (const auto& [tab, name] :
         {std::pair(0, QStringLiteral("txtCompany")), std::pair(2, QStringLiteral("txtPurpose")),
          std::pair(2, QStringLiteral("txtObject(0)")),
          std::pair(4, QStringLiteral("txtElementName(0)")),
          std::pair(5, QStringLiteral("txtElementSub1(0)")),
          std::pair(7, QStringLiteral("txtOperation"))}) {
        QWidget& form = program.window()->form();
        form.findChild<ClickLabel*>(QStringLiteral("picTab(%1)").arg(tab))->click();
        auto* field = form.findChild<QWidget*>(name);
        if (!field)
            throw Error(0, QStringLiteral("there is no such field"), name);
        const std::vector<double> times = keyTimes(*field);
        const double p99 = times[times.size() * 99 / 100];
        std::printf("%-34s %10.2f %10.2f %10.2f  below %.0f, %s\n", qPrintable(name),
                    times[times.size() / 2], p99, times.back(), MostMilliseconds,
                    p99 < MostMilliseconds ? "met" : "missed");
    }
}

void benchAll(int argc, char** argv) {
    const QTemporaryDir home;
    leaveTheUsersFolders(home.path());
    benchStart(argv[0]);
    QApplication application(argc, argv);
    theme::apply(application);
    benchKeys();
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], quillford::Once) == 0)
        return quillford::startOnce(argc, argv);
    return quillford::runBench("bench_start", [&] { quillford::benchAll(argc, argv); });
}
