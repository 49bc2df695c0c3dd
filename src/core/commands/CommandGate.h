#pragma once

#include <QString>

#include <deque>
#include <functional>

namespace quillford {

/// Lets the commands of the window run one at a time. A command may wait and let window events
/// through; what the user asks for meanwhile is done when the command has ended, so that none meets
/// a project that is half made and none is lost.
class CommandGate {
public:
    using Command = std::function<void()>;

    /// Runs the command, or keeps it while another is at work. A command of the same name as the
    /// one at work, or as one that is kept, is the second click of a double one: it is left out.
    void run(const QString& name, const Command& command);

    [[nodiscard]] bool isBusy() const noexcept { return !atWork_.isEmpty(); }

private:
    struct Kept {
        QString name;
        Command command;
    };

    [[nodiscard]] bool isKnown(const QString& name) const;

    QString atWork_;
    std::deque<Kept> kept_;
};

} // namespace quillford
