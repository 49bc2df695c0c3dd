#pragma once

#include "draft/pages/PageCuts.h"
#include "platform/PictureLoader.h"
#include "platform/PrintJob.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <memory>

namespace quillford {

/// The text of a print, laid out in one long column that is as wide as the text on paper. Lengths
/// are in steps of 1/288 inch: the toolkit rounds type to whole steps, and every size of type that
/// the pages use is a whole number of these.
class PaperText {
public:
    static constexpr int StepsPerInch = 288;
    static constexpr double Width = 6.5 * StepsPerInch;

    /// Lays the page of the job out; `setPage` tells how. Where the program has not composed it,
    /// its pictures are looked for in the job's folder.
    PaperText(const PrintJob& job, PictureLoader& pictures);
    ~PaperText();

    /// The lines, each with the space that belongs to it, from top to bottom.
    [[nodiscard]] QList<Band> bands() const;

    /// Draws a part of the column in the painter's units, and nothing above or below it. What is
    /// wider than the column goes into the margins, but no further than `margin`.
    void draw(QPainter& painter, const PageCut& cut, double margin) const;

private:
    double drawRestOfParagraph(QPainter& painter, const PageCut& cut) const;
    [[nodiscard]] double endOfBlocks(const PageCut& cut) const;

    QImage device_; ///< tells the layout how many steps make an inch
    std::unique_ptr<QTextDocument> document_;
};

} // namespace quillford
