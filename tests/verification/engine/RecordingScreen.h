#pragma once

#include "verification/engine/VerifyScreen.h"

#include <QStringList>

#include <functional>

namespace quillford {

/// A form that keeps what it is told, in order, and lets a test step in at a pause or a step.
class RecordingScreen final : public VerifyScreen {
public:
    QStringList calls;
    int maximum = 0;
    int value = 0;
    QString percentText;
    int steps = 0;                                ///< values shown since the maximum was set
    std::function<void()> atPause = [] {};        ///< what the user does while it waits
    std::function<void(int)> atStep = [](int) {}; ///< what the user does at step n, from 1

    void showStatus() override { calls << QStringLiteral("status"); }

    void pause() override {
        calls << QStringLiteral("pause");
        atPause();
    }

    void setBarMaximum(int newMaximum) override {
        calls << QStringLiteral("maximum %1").arg(newMaximum);
        maximum = newMaximum;
        steps = -1; // the value of the empty bar is none of a step
    }

    void setBarValue(int newValue) override {
        value = newValue;
        ++steps;
        calls << QStringLiteral("value %1").arg(newValue);
        if (steps > 0)
            atStep(steps);
    }

    void setPercentText(const QString& text) override {
        percentText = text;
        calls << text;
    }
};

} // namespace quillford
