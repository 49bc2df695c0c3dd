#include "shell/WheelRouter.h"

#include "editors/rules/ScrollBarState.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QWheelEvent>

#include <cstdlib>

namespace quillford {

namespace {

constexpr int NotchAngle = 120;

/// A box of text scrolls itself as long as it can.
bool canScrollItself(const QWidget& under, int angle) {
    for (const QWidget* widget = &under; widget; widget = widget->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(widget);
        if (!area)
            continue;
        const QScrollBar& bar = *area->verticalScrollBar();
        return angle < 0 ? bar.value() < bar.maximum() : bar.value() > bar.minimum();
    }
    return false;
}

} // namespace

WheelRouter::WheelRouter(QWidget& form, QWidget& helpPane, Bars bars)
    : QObject(&form), form_(form), helpPane_(helpPane), bars_(std::move(bars)) {
    qApp->installEventFilter(this);
}

bool WheelRouter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &form_)
        return false;
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    const int angle = wheel.angleDelta().y();
    if (angle == 0 || helpHasFocus(wheel.globalPosition()) || canScrollItself(*widget, angle))
        return false;
    turn(angle);
    return true;
}

/// What counts is where the mouse is: a notch that the pane has no use for comes here once more, as
/// an event of the form.
bool WheelRouter::helpHasFocus(const QPointF& mouse) const {
    const QWidget* focus = QApplication::focusWidget();
    return helpPane_.rect().contains(helpPane_.mapFromGlobal(mouse).toPoint()) ||
           (focus && helpPane_.isAncestorOf(focus));
}

/// A touch pad turns in fractions of a notch; they are gathered until a whole one is there.
void WheelRouter::turn(int angle) {
    turned_ += angle;
    const int notches = turned_ / NotchAngle;
    turned_ -= notches * NotchAngle;
    QScrollBar* bar = bars_.index();
    if (!bar)
        bar = bars_.section();
    if (notches == 0 || !bar || !bar->isVisible() || !bar->isEnabled())
        return;
    ScrollBarState state{true, bar->value(), bar->maximum(), bar->pageStep()};
    const WheelNotch notch = notches < 0 ? WheelNotch::Down : WheelNotch::Up;
    for (int i = 0; i < std::abs(notches); ++i)
        state.value = valueAfterNotch(state, notch);
    bar->setValue(state.value);
}

} // namespace quillford
