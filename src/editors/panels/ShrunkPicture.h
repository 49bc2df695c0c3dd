#pragma once

#include <QImage>

namespace quillford {

/// A picture stretched to `size` in device pixels, with fine lines kept as far as they can be; null
/// for a null picture or an empty size. Beside the picture itself it takes a few megabytes however
/// large the picture is.
[[nodiscard]] QImage shrunkPicture(const QImage& picture, QSize size);

} // namespace quillford
