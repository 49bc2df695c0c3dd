#pragma once

#include "typed/TypingUser.h"

#include <QFile>
#include <QJsonObject>
#include <QTimer>

#include <functional>

namespace quillford {

/// Writes down what the program holds, so that whoever kills it knows what must be there
/// afterwards: one line of JSON an event. Before each moment at which the project may be saved
/// stands what the fields show, and behind it whether it was saved. Each line has reached the
/// system before the program goes on; a program that is killed takes nothing with it that was
/// written.
class SaveJournal final : public QObject {
public:
    /// Appends to the file `path`. The project's file is `project`; its fields are those of the
    /// user's form, which outlives the journal.
    SaveJournal(const QString& path, const TypingUser& user, QString project);

    [[nodiscard]] const QString& project() const { return project_; }

    /// Writes that the project is open, and which section each field belongs to; from now on the
    /// ticks of `tmrAutoSave` are written down as well.
    void begin();

    /// Runs a save by the user into the file `path`, which is the project's from then on. `step`
    /// lets no tick come before the save nor behind it.
    void save(const QString& path, const std::function<void()>& step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What changes in a file when it is written, or another one takes its place.
    struct Stamp {
        quint64 file = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        [[nodiscard]] bool operator==(const Stamp&) const = default;
    };

    [[nodiscard]] static Stamp stampOf(const QString& path);

    void beforeSave(const QString& path);
    void afterSave();
    void write(QJsonObject line);

    QFile file_;
    const TypingUser& user_;
    QString project_;
    QTimer& timer_;
    QString target_;
    Stamp before_;
    int number_ = 0;
};

} // namespace quillford
