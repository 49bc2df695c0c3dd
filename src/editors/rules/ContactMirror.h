#pragma once

#include "core/fields/ProjectFields.h"
#include "core/fields/ProjectState.h"
#include "core/wizard/FocusOrder.h"
#include "editors/rules/FieldScreen.h"
#include "platform/UserPrompts.h"

namespace quillford {

/// Makes the first inventor a live copy of the contact of Section 1, while `chkSameAsContact` is
/// checked.
class ContactMirror {
public:
    /// Owns none of its arguments; all outlive it.
    ContactMirror(ProjectFields& fields, const ProjectState& state, UserPrompts& prompts,
                  FieldScreen& screen, FocusOrder& order);

    /// Passes the text of a field of the contact on, as it stands. Does nothing for other fields,
    /// while the box is not checked, and while fields are loaded or cleared for a new project.
    void mirror(FieldId field);

    /// The box has been checked or cleared, by whomever. Checking asks first, but for a load, which
    /// changes nothing else; clearing sets the first inventor's fields free and keeps their text.
    void chkSameAsContact_Click();

    /// The state of the contact always passes to the first inventor when it loses the focus, also
    /// while the box is not checked. While a command is at work it is not the user who leaves.
    void cboStateStep1_LostFocus();

private:
    [[nodiscard]] bool isChecked() const;

    [[nodiscard]] bool PromptSameAsContact() const noexcept { return !state_.isLoading; }

    void release();
    void useContact();
    [[nodiscard]] QString textToUse(const Field& contact) const;
    void enableInventor(bool on);
    void passOn(FieldId partner, const QString& text);

    ProjectFields& fields_;
    const ProjectState& state_;
    UserPrompts& prompts_;
    FieldScreen& screen_;
    FocusOrder& order_;
};

} // namespace quillford
