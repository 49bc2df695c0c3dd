#include "editors/panels/MainElementPanel.h"

#include "controls/ControlArrays.h"
#include "editors/panels/FrameCaption.h"
#include "editors/rules/ElementCaptions.h"
#include "ui_MainElementPanel.h"

namespace quillford {

MainElementPanel::MainElementPanel(int element, QWidget& view, BoundFields& bound)
    : QWidget(&view) {
    Ui::MainElementPanel parts;
    parts.setupUi(this);
    showFrameCaption(*parts.lblMainElementName, mainElementCaption(element));
    parts.txtElementName->setAccessibleName(mainElementCaption(element) + QStringLiteral(": ") +
                                            parts.lblElementName->text());
    QLabel& describe = *parts.lblElementDes;
    describe.setText(elementDescriptionCaption(element));
    describe.resize(describe.sizeHint().width(), describe.height());
    parts.txtElementDes->setAccessibleName(describe.text());
    QWidget& star = *parts.imgElementDesValidate;
    star.move(elementDescriptionStarLeft(describe.x(), describe.width()), star.y());
    nameRepeated(*this, element);
    bound.bindAll(*this);
}

} // namespace quillford
