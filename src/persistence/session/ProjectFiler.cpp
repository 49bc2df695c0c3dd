#include "persistence/session/ProjectFiler.h"

#include "core/settings/PathParts.h"
#include "persistence/project/WorkingCopies.h"

#include <QFile>

namespace quillford {

ProjectFiler::ProjectFiler(ProjectState& state, ProjectSaver& saver, ProjectOpener& opener,
                           RecentProjects& recent, ShadowCopy& shadow, UserPrompts& prompts)
    : state_(state),
      saver_(saver),
      opener_(opener),
      recent_(recent),
      shadow_(shadow),
      prompts_(prompts) {}

void ProjectFiler::deleteDraft() {
    if (isDraftPath(state_.draftFileName))
        QFile::remove(state_.draftFileName);
    state_.draftFileName.clear();
}

void ProjectFiler::dropDraft() {
    const QString path = state_.draftFileName;
    deleteDraft();
    recent_.dropEntry(path);
}

bool ProjectFiler::putShadowBack() {
    if (state_.shadowFileName.isEmpty() || state_.isRefused)
        return true;
    if (!shadow_.isOwn(state_.shadowFileName)) {
        tellNotTakenBack(QStringLiteral("the copy that was kept for it is not there any more"));
        return true;
    }
    try {
        shadow_.putBack(state_.shadowFileName, state_.realFileName);
    } catch (const Error& error) {
        tellNotTakenBack(error.description());
        return false;
    }
    // The project has got another name, and the file of this one could not go back at once.
    if (state_.realFileName != state_.projectFileName)
        tellNotTakenBack(QStringLiteral("the copy that was kept was that of %1")
                             .arg(GetFileName(state_.realFileName)));
    recent_.restoreFirstEntry();
    deleteShadow();
    return true;
}

void ProjectFiler::tellNotTakenBack(const QString& reason) {
    prompts_.showMessage(
        UserPrompts::Icon::Exclamation, QStringLiteral("Error"),
        QStringLiteral("The changes since your last save cannot be taken back: %1.").arg(reason));
}

void ProjectFiler::deleteShadow() {
    if (!state_.shadowFileName.isEmpty())
        shadow_.deleteCopy(state_.shadowFileName);
    state_.shadowFileName.clear();
}

} // namespace quillford
