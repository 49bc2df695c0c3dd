#pragma once

namespace quillford {

/// The columns of panels in Sections 2 to 7. The numbers are the indexes of their scroll bars,
/// `vscroll(index)`.
enum class EditorColumn { Inventors, Objects, Figures, MainElements, SubElements, Descriptions };

/// The height of the view in which a column stands, in logical pixels.
[[nodiscard]] constexpr int viewHeight(EditorColumn column) {
    constexpr int Heights[] = {430, 324, 344, 278, 376, 430};
    return Heights[static_cast<int>(column)];
}

} // namespace quillford
