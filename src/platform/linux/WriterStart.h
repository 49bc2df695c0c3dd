#pragma once

#include "platform/WordApplication.h"

#include <QString>

#include <chrono>

namespace quillford {

/// What the module that speaks to LibreOffice is told at its start.
struct WriterStart {
    QString programFolder; ///< where soffice.bin lies
    QString workFolder;    ///< a folder for the private folder of the run
    /// How long LibreOffice may take for its start and for any single answer.
    std::chrono::milliseconds patience;
};

/// The module's one function, under the name `StartWriterName`. Raises `Error` when LibreOffice
/// does not start; the application belongs to the caller.
using StartWriter = WordApplication*(const WriterStart& start);

inline constexpr const char* StartWriterName = "quillfordStartWriter";

} // namespace quillford
