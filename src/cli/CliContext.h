#pragma once

#include "platform/Folders.h"
#include "platform/PictureReader.h"
#include "platform/PrintJob.h"
#include "platform/WordProcessor.h"

#include <QByteArray>
#include <QIODevice>

#include <functional>

namespace quillford {

/// What a command needs of the world. Nothing is owned.
struct CliContext {
    QIODevice& output; ///< standard output, open for writing
    QIODevice& errors; ///< standard error
    Folders& folders;
    PictureReader& pictures;
    WordProcessor& word;
    /// Prints into the bytes of a PDF file; raises `Error` when it cannot.
    std::function<QByteArray(const PrintJob&)> printPdf = {};

    /// Writes a text in UTF-8 to standard output. Raises `Error` when not all of it is taken.
    void print(const QByteArray& text);
};

} // namespace quillford
