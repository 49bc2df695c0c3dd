#pragma once

#include "base/Error.h"
#include "platform/PagePrinter.h"

namespace quillford {

/// A machine with the printers that the test gives it. What is printed is kept, and a print ends
/// when the test says so, or at once.
class FakePagePrinter final : public PagePrinter {
public:
    QList<Printer> machines{{QStringLiteral("laser"), true}};
    QString chosen;
    QList<PrintJob> jobs;
    bool endsAtOnce = true;
    bool fails = false;
    std::function<void()> end;

    QList<Printer> printers() override { return machines; }

    void choosePrinter(const QString& name) override { chosen = name; }

    void print(const PrintJob& job, const std::function<void()>& ended) override {
        jobs.append(job);
        end = ended;
        if (endsAtOnce)
            ended();
        if (fails)
            throw Error(57, QStringLiteral("The pages cannot be printed."));
    }
};

} // namespace quillford
