#pragma once

#include "platform/linux/WriterStart.h"

#include <QProcess>
#include <QTemporaryDir>

namespace quillford {

/// A LibreOffice process of our own, with a profile of its own in a private folder; both are gone
/// with this object. It ends with the program, too, however that ends.
class WriterProcess {
public:
    /// Makes the folder and starts the process. Raises `Error` when either fails.
    explicit WriterProcess(const WriterStart& start);

    /// Kills the process where it still runs, and removes the folder.
    ~WriterProcess();

    WriterProcess(const WriterProcess&) = delete;
    WriterProcess& operator=(const WriterProcess&) = delete;

    /// The address at which it listens once it has started.
    [[nodiscard]] QString address() const;

    /// Waits a moment while the process is starting. A process that ends because it has only now
    /// made its profile is started once more; raises `Error` when it ends otherwise.
    void waitForStart();

    /// Waits for the process to end, `atMost` milliseconds. True when it has.
    bool waitForEnd(int atMost);

    /// The process group, while the process runs.
    [[nodiscard]] pid_t processGroup() const { return static_cast<pid_t>(process_.processId()); }

    /// A path in the private folder.
    [[nodiscard]] QString place(const QString& name) const { return folder_.filePath(name); }

private:
    [[nodiscard]] QString profileAddress() const;
    void run();

    QTemporaryDir folder_;
    QString pipe_;
    QProcess process_;
    int runs_ = 0;
};

} // namespace quillford
