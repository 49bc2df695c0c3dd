#pragma once

#include "core/fields/FieldObserver.h"
#include "core/wizard/ElementIndexView.h"
#include "core/wizard/TitleLine.h"
#include "editors/rules/ContactMirror.h"
#include "platform/TextMeasure.h"

namespace quillford {

/// What every change of a field sets off, in this order: it is shown, its partner takes the text,
/// its tint goes when there is text, the spell checker is bound to it from its second word on, and
/// then comes what this field alone needs. A text that is written by the program, a mirror or a
/// load, goes through the same steps.
class FieldChangeSteps final : public FieldObserver {
public:
    /// Owns none of its arguments; all outlive it. Whoever makes it names it to the fields as their
    /// observer.
    FieldChangeSteps(ProjectFields& fields, const ProjectState& state, ContactMirror& mirror,
                     FieldScreen& screen, TitleLine& title, ElementIndexView& index,
                     const TextMeasure& measure);

    /// While fields are cleared for a new project they are shown, a view with its sentence,
    /// and nothing else follows. While a project is loaded no field changes but the one that is
    /// read.
    void fieldChanged(FieldId field, int index) override;

    /// A row of a list was chosen, also the one that stood already. Comes after the change, if the
    /// text has changed. A state follows a choice where others follow every change.
    void clicked(FieldPlace place);

    /// The focus has left a field, or the control of one that is gone already.
    void focusLost(FieldPlace place);

private:
    void mirror(FieldPlace place);
    void bindName(FieldPlace place);
    void whiten(FieldPlace place);
    void spell(FieldPlace place);
    void extra(FieldPlace place);
    void showSentence(FieldPlace place);

    ProjectFields& fields_;
    const ProjectState& state_;
    ContactMirror& contact_;
    FieldScreen& screen_;
    TitleLine& title_;
    ElementIndexView& index_;
    const TextMeasure& measure_;
};

/// True when the text, without the blanks before it, holds a blank: a single word is not checked.
[[nodiscard]] bool isWorthSpelling(QStringView text) noexcept;

} // namespace quillford
