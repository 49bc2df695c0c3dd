#pragma once

#include "core/fields/Project.h"
#include "core/rules/TabLooks.h"
#include "core/settings/mdlSystem.h"
#include "draft/commands/DraftPreview.h"
#include "draft/commands/PageSetup.h"
#include "platform/Clock.h"
#include "platform/Folders.h"
#include "platform/PagePrinter.h"
#include "platform/UserPrompts.h"

#include <QString>

namespace quillford {

/// The commands that print. The header and the footer of the user's own settings are changed for a
/// print and put back when it has ended. A print that fails is told in a box.
class PrintCommands {
public:
    /// What the commands work with. Nothing is owned; all outlives them.
    struct Parts {
        Project& project;
        const mdlSystem& system;
        DraftPreview& preview;
        TabLooks& looks;
        PageSetup& pageSetup;
        PagePrinter& printer;
        Folders& folders;
        UserPrompts& prompts;
        Clock& clock;
    };

    explicit PrintCommands(const Parts& parts) : parts_(parts) {}

    /// Prints the preview as it stands.
    void imgPrintFile();

    /// The same from any tab: where the preview is not on screen it is built before. Nothing is
    /// printed when that fails.
    void mnuFilePrint();

    /// Prints the Index of Elements, where there is a printer.
    void imgPrint();

    /// Prints a page of the help, where there is a printer, without a header or a footer.
    void imgHelpPrint(PrintJob page);

    /// Prints the error report of the verification. The user's header and footer are not kept for
    /// it: those that an earlier print kept are put back, or empty ones.
    void imgReportPrint(const QString& html);

private:
    [[nodiscard]] bool choosePrinter();
    [[nodiscard]] PrintJob job(const QString& html) const;
    void print(PrintJob job);

    Parts parts_;
};

} // namespace quillford
