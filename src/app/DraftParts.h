#pragma once

#include "app/ProjectFiles.h"
#include "draft/commands/DraftCommands.h"
#include "draft/commands/DraftPreview.h"
#include "draft/commands/PrintCommands.h"
#include "shell/FinalDraftPage.h"
#include "verification/dialogs/VerifyDialogs.h"

namespace quillford {

/// The Final Draft in the window: its page, the check before an export, and the commands that
/// export and print, made and joined.
class DraftParts {
public:
    /// What the draft shares with the wizard. It owns nothing.
    struct Wizard {
        QWidget& form;
        QWidget& panel; ///< `picContainer(8)`
        SectionRules& rules;
        WizardNavigator& navigator;
        WizardScreen& screen;
        SaveStateLine& saveState;
    };

    /// Owns none of its arguments; all outlive it.
    DraftParts(Project& project, mdlSystem& system, Settings& settings, UserPrompts& prompts,
               const Wizard& wizard, ProjectFiles& files, const Ports& ports);

    [[nodiscard]] FinalDraftPage& page() { return page_; }

    [[nodiscard]] DraftCommands& commands() { return commands_; }

    [[nodiscard]] PrintCommands& printing() { return printing_; }

private:
    void printReport(const MissingLists& lists);

    UserPrompts& prompts_;
    Folders& folders_;
    VerificationState verification_;
    PageSetup pageSetup_;
    FinalDraftEntry entry_;
    FinalDraftPage page_;
    DraftPreview preview_;
    PrintCommands printing_;
    VerifyDialogs check_;
    DraftCommands commands_;
};

} // namespace quillford
