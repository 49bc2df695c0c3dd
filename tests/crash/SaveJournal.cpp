#include "crash/SaveJournal.h"

#include "crash/FieldsShown.h"

#include <QEvent>
#include <QJsonDocument>
#include <QLabel>

#include <sys/stat.h>

namespace quillford {

SaveJournal::SaveJournal(const QString& path, const TypingUser& user, QString project)
    : file_(path),
      user_(user),
      project_(std::move(project)),
      timer_(*user.form().findChild<QTimer*>(QStringLiteral("tmrAutoSave"))) {
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        throw std::runtime_error("the journal cannot be written");
}

/// The timer's event comes before what hangs on it, and what is joined to it last comes behind.
void SaveJournal::begin() {
    write({{QStringLiteral("event"), QStringLiteral("opened")},
           {QStringLiteral("path"), project_},
           {QStringLiteral("sections"), fieldSections()},
           {QStringLiteral("fields"), fieldsShown(user_.form())}});
    timer_.installEventFilter(this);
    connect(&timer_, &QTimer::timeout, this, &SaveJournal::afterSave);
}

void SaveJournal::save(const QString& path, const std::function<void()>& step) {
    beforeSave(path);
    step();
    project_ = path;
    afterSave();
}

bool SaveJournal::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Timer)
        beforeSave(project_);
    return QObject::eventFilter(watched, event);
}

SaveJournal::Stamp SaveJournal::stampOf(const QString& path) {
    struct stat status {};

    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void SaveJournal::beforeSave(const QString& path) {
    target_ = path;
    before_ = stampOf(path);
    write({{QStringLiteral("event"), QStringLiteral("before")},
           {QStringLiteral("number"), ++number_},
           {QStringLiteral("path"), path},
           {QStringLiteral("fields"), fieldsShown(user_.form())}});
}

void SaveJournal::afterSave() {
    const bool saved = stampOf(target_) != before_;
    const QString line = user_.control<QLabel>(QStringLiteral("lblSaveState")).text();
    write({{QStringLiteral("event"), saved ? QStringLiteral("saved") : QStringLiteral("idle")},
           {QStringLiteral("number"), number_},
           {QStringLiteral("line"), line}});
    if (saved && !line.startsWith(u"saved"))
        throw std::runtime_error("a save has failed: " + line.toStdString());
}

void SaveJournal::write(QJsonObject line) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    line[QStringLiteral("time")] =
        static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    if (file_.write(text) != text.size())
        throw std::runtime_error("the journal cannot be written");
}

} // namespace quillford
