#include "storage/GsfSide.h"
#include "storage/PlainSide.h"
#include "storage/StorageSide.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int Files = 50;
constexpr int FileSize = 2 * 1024 * 1024;
constexpr int Rounds = 9;

/// One thing that is timed, after something that is not.
struct Job {
    const char* name;
    std::function<void()> prepare;
    std::function<void()> run;
    std::vector<double> milliseconds{};

    void once() {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double, std::milli> taken =
            std::chrono::steady_clock::now() - start;
        milliseconds.push_back(taken.count());
    }

    [[nodiscard]] double median() {
        std::sort(milliseconds.begin(), milliseconds.end());
        return milliseconds[milliseconds.size() / 2];
    }
};

QStringList makeSources(const QString& folder) {
    QStringList sources;
    quint32 value = 1;
    for (int i = 0; i < Files; ++i) {
        QByteArray bytes(FileSize, Qt::Uninitialized);
        for (char& byte : bytes) {
            value = value * 1664525U + 1013904223U;
            byte = static_cast<char>(value >> 24);
        }
        sources.append(folder + QStringLiteral("/picture %1").arg(i));
        QFile file(sources.back());
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
    return sources;
}

/// The peak of memory of `work`, in MB, in a process of its own.
double peakOf(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void compare(Job& job, Job& with) {
    std::printf("%-28s %8.1f ms   %-28s %8.1f ms   ratio %.2f\n", job.name, job.median(), with.name,
                with.median(), job.median() / with.median());
}

} // namespace

/// bench_storage [FOLDER]: 50 streams of 2 MB, made, written over and read, beside a plain program,
/// `cat` and libgsf. The medians of rounds that take turns; nobody syncs.
int main(int argc, char** argv) {
    const QTemporaryDir folder((argc > 1 ? QFile::decodeName(argv[1]) : QStringLiteral("/tmp")) +
                               QStringLiteral("/bench-XXXXXX"));
    const QStringList sources = makeSources(folder.path());
    const QString compound = folder.filePath(QStringLiteral("ours"));
    const QString plainFile = folder.filePath(QStringLiteral("plain"));
    const QString gsfFile = folder.filePath(QStringLiteral("gsf"));
    const auto nothing = [] {};

    // First of all, while this process has little memory that a child could take over.
    const double base = peakOf([] {});
    const double peak = peakOf([&] {
        QFile::remove(compound);
        ours::write(sources, compound);
        ours::write(sources, compound);
        ours::read(compound);
    });

    std::vector<Job> jobs = {
        {"create", [&] { QFile::remove(compound); }, [&] { ours::write(sources, compound); }},
        {"plain program, new file", [&] { QFile::remove(plainFile); },
         [&] { plain::write(sources, plainFile, true); }},
        {"libgsf create", [&] { QFile::remove(gsfFile); }, [&] { gsf::write(sources, gsfFile); }},
        {"write over", nothing, [&] { ours::write(sources, compound); }},
        {"plain program, in place", nothing, [&] { plain::write(sources, plainFile, false); }},
        {"read", nothing, [&] { ours::read(compound); }},
        {"cat", nothing, [&] { plain::readByCat(compound); }},
        {"libgsf read", nothing, [&] { gsf::read(gsfFile); }},
    };
    for (int round = 0; round < Rounds; ++round) {
        for (Job& job : jobs)
            job.once();
    }
    compare(jobs[0], jobs[1]);
    compare(jobs[0], jobs[2]);
    compare(jobs[3], jobs[4]);
    compare(jobs[5], jobs[6]);
    compare(jobs[5], jobs[7]);

    std::printf("peak of memory above the empty process: %.1f MB, of which one stream is %.1f MB "
                "and the source's copy as much\n",
                peak - base, FileSize / 1048576.0);
    return 0;
}
