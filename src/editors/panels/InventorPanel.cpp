#include "editors/panels/InventorPanel.h"

#include "controls/ControlArrays.h"
#include "core/wizard/FocusOrder.h"
#include "draft/language/Ordinals.h"
#include "editors/panels/FrameCaption.h"
#include "ui_InventorPanel.h"

#include <memory>

namespace quillford {

namespace {

constexpr int ContactBoxLine = 24; // how much higher the first inventor's panel is

void nameFieldsForAssistance(const QWidget& panel, int inventor, const QString& caption) {
    for (const FieldRow& row : fieldTable())
        if (row.group == FieldGroup::Inventors)
            panel.findChild<QWidget*>(controlName(row.name, inventor))
                ->setAccessibleName(caption + QStringLiteral(": ") + row.label.toString());
}

} // namespace

InventorPanel::InventorPanel(int inventor, QWidget& view, BoundFields& bound) : QWidget(&view) {
    Ui::InventorPanel parts;
    parts.setupUi(this);
    const QString caption = getOrdinalWord(inventor) + QStringLiteral(" Inventor");
    showFrameCaption(*parts.lblInventor, caption);
    const QString boxName = parts.chkSameAsContact->objectName();
    nameRepeated(*this, inventor);
    if (inventor == 0) {
        parts.chkSameAsContact->setObjectName(boxName);
    } else {
        closeGapOf(*parts.chkSameAsContact);
        parts.shpInventors->resize(parts.shpInventors->width(),
                                   parts.shpInventors->height() - ContactBoxLine);
    }
    nameFieldsForAssistance(*this, inventor, caption);
    bound.bindAll(*this);
}

void InventorPanel::setShown(bool on) {
    setVisible(on);
    setEnabled(on);
}

/// Destroys the box, and moves all that stands below it up by its line.
void InventorPanel::closeGapOf(QWidget& box) {
    const int top = box.y();
    delete &box;
    for (QWidget* below : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (below->y() > top)
            below->move(below->x(), below->y() - ContactBoxLine);
    resize(width(), height() - ContactBoxLine);
}

} // namespace quillford
