#pragma once

#include "platform/PrintJob.h"

#include <QList>
#include <QString>

#include <functional>

namespace quillford {

/// The printers of this machine, and the printing of pages.
class PagePrinter {
public:
    struct Printer {
        QString name;
        bool isPortrait = true; ///< how its pages stand unless it is told otherwise
    };

    virtual ~PagePrinter() = default;

    [[nodiscard]] virtual QList<Printer> printers() = 0;

    /// Makes a printer the one that the next print dialogs begin with.
    virtual void choosePrinter(const QString& name) = 0;

    /// Shows the print dialog, prints as the user chooses there, and calls `ended` once when the
    /// print has ended, whether it went through, was cancelled or failed. Raises `Error` behind
    /// that call when the printer takes no pages.
    virtual void print(const PrintJob& job, const std::function<void()>& ended) = 0;
};

} // namespace quillford
