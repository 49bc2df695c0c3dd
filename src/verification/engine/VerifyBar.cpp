#include "verification/engine/VerifyBar.h"

#include <algorithm>

namespace quillford {

namespace {

/// Hundredths of `whole` in `part`, halves rounded up, at most 100. Whole numbers, because a
/// quotient such as 3/40 lies a little below the half that it stands for.
int percentage(int part, int whole) {
    return std::min((200 * part + whole) / (2 * whole), 100);
}

} // namespace

VerifyBar::VerifyBar(VerifyProgress& display, int expectedCount)
    : display_(display), maximum_(std::max(expectedCount - 1, 1)) {}

void VerifyBar::start() {
    display_.setBarMaximum(maximum_);
    display_.setPercentText(QStringLiteral(" 0%"));
    display_.setBarValue(0);
}

void VerifyBar::step(int& counter) {
    if (maximum_ < counter)
        --counter;
    const int value = maximum_ == 1 ? 1 : counter;
    display_.setBarValue(value);
    display_.setPercentText(QString::number(percentage(value, maximum_)) + u'%');
}

} // namespace quillford
