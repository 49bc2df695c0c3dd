#include "core/commands/ProgramStart.h"

#include "core/settings/SettingsNames.h"

#include <QFileInfo>

namespace quillford {

ProgramStart::ProgramStart(mdlSystem& system, Settings& settings, Folders& folders,
                           FileAssociation& association, UserPrompts& prompts, StartStage& stage)
    : system_(system),
      settings_(settings),
      folders_(folders),
      association_(association),
      prompts_(prompts),
      stage_(stage) {}

ProgramStart::Outcome ProgramStart::startProgram(const QStringList& arguments, bool wordInstalled) {
    system_.appFolder = folders_.programFolder();
    if (!system_.appFolder.endsWith(u'/'))
        system_.appFolder += u'/';
    association_.registerFileType();
    system_.commandLine = arguments.join(u' ');
    if (system_.commandLine == AssociationArgument)
        return Outcome::Ends;
    setGlobals(wordInstalled);
    return system_.commandLine.isEmpty() ? startWithWelcomePage() : startWithFile();
}

void ProgramStart::setGlobals(bool wordInstalled) {
    system_.showmsgTab = settings_.flag(settingsNames::ShowMsgTab);
    system_.showmsgFigure = settings_.flag(settingsNames::ShowMsgFigure);
    system_.tabSwitchCount = 0;
    system_.msgAnswerYes = false;
    system_.wordInstalled = wordInstalled;
}

ProgramStart::Outcome ProgramStart::startWithFile() {
    const QFileInfo file(system_.commandLine);
    if (!file.isFile()) {
        prompts_.showMessage(
            UserPrompts::Icon::Exclamation, QStringLiteral("Error"),
            QStringLiteral("File \"%1\" does not exists").arg(system_.commandLine));
        return Outcome::Ends;
    }
    stage_.loadForm();
    stage_.NewFile();
    // A name typed in a shell is good for its folder only; the project outlives that.
    stage_.OpenFile(file.absoluteFilePath());
    stage_.showForm();
    return Outcome::Runs;
}

ProgramStart::Outcome ProgramStart::startWithWelcomePage() {
    association_.registerFileType();
    stage_.loadForm();
    stage_.NewFile();
    stage_.showWelcomePage();
    stage_.showForm();
    return Outcome::Runs;
}

} // namespace quillford
