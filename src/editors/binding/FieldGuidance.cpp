#include "editors/binding/FieldGuidance.h"

namespace quillford {

FieldGuidance::FieldGuidance(const ProjectFields& fields, const ProjectState& state,
                             BoundFields& bound, Scroll scroll)
    : fields_(fields), state_(state), bound_(bound), scroll_(std::move(scroll)) {}

void FieldGuidance::TextHighLight(int) {
    for (const FieldPlace& place : fieldsToTint(fields_, state_.currentTab))
        bound_.setTint(place, true);
}

void FieldGuidance::TextgotFocus(int) {
    const auto move = firstFieldToEnter(fields_, state_.currentTab);
    if (!move)
        return;
    if (move->scroll)
        scroll_(*move->scroll);
    QWidget* control = move->focus ? bound_.control(*move->focus) : nullptr;
    if (control)
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace quillford
