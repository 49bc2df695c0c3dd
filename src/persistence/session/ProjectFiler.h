#pragma once

#include "core/commands/ProjectStore.h"
#include "persistence/session/ProjectOpener.h"

namespace quillford {

/// The project's files and the recent list, as the project commands ask for them.
class ProjectFiler final : public ProjectStore {
public:
    /// Owns none of its arguments; all outlive it.
    ProjectFiler(ProjectState& state, ProjectSaver& saver, ProjectOpener& opener,
                 RecentProjects& recent, ShadowCopy& shadow, UserPrompts& prompts);

    bool SaveFile() override { return saver_.SaveFile(); }

    void saveAsNew() override { saver_.saveAsNew(); }

    bool OpenFile(const QString& argument) override { return opener_.OpenFile(argument); }

    void deleteDraft() override;
    void dropDraft() override;

    void updateShadow() override { saver_.updateShadow(); }

    /// A copy that this run did not write whole is not put back; the user is told, and true is
    /// answered, since no second try could end otherwise.
    bool putShadowBack() override;

    void deleteShadow() override;

    void clearOpenMarker() override { recent_.clearOpenMarker(); }

    void resetRecentCounters() override { recent_.resetCounters(); }

    void reloadRecentProjects() override { recent_.refreshRecentProjects(); }

    QString recentEntry(int number) const override { return recent_.entry(number); }

private:
    void tellNotTakenBack(const QString& reason);

    ProjectState& state_;
    ProjectSaver& saver_;
    ProjectOpener& opener_;
    RecentProjects& recent_;
    ShadowCopy& shadow_;
    UserPrompts& prompts_;
};

} // namespace quillford
