#pragma once

#include "core/wizard/FocusOrder.h"
#include "core/wizard/PageStack.h"

namespace quillford {

/// Closes the order of the Tab key on itself within each section: when the focus reaches the
/// beginning or the end of a section, a control there gets another number.
class TabWrap {
public:
    /// Owns none of its arguments; all outlive it.
    TabWrap(const ProjectFields& fields, const PageStack& pages, FocusOrder& order);

    /// The focus has reached a field, by whatever means. Does nothing for one that no rule names.
    void focusReached(FieldPlace place);

private:
    [[nodiscard]] int lastPanel(FieldId field) const;

    const ProjectFields& fields_;
    const PageStack& pages_;
    FocusOrder& order_;
};

} // namespace quillford
