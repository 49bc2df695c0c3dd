#pragma once

#include "controls/Theme.h"

#include <QApplication>

namespace quillford {

/// Gives the test program the look of the program, in which places and heights are measured. A
/// fixture has it as its first member.
class Themed {
public:
    Themed() {
        static const bool applied = [] {
            theme::apply(*qApp);
            return true;
        }();
        Q_UNUSED(applied)
    }
};

} // namespace quillford
