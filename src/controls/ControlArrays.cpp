#include "controls/ControlArrays.h"

#include <QList>
#include <QRegularExpression>

namespace quillford {

namespace {

template <typename Rename>
void renameAll(QWidget& root, Rename rename) {
    QList<QWidget*> widgets = root.findChildren<QWidget*>();
    widgets.append(&root);
    for (QWidget* widget : widgets)
        if (!widget->objectName().isEmpty() &&
            !widget->objectName().startsWith(QStringLiteral("qt_")))
            widget->setObjectName(rename(widget->objectName()));
}

} // namespace

void nameControlArrays(QWidget& form) {
    static const QRegularExpression member(QStringLiteral("^(.+)_(\\d+)$"));
    renameAll(form, [](QString name) { return name.replace(member, QStringLiteral("\\1(\\2)")); });
}

void nameRepeated(QWidget& panel, int index) {
    renameAll(panel, [index](const QString& name) {
        return QStringLiteral("%1(%2)").arg(name).arg(index);
    });
}

} // namespace quillford
