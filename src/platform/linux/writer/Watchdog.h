#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <sys/types.h>
#include <thread>

namespace quillford {

/// Kills a process that lets a caller wait too long. A call to another process has no limit of
/// itself; when that process dies, the call fails at once.
class Watchdog {
public:
    /// Starts the thread that watches. It is the one second thread of the program.
    explicit Watchdog(std::chrono::milliseconds patience);
    ~Watchdog();

    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// Names the process group that is killed. 0 for none.
    void guard(pid_t processGroup) noexcept { processGroup_ = processGroup; }

    /// The patience that is left runs between these two. Waits within each other count as one.
    void startWait() noexcept;
    void endWait() noexcept;

    [[nodiscard]] bool hasKilled() const noexcept { return hasKilled_; }

    [[nodiscard]] std::chrono::milliseconds patience() const noexcept { return patience_; }

private:
    using Clock = std::chrono::steady_clock;

    void watch();

    const std::chrono::milliseconds patience_;
    std::atomic<Clock::rep> deadline_ = 0; ///< 0 while nobody waits
    int waits_ = 0;                        ///< of the one thread that waits
    std::atomic<pid_t> processGroup_ = 0;
    std::atomic<bool> hasKilled_ = false;

    std::mutex mutex_;
    std::condition_variable wakeUp_;
    bool isOver_ = false;
    std::thread thread_; ///< last, so that all else stands when it starts
};

} // namespace quillford
