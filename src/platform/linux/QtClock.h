#pragma once

#include "platform/Clock.h"

#include <QElapsedTimer>

namespace quillford {

/// The clock of this computer and the toolkit's event loop. The pace is the environment variable
/// QUILLFORD_TIME_SCALE as it stands when the clock is made; 1 where it is not set or no number
/// from 0 up.
class QtClock final : public Clock {
public:
    QtClock();

    [[nodiscard]] qint64 milliseconds() const override { return timer_.elapsed(); }

    [[nodiscard]] QDateTime dateAndTime() const override { return QDateTime::currentDateTime(); }

    [[nodiscard]] double pace() const override { return pace_; }

    void letEventsRun(qint64 atMost) override;

private:
    QElapsedTimer timer_;
    double pace_;
};

} // namespace quillford
