#pragma once

#include "app/DraftParts.h"
#include "app/ProjectFiles.h"
#include "controls/SpellBinder.h"
#include "core/commands/CommandGate.h"
#include "editors/binding/FieldGuidance.h"
#include "editors/columns/CountTimers.h"
#include "editors/index/ElementIndexPanel.h"
#include "editors/pages/SectionColumns.h"
#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/TabWrap.h"
#include "persistence/session/AutoSaveTimer.h"
#include "shell/FileMenuEntries.h"
#include "shell/FormLooks.h"
#include "shell/FormScreen.h"
#include "shell/PanelStack.h"
#include "shell/WheelRouter.h"
#include "shell/frmMain1.h"

namespace quillford {

/// The main form with all that hangs on it, made and joined in the order in which the parts need
/// each other. Nothing is shown before the start routine asks for it.
class MainWindow {
public:
    /// Owns none of its arguments; all outlive it.
    MainWindow(Project& project, mdlSystem& system, Settings& settings, UserPrompts& prompts,
               const Ports& ports);
    ~MainWindow();

    [[nodiscard]] frmMain1& form() { return form_; }

    void NewFile() { files_.newProject().NewFile(); }

    void OpenFile(const QString& path) { files_.store().OpenFile(path); }

    void showWelcomePage() { navigator_.showWelcomePage(); }

private:
    template <typename Sender, typename... Index, typename Command>
    void starts(Sender& sender, void (Sender::*signal)(Index...), QStringView name,
                const Command& command);
    [[nodiscard]] bool mayClose();
    void joinFields();
    void joinNavigation();
    void joinMenus();
    void joinDraft();
    void joinWheel();
    void numberSingleFields();
    void joinKeys();
    void joinRecentProjects();

    Project& project_;
    mdlSystem& system_;
    FocusOrder focusOrder_;
    frmMain1 form_;
    CommandGate gate_;
    FileMenu fileMenu_;
    FileMenuEntries* fileEntries_; // owned by the menu
    QTimer* tmrAutoSave_;          // owned by the form
    AutoSaveTimer autoSaveSwitch_;
    BoundFields bound_;
    SpellBinder spelling_;
    PanelStack pages_;
    FormScreen projectScreen_;
    FieldGuidance guidance_;
    ElementIndexPanel* index_; // owned by the form
    SectionColumns columns_;
    WizardScreen screen_;
    SectionRules rules_;
    SectionMessages messages_;
    TabEntry entry_;
    WizardNavigator navigator_;
    ContactMirror mirror_;
    FieldChangeSteps steps_;
    TabWrap wrap_;
    CountTimers timers_;
    ProjectFiles files_;
    DraftParts draft_;
};

} // namespace quillford
