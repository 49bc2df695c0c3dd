#pragma once

#include <QDateTime>

namespace quillford {

/// The time that passes while the program runs.
class Clock {
public:
    virtual ~Clock() = default;

    /// Milliseconds since a moment in the past that stays the same for the whole run. Never goes
    /// back, whatever is done to the time of day.
    [[nodiscard]] virtual qint64 milliseconds() const = 0;

    /// The date and the time of day where the user is, as the desktop's clock shows them. May go
    /// back at any time: nothing waits by it.
    [[nodiscard]] virtual QDateTime dateAndTime() const = 0;

    /// The factor on every wait that only paces the screen: 1 in ordinary use, 0 to wait for
    /// nothing. Never negative.
    [[nodiscard]] virtual double pace() const = 0;

    /// Handles the window events that are waiting, timers that are due included. With none, waits
    /// for the first one, for `atMost` milliseconds; 0 or less waits for nothing. What the handlers
    /// do may take longer than that.
    virtual void letEventsRun(qint64 atMost) = 0;
};

} // namespace quillford
