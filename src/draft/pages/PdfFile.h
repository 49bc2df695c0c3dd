#pragma once

#include "platform/PictureLoader.h"
#include "platform/PrintJob.h"

#include <QByteArray>

namespace quillford {

/// A print as the bytes of a PDF file: Letter, the text as text, its fonts embedded. Needs an
/// application with fonts, but no display. Raises `Error` when the pages cannot be drawn.
[[nodiscard]] QByteArray pdfOf(const PrintJob& job, PictureLoader& pictures);

} // namespace quillford
