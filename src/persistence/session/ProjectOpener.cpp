#include "persistence/session/ProjectOpener.h"

#include "core/commands/Pause.h"
#include "core/fields/SaveFlag.h"
#include "core/settings/PathParts.h"
#include "persistence/project/ResumeNext.h"
#include "persistence/project/WorkingCopies.h"
#include "persistence/session/ReasonNotSaved.h"

#include <QFileInfo>
#include <QScopedValueRollback>

namespace quillford {

using Icon = UserPrompts::Icon;

ProjectOpener::ProjectOpener(Project& project, const mdlSystem& system, SectionRules& rules,
                             WizardNavigator& navigator, WizardScreen& screen, const Filing& filing,
                             Clock& clock)
    : project_(project),
      system_(system),
      rules_(rules),
      navigator_(navigator),
      screen_(screen),
      filing_(filing),
      clock_(clock) {}

bool ProjectOpener::OpenFile(const QString& argument) {
    const CommandScope running(project_.state);
    const QString path = existingPath(argument.section(u'|', 0, 0));
    project_.state.isOpening = true;
    const FigureStates figures = takeFigureStates();
    const ReadReport::Outcome outcome = read(path);
    if (outcome != ReadReport::Outcome::Read)
        giveBack(figures);
    switch (outcome) {
    case ReadReport::Outcome::NotFound:
        tellNotFound();
        return false;
    case ReadReport::Outcome::HigherVersion:
        refuse(path);
        break;
    case ReadReport::Outcome::Read:
        showLoaded(argument, path);
        break;
    }
    finish();
    return outcome == ReadReport::Outcome::Read;
}

/// A project that could not be written in its own place may lie in the virtual store under its
/// whole path.
QString ProjectOpener::existingPath(const QString& path) const {
    return QFileInfo(path).isFile() ? path : filing_.folders.getVirtualStoreDir() + path;
}

/// The values beside the figures belong to the project that is read, from its first picture on;
/// those of the open one come back when nothing is read.
ProjectOpener::FigureStates ProjectOpener::takeFigureStates() {
    FigureStates states;
    for (int i = 0; i < project_.fields.panelCount(FieldGroup::Figures); ++i)
        states.push_back(std::exchange(project_.fields.figureState(i), {}));
    return states;
}

void ProjectOpener::giveBack(const FigureStates& states) {
    for (std::size_t i = 0; i < states.size(); ++i)
        project_.fields.figureState(static_cast<int>(i)) = states[i];
}

ReadReport::Outcome ProjectOpener::read(const QString& path) {
    screen_.project.setHourglass(true);
    const QScopedValueRollback loading(project_.state.isLoading, true);
    const ReadReport report = ProjectFileReader(project_, filing_.pictures).read(path);
    if (report.outcome == ReadReport::Outcome::NotFound)
        screen_.project.setHourglass(false);
    return report.outcome;
}

/// The wording is the same for a file that was chosen elsewhere than on the Welcome page.
void ProjectOpener::tellNotFound() {
    filing_.prompts.showMessage(
        Icon::Exclamation, QStringLiteral("File Does Not Exist or Has Been Renamed"),
        QStringLiteral("The project file you are trying to open from the Welcome Page either does "
                       "not exist or the name has been changed outside of Quillford.  If you have "
                       "not deleted this project file and want to find it, simply go to File/Open "
                       "to locate the project file."));
}

void ProjectOpener::showLoaded(const QString& argument, const QString& path) {
    ProjectState& state = project_.state;
    screen_.project.showBlankPreview();
    screen_.index.clearIndex();
    state.draftCurrent = false;
    layOutColumns();
    showPictures();
    judgeSections();
    screen_.index.RebuildElementIndex();
    takeName(path);
    state.isDraftProject = isProvisionalDraftPath(argument);
    ResetSaveFlag(project_.fields, state);
    filing_.title.SetWindowTitle(GetFileName(path));
    filing_.saveState.showSaveState(QString());
    filing_.folders.setLastDir(getFolderOf(path));
    state.isRecovered = filing_.recent.projectOpened(argument, path);
    leaveWelcomePage();
    navigator_.SwitchTab(0);
    // Leaving a section may have evened out what the file told in two ways.
    ResetSaveFlag(project_.fields, state);
    if (!isDraftPath(path))
        makeShadow(path);
}

/// The panels are there since the counts were read; this puts them on the screen.
void ProjectOpener::layOutColumns() {
    const ProjectFields& fields = project_.fields;
    const int elements = fields.cboMainElementNum.number();
    screen_.columns.LayoutInventors(fields.cboInventorsNum.number());
    screen_.columns.LayoutObjects(fields.cboObjectNum.number());
    screen_.columns.LayoutFigures(fields.cboFiguresNum.number());
    screen_.columns.LayoutMainElements(elements);
    screen_.columns.LayoutSubElements(elements);
    screen_.columns.LayoutDescriptions(elements);
    if (fields.cboFiguresNum.number() == 0)
        emptyFirstFigure();
}

/// The panel that always stands is not read in a project without figures, and must not carry a
/// figure of the project before over into this one.
void ProjectOpener::emptyFirstFigure() {
    const QScopedValueRollback loading(project_.state.isLoading, true);
    for (const FieldRow& row : fieldTable())
        if (row.group == FieldGroup::Figures)
            project_.fields.at(row.id, 0).loadText(row.initial.toString());
}

void ProjectOpener::showPictures() {
    for (int i = 0; i < project_.fields.panelCount(FieldGroup::Figures); ++i)
        if (project_.fields.figureState(i).workingCopy.isEmpty())
            screen_.columns.removePicture(i);
        else
            screen_.columns.showPicture(i);
}

void ProjectOpener::judgeSections() {
    for (int tab = 0; tab <= SectionRules::FinalDraftTab; ++tab) {
        rules_.refreshSection(tab);
        screen_.guidance.TextHighLight(tab);
    }
}

/// All names go together: one that stayed would tie this project to the files of the one before.
void ProjectOpener::takeName(const QString& path) {
    ProjectState& state = project_.state;
    state.projectFileName = path;
    for (QString* name : {&state.draftFileName, &state.realFileName, &state.shadowFileName,
                          &state.timerSavedFileName})
        name->clear();
    state.isDraftProject = false;
    state.isRecovered = false;
    state.isRefused = false;
}

void ProjectOpener::leaveWelcomePage() {
    constexpr int SecondsToSeeIt = 2;
    if (screen_.project.isWelcomePageShown())
        Pause(SecondsToSeeIt, clock_, system_);
    screen_.project.hideWelcomePage();
}

/// What is on the screen goes on as the project of a file that it was not read from. A working copy
/// is not taken over in this way.
void ProjectOpener::refuse(const QString& path) {
    filing_.prompts.showMessage(
        Icon::Exclamation, QStringLiteral("Error"),
        QStringLiteral(
            "Can't open file. This file was been created by a higher verion of Quillford"));
    if (isDraftPath(path))
        return;
    takeName(path);
    project_.state.isRefused = true;
    filing_.title.SetWindowTitle(GetFileName(path));
    filing_.saveState.showSaveState(QString());
    makeShadow(path);
}

/// A project opens without its copy as well; when the user leaves it without saving he is told that
/// nothing can be taken back.
void ProjectOpener::makeShadow(const QString& path) {
    ProjectState& state = project_.state;
    state.realFileName = path;
    state.shadowFileName = filing_.names.newShadowFileName();
    ResumeNext resumeNext;
    if (!resumeNext([&] { filing_.saver.writeShadow(); }))
        filing_.saveState.showSaveState(
            QStringLiteral("no backup: ") +
            reasonNotSaved(state.shadowFileName, *resumeNext.firstFailure()));
}

void ProjectOpener::finish() {
    screen_.autoSave.setAutoSaveEnabled(true);
    project_.state.fileOrigin = QStringLiteral("open");
    screen_.project.setHourglass(false);
    project_.state.isOpening = false;
}

} // namespace quillford
