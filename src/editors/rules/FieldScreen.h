#pragma once

#include "core/rules/GuidanceRules.h"

namespace quillford {

/// The fields on screen, as the rules see them that follow a change. Every call names a field that
/// stands at the moment of the call. Nothing here fails.
class FieldScreen {
public:
    virtual ~FieldScreen() = default;

    /// Makes the control show the text of its field, whoever changed it. Called first of all.
    virtual void showText(FieldPlace place) = 0;

    /// Gives the control its white back colour.
    virtual void whiten(FieldPlace place) = 0;

    /// Binds the spell checker to the control: from now on this one shows its mistakes.
    virtual void SpellAttach(FieldPlace place) = 0;

    /// Enables or disables the control.
    virtual void enableField(FieldPlace place, bool on) = 0;

    /// Writes the sentence about a figure's view anew and puts the view behind it.
    virtual void showFigureSentence(int figure) = 0;
};

} // namespace quillford
