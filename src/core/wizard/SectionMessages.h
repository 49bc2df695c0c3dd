#pragma once

#include "core/settings/Settings.h"
#include "core/settings/mdlSystem.h"
#include "platform/UserPrompts.h"

namespace quillford {

/// What the user is told about sections that are not complete, and about drawings. Two of the
/// messages can be switched off for good in their own window, and are from that moment on, here and
/// in the settings, however the window is answered.
class SectionMessages {
public:
    /// Owns none of its arguments; all outlive it.
    SectionMessages(mdlSystem& system, Settings& settings, UserPrompts& prompts);

    /// Warns that the section is not complete, unless the warning is switched off. False when the
    /// user wants to stay.
    [[nodiscard]] bool mayLeaveIncompleteSection();

    /// Tells how drawings are to be prepared, unless that is switched off.
    void adviseAboutDrawings();

    void tellNotReadyToFile();

private:
    mdlSystem& system_;
    Settings& settings_;
    UserPrompts& prompts_;
};

} // namespace quillford
