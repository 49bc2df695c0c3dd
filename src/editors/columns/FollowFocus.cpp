#include "editors/columns/FollowFocus.h"

namespace quillford {

void followTab(BoundFields& bound, PanelColumn& column, FieldGroup group) {
    QObject::connect(&bound, &BoundFields::focusReached, &column,
                     [&bound, &column, group](const FieldPlace& place, bool byTab) {
                         if (byTab && fieldRow(place.field).group == group)
                             column.FollowTab(*bound.control(place), place.index);
                     });
}

} // namespace quillford
