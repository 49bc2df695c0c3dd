#include "editors/panels/SubElementPanel.h"

#include "controls/ControlArrays.h"
#include "core/rules/ReferenceNumerals.h"
#include "editors/panels/FrameCaption.h"
#include "editors/rules/ElementCaptions.h"
#include "ui_SubElementPanel.h"

namespace quillford {

SubElementPanel::SubElementPanel(int element, QWidget& view, BoundFields& bound) : QWidget(&view) {
    Ui::SubElementPanel parts;
    parts.setupUi(this);
    showFrameCaption(*parts.lblMainElementNums, mainElementCaption(element));
    parts.lblMainelemengReferenceNum->setText(referenceNumberCaption(element));
    parts.lblElementMain->setText(referenceLabel(element));
    parts.txtElementMain->setAccessibleName(mainElementCaption(element) + u' ' +
                                            referenceNumeral(element));
    QWidget& star = *parts.imgMainElementValidate;
    star.move(mainElementStarLeft(element), star.y());
    parts.lblSubelemengReferenceNum->setText(subElementsCaption(element));
    for (int part = 1; part <= SubElementCount; ++part)
        labelSubElement(element, part);
    nameRepeated(*this, element);
    bound.bindAll(*this);
}

void SubElementPanel::labelSubElement(int element, int part) {
    findChild<QLabel*>(QStringLiteral("lblElementSub%1").arg(part))
        ->setText(referenceLabel(element, part));
    findChild<QWidget*>(QStringLiteral("txtElementSub%1").arg(part))
        ->setAccessibleName(QStringLiteral("Sub-Element ") + referenceNumeral(element, part));
}

} // namespace quillford
