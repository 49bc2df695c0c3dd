#pragma once

#include "core/rules/SectionRules.h"
#include "core/settings/mdlSystem.h"
#include "core/wizard/WizardNavigator.h"
#include "core/wizard/WizardScreen.h"
#include "persistence/project/ProjectFileReader.h"
#include "persistence/session/DraftNames.h"
#include "persistence/session/ProjectSaver.h"
#include "platform/Clock.h"

#include <QString>

#include <vector>

namespace quillford {

/// Opens a project: reads its file into the fields and shows it.
class ProjectOpener {
public:
    /// Where a project comes from and what comes after it: the parts of filing. It owns nothing.
    struct Filing {
        ProjectSaver& saver;
        DraftNames& names;
        WorkFolders& folders;
        RecentProjects& recent;
        PictureReceiver& pictures;
        WindowTitle& title;
        SaveStateLine& saveState;
        UserPrompts& prompts;
    };

    /// Owns none of its arguments, nor what they refer to; all outlive it.
    ProjectOpener(Project& project, const mdlSystem& system, SectionRules& rules,
                  WizardNavigator& navigator, WizardScreen& screen, const Filing& filing,
                  Clock& clock);

    /// See `ProjectStore::OpenFile`. A file of a higher version is refused in a box: nothing is
    /// read, but it becomes the project's file, into which only a save that the user asks for is
    /// written; false then too. Raises nothing: what a damaged file does not give is passed over.
    bool OpenFile(const QString& argument);

private:
    using FigureStates = std::vector<FigureState>;

    [[nodiscard]] QString existingPath(const QString& path) const;
    [[nodiscard]] FigureStates takeFigureStates();
    void giveBack(const FigureStates& states);
    [[nodiscard]] ReadReport::Outcome read(const QString& path);
    void tellNotFound();
    void showLoaded(const QString& argument, const QString& path);
    void layOutColumns();
    void emptyFirstFigure();
    void showPictures();
    void judgeSections();
    void takeName(const QString& path);
    void leaveWelcomePage();
    void refuse(const QString& path);
    void makeShadow(const QString& path);
    void finish();

    Project& project_;
    const mdlSystem& system_;
    SectionRules& rules_;
    WizardNavigator& navigator_;
    WizardScreen& screen_;
    Filing filing_;
    Clock& clock_;
};

} // namespace quillford
