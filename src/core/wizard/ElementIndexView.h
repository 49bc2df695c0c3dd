#pragma once

namespace quillford {

/// The Index of Elements beside the sections. Nothing here fails.
class ElementIndexView {
public:
    virtual ~ElementIndexView() = default;

    /// Draws the index anew from the fields.
    virtual void RebuildElementIndex() = 0;

    /// Empties the drawing and moves its scroll bar to 0.
    virtual void clearIndex() = 0;

    /// Enables or disables the whole index, `picIndexContainer`.
    virtual void enableIndex(bool on) = 0;
};

} // namespace quillford
