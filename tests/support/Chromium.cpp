#include "support/Chromium.h"

#include "base/Error.h"

#include <QJsonDocument>
#include <QStandardPaths>
#include <QUrl>

#include <array>
#include <cmath>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace quillford {

namespace {

constexpr int SecondsToAnswer = 120;
constexpr int Ended = 57; // the runtime's number for a device that fails

QString browser() {
    return QStandardPaths::findExecutable(QStringLiteral("chromium"));
}

[[noreturn]] void raise(const QString& text) {
    throw Error(Ended, text, QStringLiteral("chromium"));
}

/// The end of a pipe under a number that is none of those that the browser reads and writes.
int movedAway(int end) {
    constexpr int FirstFree = 10;
    const int moved = ::fcntl(end, F_DUPFD_CLOEXEC, FirstFree);
    ::close(end);
    if (moved < 0)
        raise(QStringLiteral("there is no room for a pipe"));
    return moved;
}

struct Pipe {
    int readEnd;
    int writeEnd;
};

Pipe newPipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        raise(QStringLiteral("there is no room for a pipe"));
    return {movedAway(ends[0]), movedAway(ends[1])};
}

/// An environment in which the browser meets no file of the user.
QProcessEnvironment environmentIn(const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        environment.insert(QString::fromLatin1(variable), folder);
    return environment;
}

} // namespace

bool Chromium::isInstalled() {
    return !browser().isEmpty();
}

Chromium::Chromium(const QString& folder, int width, int height) : width_(width) {
    start(folder, width, height);
    openPage();
}

Chromium::~Chromium() {
    ::close(commands_); // the browser ends by itself when nobody can command it any more
    if (!process_.waitForFinished(5000)) {
        process_.kill();
        process_.waitForFinished();
    }
    ::close(answers_);
}

void Chromium::start(const QString& folder, int width, int height) {
    constexpr int BrowserReads = 3;
    constexpr int BrowserWrites = 4;
    const Pipe commands = newPipe();
    const Pipe answers = newPipe();
    process_.setProcessEnvironment(environmentIn(folder));
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setChildProcessModifier([commands, answers] {
        ::dup2(commands.readEnd, BrowserReads);
        ::dup2(answers.writeEnd, BrowserWrites);
    });
    process_.start(
        browser(),
        {QStringLiteral("--headless"), QStringLiteral("--no-sandbox"),
         QStringLiteral("--disable-gpu"), QStringLiteral("--disable-background-networking"),
         QStringLiteral("--disable-component-update"), QStringLiteral("--disable-sync"),
         QStringLiteral("--disable-extensions"), QStringLiteral("--disable-dev-shm-usage"),
         QStringLiteral("--no-first-run"), QStringLiteral("--hide-scrollbars"),
         QStringLiteral("--host-resolver-rules=MAP * ~NOTFOUND"),
         QStringLiteral("--remote-debugging-pipe"),
         QStringLiteral("--user-data-dir=%1/profile").arg(folder),
         QStringLiteral("--window-size=%1,%2").arg(width).arg(height)});
    const bool isRunning = process_.waitForStarted();
    ::close(commands.readEnd);
    ::close(answers.writeEnd);
    commands_ = commands.writeEnd;
    answers_ = answers.readEnd;
    if (!isRunning)
        raise(process_.errorString());
}

void Chromium::openPage() {
    const QJsonObject target = call(QStringLiteral("Target.createTarget"),
                                    {{QStringLiteral("url"), QStringLiteral("about:blank")}});
    const QJsonObject attached =
        call(QStringLiteral("Target.attachToTarget"),
             {{QStringLiteral("targetId"), target.value(QStringLiteral("targetId"))},
              {QStringLiteral("flatten"), true}});
    session_ = attached.value(QStringLiteral("sessionId")).toString();
    call(QStringLiteral("Page.enable"));
}

int Chromium::load(const QString& path) {
    isLoaded_ = false;
    call(QStringLiteral("Page.navigate"),
         {{QStringLiteral("url"), QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}});
    while (!isLoaded_)
        received();
    // Asking for the height has the browser lay out what it has put off.
    const QJsonValue height =
        evaluated(QStringLiteral("document.documentElement.getBoundingClientRect().height"));
    return static_cast<int>(std::ceil(height.toDouble()));
}

QString Chromium::text() {
    return evaluated(QStringLiteral("document.body.innerText")).toString();
}

QJsonValue Chromium::evaluated(const QString& script) {
    const QJsonObject answer =
        call(QStringLiteral("Runtime.evaluate"), {{QStringLiteral("expression"), script}});
    return answer.value(QStringLiteral("result"))[QStringLiteral("value")];
}

QImage Chromium::picture(int top, int height) {
    call(QStringLiteral("Emulation.setDeviceMetricsOverride"),
         {{QStringLiteral("width"), width_},
          {QStringLiteral("height"), height},
          {QStringLiteral("deviceScaleFactor"), 1},
          {QStringLiteral("mobile"), false}});
    (void)evaluated(QStringLiteral("scrollTo(0, %1)").arg(top));
    const QJsonObject answer = call(QStringLiteral("Page.captureScreenshot"));
    return QImage::fromData(
        QByteArray::fromBase64(answer.value(QStringLiteral("data")).toString().toLatin1()));
}

QByteArray Chromium::printed() {
    const QJsonObject answer =
        call(QStringLiteral("Page.printToPDF"), {{QStringLiteral("preferCSSPageSize"), true}});
    return QByteArray::fromBase64(answer.value(QStringLiteral("data")).toString().toLatin1());
}

QJsonObject Chromium::call(const QString& method, const QJsonObject& parameters) {
    const int id = ++lastId_;
    QJsonObject message{{QStringLiteral("id"), id},
                        {QStringLiteral("method"), method},
                        {QStringLiteral("params"), parameters}};
    if (!session_.isEmpty())
        message.insert(QStringLiteral("sessionId"), session_);
    send(message);
    for (;;) {
        const QJsonObject answer = received();
        if (answer.value(QStringLiteral("id")).toInt() != id)
            continue;
        if (answer.contains(QStringLiteral("error")))
            raise(method + QStringLiteral(": ") +
                  answer.value(QStringLiteral("error"))[QStringLiteral("message")].toString());
        return answer.value(QStringLiteral("result")).toObject();
    }
}

void Chromium::send(const QJsonObject& message) const {
    QByteArray text = QJsonDocument(message).toJson(QJsonDocument::Compact);
    text.append('\0');
    for (qsizetype done = 0; done < text.size();) {
        const ssize_t written = ::write(commands_, text.constData() + done,
                                        static_cast<std::size_t>(text.size() - done));
        if (written <= 0)
            raise(QStringLiteral("it takes no commands"));
        done += written;
    }
}

QJsonObject Chromium::received() {
    qsizetype searched = 0;
    for (;;) {
        const qsizetype end = unread_.indexOf('\0', searched);
        if (end >= 0) {
            const auto message = QJsonDocument::fromJson(unread_.first(end)).object();
            unread_.remove(0, end + 1);
            if (message.value(QStringLiteral("method")) == QStringLiteral("Page.loadEventFired"))
                isLoaded_ = true;
            return message;
        }
        searched = unread_.size();
        pollfd waiting{answers_, POLLIN, 0};
        if (::poll(&waiting, 1, SecondsToAnswer * 1000) != 1)
            raise(QStringLiteral("it does not answer"));
        std::array<char, 65536> part{};
        const ssize_t count = ::read(answers_, part.data(), part.size());
        if (count <= 0)
            raise(QStringLiteral("it has ended"));
        unread_.append(part.data(), count);
    }
}

} // namespace quillford
