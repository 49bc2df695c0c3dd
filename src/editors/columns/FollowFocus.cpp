#include "editors/columns/FollowFocus.h"

namespace quillford {

void followTab(BoundFields& bound, PanelColumn& column) {
    QObject::connect(&bound, &BoundFields::focusReached, &column,
                     [&bound, &column](const FieldPlace& place, bool byTab) {
                         const QWidget& control = *bound.control(place);
                         if (byTab &&
                             columnFollowing(place.field) == column.arithmetic().column() &&
                             control.parentWidget() == &column.panel(place.index))
                             column.FollowTab(control, place.index);
                     });
}

} // namespace quillford
