#include "persistence/session/ProjectSaver.h"

#include "core/fields/SaveFlag.h"
#include "core/settings/PathParts.h"
#include "persistence/project/ProjectWriter.h"
#include "persistence/project/WorkingCopies.h"
#include "persistence/session/ReasonNotSaved.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace quillford {

namespace {

QString folderOfFile(const QString& path) {
    return QFileInfo(path).path();
}

/// One level only: a save is no reason to build a tree. A folder that cannot be made lets the write
/// fail by itself.
void makeFolderOf(const QString& path) {
    QDir().mkdir(folderOfFile(path));
}

} // namespace

ProjectSaver::ProjectSaver(Project& project, WorkFolders& folders, SaveDialog& dialog,
                           RecentProjects& recent, ShadowCopy& shadow, Backups& backups,
                           WindowTitle& title, SaveStateLine& saveState, UserPrompts& prompts,
                           const Clock& clock)
    : project_(project),
      folders_(folders),
      dialog_(dialog),
      recent_(recent),
      shadow_(shadow),
      backups_(backups),
      title_(title),
      saveState_(saveState),
      prompts_(prompts),
      clock_(clock) {}

bool ProjectSaver::SaveFile() {
    try {
        return save();
    } catch (const Error& failure) {
        saveState_.showSaveState(QStringLiteral("not saved: ") +
                                 reasonNotSaved(project_.state.projectFileName, failure));
        throw;
    }
}

bool ProjectSaver::save() {
    ProjectState& state = project_.state;
    const CommandScope running(state);
    const bool isNew = std::exchange(isNew_, false);
    if (state.isAutoSaving && state.isRefused) {
        writeShadow();
        tellSaved();
        return true;
    }
    const bool hadNoName = chooseTarget();
    const QString path = state.projectFileName;
    if (path.isEmpty())
        return false;
    makeFolderOf(path);
    if (state.isAutoSaving)
        backUp(path);
    write(isNew);
    title_.SetWindowTitle(GetFileName(path));
    rememberFolder();
    if (!isDraftPath(path))
        recent_.projectSaved(path, hadNoName || isNew);
    else if (state.realFileName.isEmpty())
        recent_.projectSaved(path, false);
    settleState();
    tellSaved();
    return true;
}

void ProjectSaver::tellSaved() {
    QString told =
        QStringLiteral("saved ") + clock_.dateAndTime().toString(QStringLiteral("HH:mm"));
    if (lacksBackup_)
        told += QStringLiteral(", no backup");
    saveState_.showSaveState(told);
}

/// What the user saved himself is kept before it is written over; what the timer saved is not. A
/// backup that cannot be made keeps nobody from saving.
void ProjectSaver::backUp(const QString& path) {
    ProjectState& state = project_.state;
    if (state.timerSavedFileName == path)
        return;
    try {
        backups_.keep(path);
        lacksBackup_ = false;
    } catch (const Error&) {
        lacksBackup_ = true;
    }
    if (state.isAutoSaving)
        state.timerSavedFileName = path;
}

/// Answers whether the user was asked: a working copy that he opened counts as unnamed. A timer
/// never asks; it saves such a copy into itself.
bool ProjectSaver::chooseTarget() {
    ProjectState& state = project_.state;
    if (state.projectFileName.isEmpty()) {
        state.projectFileName = dialog_.askForProject();
        return true;
    }
    const bool isOpenedDraft = isDraftPath(state.projectFileName) && state.realFileName.isEmpty() &&
                               state.draftFileName.isEmpty();
    if (!isOpenedDraft || state.isAutoSaving)
        return false;
    state.projectFileName = dialog_.ask(QStringLiteral("ivd"));
    state.draftFileName = state.projectFileName;
    return true;
}

/// What the user asked for is on the disk when he is told so.
void ProjectSaver::write(bool isNew) {
    const QString& path = project_.state.projectFileName;
    if (project_.state.isAutoSaving)
        ProjectWriter(project_).write(path, ProjectWriter::Durability::Flushed);
    else if (isNew)
        ProjectWriter(project_, prompts_).writeNew(path, ProjectWriter::Durability::OnDisk);
    else
        ProjectWriter(project_, prompts_).write(path, ProjectWriter::Durability::OnDisk);
}

/// The folder for drafts is none that the user has chosen.
void ProjectSaver::rememberFolder() {
    const QString& path = project_.state.projectFileName;
    if (!isDraftPath(path))
        folders_.setLastDir(folderOfFile(path));
}

void ProjectSaver::settleState() {
    ProjectState& state = project_.state;
    if (!isDraftPath(state.draftFileName) && state.draftFileName == state.projectFileName)
        state.draftFileName.clear();
    if (state.isAutoSaving)
        return;
    state.timerSavedFileName.clear();
    lacksBackup_ = false;
    ResetSaveFlag(project_.fields, state);
    state.isDraftProject = false;
    state.isRecovered = false;
    // The copy of what was on screen when a file was refused says nothing about that file.
    if (std::exchange(state.isRefused, false))
        shadow_.forget();
}

void ProjectSaver::writeShadow() {
    const ProjectState& state = project_.state;
    shadow_.forget();
    makeFolderOf(state.shadowFileName);
    backUp(state.shadowFileName);
    ProjectWriter(project_).writeNew(state.shadowFileName, ProjectWriter::Durability::Flushed);
    shadow_.remember(state.shadowFileName, state.realFileName);
}

void ProjectSaver::updateShadow() {
    ProjectState& state = project_.state;
    if (state.shadowFileName.isEmpty())
        return;
    const CommandScope running(state);
    const bool hasMoved = state.realFileName != state.projectFileName;
    if (hasMoved && shadow_.isOwn(state.shadowFileName) && QFile::exists(state.realFileName))
        shadow_.putBack(state.shadowFileName, state.realFileName);
    state.realFileName = state.projectFileName;
    writeShadow();
    recent_.keepFirstEntry();
}

} // namespace quillford
