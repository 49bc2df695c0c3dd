#pragma once

#include <QString>
#include <QStringView>

/// Which files may be attached as figures.
namespace quillford {

/// The ending of a file's name, from its last "." on and in lower case; empty without a ".".
[[nodiscard]] QString figureExtension(QStringView fileTitle);

/// True for ".jpg", ".bmp", ".png" and ".gif".
[[nodiscard]] bool isFigureExtension(QStringView extension);

/// True when the file has at most 2097152 bytes, twice of what the message about it says. A file
/// that is missing has none.
[[nodiscard]] bool isFigureFileSizeOk(const QString& path);

} // namespace quillford
