#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace quillford {

/// How much memory the process takes at its highest, beyond what it had when the object was made.
class PeakMemory {
public:
    PeakMemory() {
        // The kernel forgets the highest value that it has seen.
        QFile file(QStringLiteral("/proc/self/clear_refs"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                    file.write("5") == 1);
        before_ = highest();
    }

    [[nodiscard]] qint64 growthInBytes() const { return highest() - before_; }

private:
    static qint64 highest() {
        QFile file(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.sliced(6)
                           .chopped(3)
                           .replace(' ', QByteArray())
                           .replace('\t', QByteArray())
                           .toLongLong() *
                       1024;
        ADD_FAILURE() << "the kernel tells no highest value";
        return 0;
    }

    qint64 before_ = 0;
};

} // namespace quillford
