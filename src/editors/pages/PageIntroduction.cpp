#include "editors/pages/PageIntroduction.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "ui_PageIntroduction.h"

namespace quillford {

PageIntroduction::PageIntroduction(QWidget& panel, BoundFields& bound) : QObject(&panel) {
    fillPanel<Ui::PageIntroduction>(panel);
    theme::makeHeadings(panel, {u"lblIntroduction", u"lblContactForApplication"});
    bound.bindAll(panel);
}

} // namespace quillford
