#include "platform/linux/QtClock.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cmath>

namespace quillford {

namespace {

double paceOfEnvironment() {
    bool isNumber = false;
    const double pace = QString::fromLocal8Bit(qgetenv("QUILLFORD_TIME_SCALE")).toDouble(&isNumber);
    return isNumber && std::isfinite(pace) && pace >= 0 ? pace : 1;
}

} // namespace

QtClock::QtClock() : pace_(paceOfEnvironment()) {
    timer_.start();
}

void QtClock::letEventsRun(qint64 atMost) {
    if (atMost <= 0)
        return QCoreApplication::processEvents();
    // The timer is the event that ends the wait when no other one comes.
    QTimer end;
    end.setSingleShot(true);
    end.setTimerType(Qt::PreciseTimer);
    end.start(std::chrono::milliseconds(atMost));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace quillford
