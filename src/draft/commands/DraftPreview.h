#pragma once

#include "core/fields/Project.h"
#include "core/rules/SectionRules.h"
#include "core/wizard/ProjectScreen.h"
#include "draft/commands/PreviewScreen.h"
#include "platform/Clock.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"

#include <QString>

#include <functional>

namespace quillford {

/// The Final Draft on the screen.
class DraftPreview {
public:
    /// The command that saves the project.
    using FileSave = std::function<void()>;

    /// Owns none of its arguments but the function; all outlive it.
    DraftPreview(Project& project, const SectionRules& rules, ProjectScreen& window,
                 PreviewScreen& preview, Folders& folders, UserPrompts& prompts, Clock& clock,
                 FileSave fileSave);

    /// Composes the draft and shows it. A project with changes may be saved before; afterwards it
    /// counts as unchanged, whether it was saved or not.
    ///
    /// False when sections are missing: the draft on screen stays, and counts as out of date. False
    /// as well when the composition fails: the preview is blank then.
    bool buildFinalDraft();

    /// The page that was built last.
    [[nodiscard]] const QString& previewHtml() const noexcept { return previewHtml_; }

private:
    void offerToSave();

    Project& project_;
    const SectionRules& rules_;
    ProjectScreen& window_;
    PreviewScreen& preview_;
    Folders& folders_;
    UserPrompts& prompts_;
    Clock& clock_;
    FileSave fileSave_;
    QString previewHtml_;
};

} // namespace quillford
