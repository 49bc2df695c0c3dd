#pragma once

#include "app/MainWindow.h"
#include "core/commands/ProgramStart.h"
#include "core/settings/FileAssociation.h"
#include "core/settings/Settings.h"
#include "platform/linux/DesktopOpener.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/HunspellEngine.h"
#include "platform/linux/LibreOffice.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/QtClock.h"
#include "platform/linux/QtPictureReader.h"
#include "platform/linux/QtTextMeasure.h"
#include "platform/linux/XdgFileTypes.h"
#include "platform/linux/desktop/QtPagePrinter.h"
#include "shell/dialogs/QtUserPrompts.h"

#include <memory>
#include <optional>

namespace quillford {

/// The program: the splash, the start routine, and the main form until it is closed. Everything is
/// made here and handed down. An application object stands before it is made and outlives it.
class Program final : private StartStage {
public:
    Program();
    ~Program() override;

    /// Runs the program with the arguments of the command line, without its own name, and returns
    /// its exit status.
    int run(const QStringList& arguments);

    /// The main form; null before the start routine has made it.
    [[nodiscard]] MainWindow* window() { return window_.get(); }

    /// Starts the program as `run` does, and returns without waiting for its end. False when it has
    /// ended already.
    [[nodiscard]] bool start(const QStringList& arguments);

private:
    void loadForm() override;

    void NewFile() override { window_->NewFile(); }

    void OpenFile(const QString& path) override { window_->OpenFile(path); }

    void showWelcomePage() override { window_->showWelcomePage(); }

    void showForm() override { window_->form().show(); }

    Project project_;
    mdlSystem system_;
    LinuxFolders folders_;
    FileSettingsStore store_;
    Settings settings_;
    QtClock clock_;
    QtPictureReader pictures_;
    QtTextMeasure measure_;
    HunspellEngine spelling_;
    LibreOffice word_;
    QtPagePrinter printer_;
    DesktopOpener opener_;
    XdgFileTypes fileTypes_;
    FileAssociation association_;
    QtUserPrompts prompts_;
    std::unique_ptr<MainWindow> window_;
};

} // namespace quillford
