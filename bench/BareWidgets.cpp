#include "BareWidgets.h"

#include "base/Error.h"
#include "controls/FormCombo.h"
#include "controls/FramePanel.h"
#include "controls/LineField.h"
#include "controls/Picture.h"
#include "controls/TextField.h"
#include "controls/myImageButton.h"

#include <QLabel>

namespace quillford {

namespace {

QWidget* bareCombo(const FormCombo& original, QWidget* parent) {
    auto* combo = new FormCombo(parent);
    combo->setTyping(original.isEditable());
    for (int i = 0; i < original.count(); ++i)
        combo->addItem(original.itemText(i));
    return combo;
}

QWidget* barePicture(const Picture& original, QWidget* parent) {
    auto* picture = new Picture(parent);
    picture->setFile(original.file());
    return picture;
}

QWidget* bareLabel(const QLabel& original, QWidget* parent) {
    auto* label = new QLabel(original.text(), parent);
    label->setWordWrap(original.wordWrap());
    label->setFont(original.font());
    label->setPalette(original.palette());
    return label;
}

QWidget* bareButton(const myImageButton& original, QWidget* parent) {
    auto* button = new myImageButton(parent);
    button->setCaption(original.caption());
    button->setFilled(original.isFilled());
    return button;
}

QWidget* bareWidget(const QWidget& original, QWidget* parent) {
    if (const auto* combo = qobject_cast<const FormCombo*>(&original))
        return bareCombo(*combo, parent);
    if (const auto* picture = qobject_cast<const Picture*>(&original))
        return barePicture(*picture, parent);
    if (const auto* button = qobject_cast<const myImageButton*>(&original))
        return bareButton(*button, parent);
    if (qobject_cast<const LineField*>(&original))
        return new LineField(parent);
    if (qobject_cast<const TextField*>(&original))
        return new TextField(parent);
    if (qobject_cast<const FramePanel*>(&original))
        return new FramePanel(parent);
    if (const auto* label = qobject_cast<const QLabel*>(&original))
        return bareLabel(*label, parent);
    return nullptr;
}

/// The children that a form has placed; what a control has made for itself comes with the control.
void copyChildren(const QWidget& original, QWidget& copy) {
    for (const QWidget* child :
         original.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QWidget* made = bareWidget(*child, &copy);
        const bool isGround = !made && child->metaObject() == &QWidget::staticMetaObject;
        if (isGround)
            copyChildren(*child, *(made = new QWidget(&copy)));
        if (!made)
            throw Error(0, QString::fromUtf8(child->metaObject()->className()),
                        QStringLiteral("a bare copy"));
        made->setGeometry(child->geometry());
    }
}

} // namespace

std::unique_ptr<QWidget> bareCopy(const QWidget& original, QWidget& parent) {
    auto copy = std::make_unique<QWidget>(&parent);
    copy->setGeometry(original.geometry());
    copyChildren(original, *copy);
    return copy;
}

} // namespace quillford
