#pragma once

#include "core/wizard/AutoSaveSwitch.h"

#include <QTimer>

namespace quillford {

/// The switch of the timer `tmrAutoSave`. It stands apart from what the timer does, because those
/// who switch it are there before the files are.
class AutoSaveTimer final : public AutoSaveSwitch {
public:
    /// Takes a timer, which outlives the switch: it stands still, bears the name `tmrAutoSave` and
    /// ticks once a second when it is switched on.
    explicit AutoSaveTimer(QTimer& timer) : timer_(timer) {
        constexpr int Interval = 1000; // milliseconds
        timer_.stop();
        timer_.setObjectName(QStringLiteral("tmrAutoSave"));
        timer_.setInterval(Interval);
    }

    /// A timer that is on already ticks on undisturbed.
    void setAutoSaveEnabled(bool on) override {
        if (!on)
            timer_.stop();
        else if (!timer_.isActive())
            timer_.start();
    }

    [[nodiscard]] bool isAutoSaveEnabled() const override { return timer_.isActive(); }

private:
    QTimer& timer_;
};

} // namespace quillford
