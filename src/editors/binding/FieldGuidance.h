#pragma once

#include "core/fields/ProjectState.h"
#include "core/wizard/Guidance.h"
#include "editors/binding/BoundFields.h"

#include <functional>

namespace quillford {

/// Tints the required fields that are empty and leads the cursor to the first of them.
class FieldGuidance final : public Guidance {
public:
    /// Brings a panel of a column into view: `ScrollPanelTo` with position 0.
    using Scroll = std::function<void(const PanelScroll&)>;

    /// Owns none of its arguments; all outlive it.
    FieldGuidance(const ProjectFields& fields, const ProjectState& state, BoundFields& bound,
                  Scroll scroll);

    void TextHighLight(int tab) override;
    void TextgotFocus(int tab) override;

    void whitenAll() override { bound_.whitenAll(); }

private:
    const ProjectFields& fields_;
    const ProjectState& state_;
    BoundFields& bound_;
    Scroll scroll_;
};

} // namespace quillford
