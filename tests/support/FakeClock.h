#pragma once

#include "platform/Clock.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace quillford {

/// A clock that goes on only while it is waited for. Each wait lasts as long as the next entry of
/// `interruptions` says, and its whole time when there is none.
class FakeClock final : public Clock {
public:
    qint64 now = 1000;
    QDateTime date{QDate(2026, 3, 14), QTime(15, 9)};
    double factor = 1;
    std::vector<qint64> interruptions;
    /// How long each wait was allowed to take.
    std::vector<qint64> waits;
    /// The events that run during a wait.
    std::function<void()> events;

    [[nodiscard]] qint64 milliseconds() const override { return now; }

    [[nodiscard]] QDateTime dateAndTime() const override { return date; }

    [[nodiscard]] double pace() const override { return factor; }

    void letEventsRun(qint64 atMost) override {
        qint64 length = std::max<qint64>(atMost, 0);
        if (waits.size() < interruptions.size())
            length = std::min(length, interruptions[waits.size()]);
        waits.push_back(atMost);
        now += length;
        if (events)
            events();
    }
};

} // namespace quillford
