#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace quillford {

/// Runs a task from the event loop and gives the longest time, in microseconds, for which the loop
/// came to nothing else meanwhile: what a user who types would feel of it.
[[nodiscard]] inline double longestGapOf(const std::function<void()>& task) {
    constexpr double Nanoseconds = 1e3; // of a microsecond
    qint64 longest = 0;
    bool isDone = false;
    QElapsedTimer sinceTurn;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, [&] {
        longest = std::max(longest, sinceTurn.nsecsElapsed());
        sinceTurn.start();
    });
    sinceTurn.start();
    turns.start(0);
    QCoreApplication::processEvents();
    longest = 0;
    QMetaObject::invokeMethod(
        &turns,
        [&] {
            task();
            isDone = true;
        },
        Qt::QueuedConnection);
    while (!isDone)
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return static_cast<double>(longest) / Nanoseconds;
}

} // namespace quillford
