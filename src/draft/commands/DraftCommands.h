#pragma once

#include "base/Error.h"
#include "core/commands/SaveDialog.h"
#include "core/fields/Project.h"
#include "core/settings/mdlSystem.h"
#include "core/wizard/SaveStateLine.h"
#include "core/wizard/WizardNavigator.h"
#include "core/wizard/WizardScreen.h"
#include "draft/commands/ExportCheck.h"
#include "draft/commands/ExportFormat.h"
#include "platform/Clock.h"
#include "platform/DocumentOpener.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"
#include "platform/WordProcessor.h"

#include <optional>

namespace quillford {

/// The commands that make files of the Final Draft. What fails makes no file and opens none; only
/// the line of the save state tells why. No second command may begin while one waits.
class DraftCommands {
public:
    /// What the commands work with. Nothing is owned; all outlives them.
    struct Parts {
        Project& project;
        const mdlSystem& system;
        ExportFormat& exportFormat; ///< shared with the check
        ExportCheck& check;
        WizardNavigator& navigator;
        WizardScreen& screen;
        SaveStateLine& saveState;
        SaveDialog& saveDialog;
        WordProcessor& word;
        DocumentOpener& opener;
        Folders& folders;
        UserPrompts& prompts;
        Clock& clock;
    };

    explicit DraftCommands(const Parts& parts) : parts_(parts) {}

    /// The buttons below the preview: 1 exports to Word, 2 to HTML.
    void imgCreateToFile(int index);

    void mnuFileExportToHTML();
    void mnuFileExportToWord();

    /// Lets the user choose the format in the message window. No menu and no button leads here.
    void exportToFile();

    /// Asks for a name and makes the file, without the check, and opens it.
    void CreateToHtml();

    /// The same; a document that is open in the word processor is not written.
    void CreateToWord();

private:
    void choose(ExportFormat format);
    void afterCheck(const ExportCheck::Outcome& outcome);
    void createFile();
    void finish(const QString& path, const std::optional<Error>& failure);

    Parts parts_;
    QString told_;       ///< by the line, of the last export that failed
    QString toldBefore_; ///< by the line, when an export failed first
};

} // namespace quillford
