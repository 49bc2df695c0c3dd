#include "core/commands/Pause.h"

namespace quillford {

void Pause(int seconds, Clock& clock, const mdlSystem& system) {
    constexpr double MillisecondsOfASecond = 1000;
    const auto length = static_cast<qint64>(seconds * MillisecondsOfASecond * clock.pace());
    const qint64 end = clock.milliseconds() + length;
    do
        clock.letEventsRun(end - clock.milliseconds());
    while (!system.exiting && clock.milliseconds() < end);
}

} // namespace quillford
