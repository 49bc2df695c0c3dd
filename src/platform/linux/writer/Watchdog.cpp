#include "platform/linux/writer/Watchdog.h"

#include <csignal>

namespace quillford {

Watchdog::Watchdog(std::chrono::milliseconds patience)
    : patience_(patience), thread_([this] { watch(); }) {}

Watchdog::~Watchdog() {
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    wakeUp_.notify_one();
    thread_.join();
}

void Watchdog::startWait() noexcept {
    if (waits_++ == 0)
        deadline_ = (Clock::now() + patience_).time_since_epoch().count();
}

void Watchdog::endWait() noexcept {
    if (--waits_ == 0)
        deadline_ = 0;
}

/// Looks now and then instead of being told: a document is filled in thousands of short calls.
void Watchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!wakeUp_.wait_for(lock, patience_ / 20, [this] { return isOver_; })) {
        const Clock::rep deadline = deadline_;
        const pid_t processGroup = processGroup_;
        if (deadline == 0 || processGroup == 0 ||
            Clock::now().time_since_epoch().count() < deadline)
            continue;
        hasKilled_ = true;
        ::kill(-processGroup, SIGKILL);
    }
}

} // namespace quillford
