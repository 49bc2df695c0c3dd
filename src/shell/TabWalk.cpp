#include "shell/TabWalk.h"

#include <QApplication>

#include <algorithm>
#include <limits>
#include <tuple>

namespace quillford {

namespace {

bool takesTab(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible() &&
           !widget.focusProxy();
}

/// What the ring is sorted by: the number, and for controls without one their place in the form.
std::tuple<int, int, int> rankOf(const QWidget& widget, const QWidget& form,
                                 const FocusOrder& order) {
    const QPoint place = widget.mapTo(&form, QPoint(0, 0));
    const int number = order.hasNumber(widget.objectName()) ? order.tabIndex(widget.objectName())
                                                            : std::numeric_limits<int>::max();
    return {number, place.y(), place.x()};
}

} // namespace

QWidget* nextByTab(const QWidget& form, const FocusOrder& order, bool forward) {
    QList<QWidget*> ring;
    for (QWidget* widget : form.findChildren<QWidget*>())
        if (takesTab(*widget))
            ring.append(widget);
    if (ring.isEmpty())
        return nullptr;
    std::stable_sort(ring.begin(), ring.end(), [&](const QWidget* left, const QWidget* right) {
        return rankOf(*left, form, order) < rankOf(*right, form, order);
    });
    const qsizetype here = ring.indexOf(QApplication::focusWidget());
    if (here < 0)
        return forward ? ring.first() : ring.last();
    const qsizetype size = ring.size();
    return ring[(here + (forward ? 1 : size - 1)) % size];
}

} // namespace quillford
