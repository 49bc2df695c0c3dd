#include "shell/FormScreen.h"

namespace quillford {

void FormScreen::setHourglass(bool on) {
    if (on)
        form_.setCursor(Qt::WaitCursor);
    else
        form_.unsetCursor();
}

} // namespace quillford
