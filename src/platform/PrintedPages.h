#pragma once

#include <QList>

class QPagedPaintDevice;

namespace quillford {

/// A document that is laid out on pages and can be drawn onto any paged device.
class PrintedPages {
public:
    virtual ~PrintedPages() = default;

    /// How many pages there are; at least one.
    [[nodiscard]] virtual int pageCount() const = 0;

    /// Draws the pages of these numbers, from 1, one after the other, each on a sheet of its own.
    /// Measures from the top left corner of the paper, so that the device has to count its margins
    /// in. Raises `Error` when the device takes no pages; some may be drawn then.
    virtual void printOn(QPagedPaintDevice& paper, const QList<int>& pages) = 0;
};

} // namespace quillford
