#pragma once

#include "core/wizard/FocusOrder.h"

#include <QWidget>

namespace quillford {

/// The control that the Tab key reaches from the one that has the focus, forward or back: of all
/// enabled and visible controls of the form the next in the order of their numbers. Controls
/// without a number come last, in the order in which they were made; from the end the walk goes on
/// at the beginning. Null when nothing can be reached.
[[nodiscard]] QWidget* nextByTab(const QWidget& form, const FocusOrder& order, bool forward);

} // namespace quillford
