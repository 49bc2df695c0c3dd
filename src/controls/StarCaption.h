#pragma once

#include <QLabel>

namespace quillford {

/// Of a wrapping label that has its text and its size, leaves the last character alone visible, in
/// its place: a star behind a caption, which a second label draws above it. The caption would
/// otherwise have a red rim around its letters.
void showStarAlone(QLabel& label);

} // namespace quillford
