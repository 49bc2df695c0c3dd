#pragma once

#include <QString>

namespace quillford {

/// Reads an HTML file through the template engine and deletes it. In the text, the file's name
/// without its endings becomes the whole path without them, so that what is named beside the file is
/// found. Raises `Error` when the file cannot be read.
[[nodiscard]] QString ExportToPrint(const QString& path);

} // namespace quillford
