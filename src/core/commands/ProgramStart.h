#pragma once

#include "core/commands/StartStage.h"
#include "core/settings/FileAssociation.h"
#include "core/settings/Settings.h"
#include "core/settings/mdlSystem.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"

#include <QStringList>

namespace quillford {

/// Decides by the command line how the program starts.
class ProgramStart {
public:
    /// The one argument with which an installer ties project files to the program.
    static constexpr QStringView AssociationArgument = u"SetFileAssociation";

    enum class Outcome { Ends, Runs };

    /// Owns none of its arguments; all outlive it.
    ProgramStart(mdlSystem& system, Settings& settings, Folders& folders,
                 FileAssociation& association, UserPrompts& prompts, StartStage& stage);

    /// Starts the program.
    ///
    /// All arguments together, joined by one blank, are one file's name. "SetFileAssociation" and
    /// nothing else ends the program without a window; the name of a file that does not exist ends
    /// it with a box. A file is opened as a project; without arguments the Welcome page is shown.
    ///
    /// @param arguments      those of the command line, without the program's own name
    /// @param wordInstalled  whether there is a word processor to export to
    [[nodiscard]] Outcome startProgram(const QStringList& arguments, bool wordInstalled);

private:
    void setGlobals(bool wordInstalled);
    Outcome startWithFile();
    Outcome startWithWelcomePage();

    mdlSystem& system_;
    Settings& settings_;
    Folders& folders_;
    FileAssociation& association_;
    UserPrompts& prompts_;
    StartStage& stage_;
};

} // namespace quillford
