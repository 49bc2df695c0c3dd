#include "editors/pages/PageOperation.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "ui_PageOperation.h"

namespace quillford {

PageOperation::PageOperation(QWidget& panel, BoundFields& bound) : QObject(&panel) {
    fillPanel<Ui::PageOperation>(panel);
    theme::makeHeadings(panel, {u"lblOperation"});
    bound.bindAll(panel);
}

} // namespace quillford
