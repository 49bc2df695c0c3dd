#include "platform/linux/writer/WriterProcess.h"

#include "base/Error.h"
#include "base/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace quillford {

namespace {

constexpr int CannotCreate = 429;  // the runtime's number for a component that cannot be created
constexpr int MadeItsProfile = 81; // the exit status that asks for another start
constexpr int MostRuns = 3;

/// Nothing of the user's reaches the process, and its temporary files stay in its folder.
QProcessEnvironment environment(const QString& folder) {
    QProcessEnvironment variables;
    variables.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    variables.insert(QStringLiteral("SAL_USE_VCLPLUGIN"), QStringLiteral("svp"));
    for (const QString& name : {QStringLiteral("HOME"), QStringLiteral("TMPDIR"),
                                QStringLiteral("TMP"), QStringLiteral("TEMP")})
        variables.insert(name, folder);
    return variables;
}

/// The build that LibreOffice tells of itself, or nothing.
QByteArray buildId(const QDir& programs) {
    QFile versions(programs.filePath(QStringLiteral("versionrc")));
    if (!versions.open(QIODevice::ReadOnly))
        return {};
    while (!versions.atEnd()) {
        const QByteArray line = versions.readLine();
        if (line.startsWith("buildid="))
            return line.sliced(line.indexOf('=') + 1).chopped(line.endsWith('\n') ? 1 : 0);
    }
    return {};
}

/// In a profile that knows the build, LibreOffice looks for no extensions to set up, after which it
/// would ask to be started once more. Without this it does, which only takes longer.
void markProfile(const QString& profile, const QByteArray& build) {
    const QDir extensions(profile + QStringLiteral("/user/extensions"));
    if (!build.isEmpty() && extensions.mkpath(QStringLiteral(".")))
        replaceFile(extensions.filePath(QStringLiteral("buildid")), build);
}

/// Where LibreOffice's runtime keeps a pipe of this name.
QString pipeFile(const QString& name) {
    return QStringLiteral("/tmp/OSL_PIPE_%1_%2").arg(getuid()).arg(name);
}

/// The pipe on which every LibreOffice waits for a second start with its profile: named after the
/// MD5 of the profile's address in UTF-16, each byte in hexadecimal without a leading zero.
QString secondStartPipe(const QString& profile) {
    const QByteArray hash = QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(profile.utf16()), 2 * profile.size()),
        QCryptographicHash::Md5);
    QString name = QStringLiteral("SingleOfficeIPC_");
    for (const char byte : hash)
        name += QString::number(static_cast<uchar>(byte), 16);
    return name;
}

} // namespace

WriterProcess::WriterProcess(const WriterStart& start)
    : folder_(QDir(start.workFolder).absoluteFilePath(QStringLiteral("Word-XXXXXX"))) {
    if (!folder_.isValid())
        throw Error(CannotCreate, folder_.errorString(), start.workFolder);
    pipe_ =
        QStringLiteral("quillford-%1-%2").arg(getpid()).arg(QFileInfo(folder_.path()).fileName());
    const QDir programs(start.programFolder);
    // The program itself and not its starter, so that the process is the one that works.
    process_.setProgram(programs.filePath(QStringLiteral("soffice.bin")));
    process_.setArguments({QStringLiteral("--headless"), QStringLiteral("--invisible"),
                           QStringLiteral("--norestore"), QStringLiteral("--nologo"),
                           QStringLiteral("--nodefault"), QStringLiteral("--nofirststartwizard"),
                           QStringLiteral("--nolockcheck"),
                           QStringLiteral("-env:UserInstallation=") + profileAddress(),
                           QStringLiteral("--accept=pipe,name=%1;urp;").arg(pipe_)});
    process_.setProcessEnvironment(environment(folder_.path()));
    process_.setWorkingDirectory(folder_.path());
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setChildProcessModifier([] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    markProfile(place(QStringLiteral("profile")), buildId(programs));
    run();
}

WriterProcess::~WriterProcess() {
    if (const pid_t group = processGroup(); group > 0) {
        ::kill(-group, SIGKILL);
        process_.waitForFinished(-1);
    }
    // One that was killed leaves its ends of the pipes behind.
    QFile::remove(pipeFile(pipe_));
    QFile::remove(pipeFile(secondStartPipe(profileAddress())));
}

QString WriterProcess::profileAddress() const {
    return QUrl::fromLocalFile(place(QStringLiteral("profile"))).toString(QUrl::FullyEncoded);
}

QString WriterProcess::address() const {
    return QStringLiteral("uno:pipe,name=%1;urp;StarOffice.ComponentContext").arg(pipe_);
}

void WriterProcess::run() {
    ++runs_;
    process_.start();
    if (!process_.waitForStarted(-1))
        throw Error(CannotCreate, process_.errorString(), process_.program());
}

void WriterProcess::waitForStart() {
    constexpr int Moment = 20;
    if (!waitForEnd(Moment))
        return;
    const bool asksForStart =
        process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == MadeItsProfile;
    if (!asksForStart || runs_ == MostRuns)
        throw Error(CannotCreate,
                    QStringLiteral("LibreOffice ended at its start with status %1")
                        .arg(process_.exitCode()),
                    process_.program());
    run();
}

bool WriterProcess::waitForEnd(int atMost) {
    return process_.state() == QProcess::NotRunning || process_.waitForFinished(atMost);
}

} // namespace quillford
