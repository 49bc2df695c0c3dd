#pragma once

#include <QSize>

namespace quillford {

/// The zoom at which the program is shown: of 1, 1.25, 1.5, 2 and 2.5 the largest at which the main
/// form takes at most four fifths of the free height and width of the screen; 1 where none fits.
///
/// @param freeArea  the part of the screen that panels leave free, in its own pixels
[[nodiscard]] double zoomFor(const QSize& freeArea);

/// Lets the toolkit scale every window by the zoom that fits the screen. A scale that the user has
/// set stays, and so does that of a platform without a screen to read. Call it before the
/// application object is made; `argv` must outlive that.
class ZoomScope {
public:
    ZoomScope(int argc, char** argv);

    /// Takes the toolkit's variable out of the environment again, so that no program that is
    /// started from here inherits it. Call it once the application object stands.
    void leave() const;

private:
    bool set_ = false;
};

} // namespace quillford
