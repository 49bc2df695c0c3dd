#pragma once

namespace quillford {

/// Leads the user to the required fields that are empty. Which fields those are is told in
/// core/rules/GuidanceRules.h. Nothing here fails.
class Guidance {
public:
    virtual ~Guidance() = default;

    /// Tints the required fields of the current tab that are empty. The argument is ignored: a call
    /// before a switch tints the tab that is left.
    virtual void TextHighLight(int tab) = 0;

    /// Puts the focus into the first required field of the current tab that is empty. The argument
    /// is ignored.
    virtual void TextgotFocus(int tab) = 0;

    /// Gives every text box and every combo of all tabs its white back colour.
    virtual void whitenAll() = 0;
};

} // namespace quillford
