#pragma once

#include "verification/engine/VerifyProgress.h"

namespace quillford {

/// The arithmetic of the progress bar. The bar is as long as there are filled cells, while steps
/// are counted for every cell, so that it may be full long before the last cell is looked at; it
/// stays full then.
class VerifyBar {
public:
    /// @param display        is not owned and outlives the bar
    /// @param expectedCount  how many cells are filled; the bar ends at one less, and never below 1
    VerifyBar(VerifyProgress& display, int expectedCount);

    [[nodiscard]] int maximum() const noexcept { return maximum_; }

    /// Shows the empty bar of a run that begins.
    void start();

    /// Shows the progress of step `counter`. A counter beyond the bar's end is first taken back by
    /// one.
    void step(int& counter);

private:
    VerifyProgress& display_;
    int maximum_;
};

} // namespace quillford
