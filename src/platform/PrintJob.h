#pragma once

#include <QString>

namespace quillford {

/// What is printed.
struct PrintJob {
    QString html;   ///< the page
    QString folder; ///< where the pictures of a page stand that names them by mere names, or empty
    QString title;  ///< how queues and readers call the print
    QString header; ///< the line at the top of each page and the one at its foot; "&p" is the page,
    QString footer; ///< "&P" the number of pages, and "&b" begins what is centred, then right
};

} // namespace quillford
