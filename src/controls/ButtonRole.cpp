#include "controls/ButtonRole.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillford {

namespace {

constexpr char ButtonProperty[] = "quillfordButton";

class ButtonInterface final : public QAccessibleWidget {
public:
    explicit ButtonInterface(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button) {}

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction() && widget()->isEnabled())
            QMetaObject::invokeMethod(widget(), "click");
        else
            QAccessibleWidget::doAction(action);
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name && widget()->accessibleName().isEmpty())
            return widget()->property("text").toString();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* buttonInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget && widget->property(ButtonProperty).toBool() ? new ButtonInterface(widget)
                                                               : nullptr;
}

} // namespace

void giveButtonRole(QWidget& widget) {
    static const bool installed = [] {
        QAccessible::installFactory(buttonInterface);
        return true;
    }();
    Q_UNUSED(installed)
    widget.setProperty(ButtonProperty, true);
}

bool isClickKey(const QKeyEvent& event) {
    const bool clicks = event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
                        event.key() == Qt::Key_Enter;
    return clicks && !event.isAutoRepeat();
}

} // namespace quillford
