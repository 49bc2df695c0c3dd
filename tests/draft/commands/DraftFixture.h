#pragma once

#include "core/commands/SaveDialog.h"
#include "core/fields/SaveFlag.h"
#include "core/settings/WorkFolders.h"
#include "core/wizard/WizardFixture.h"
#include "draft/commands/DraftPreview.h"
#include "draft/compose/WidgetHolder.h"
#include "support/FakeClock.h"
#include "support/FakeFolders.h"
#include "support/Files.h"

#include <QTemporaryDir>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

/// The widget holder, complete, in the wizard without a window, and a preview that writes down what
/// it is to show.
class DraftFixture : public WizardFixture, protected PreviewScreen {
protected:
    DraftFixture() {
        folders.documents = home.path();
        folders.temporary = home.filePath(u"temporary"_s);
        QDir().mkpath(folders.temporary);
        fillWidgetHolder(project.fields);
        ResetSaveFlag(project.fields, state);
        rules.setSectionStatus(SectionRules::FinalDraftTab, u"OK"_s);
        log.calls.clear();
    }

    void showPreview(const QString& html) override {
        shown.append(html);
        log.take("show preview");
    }

    [[nodiscard]] QString place(const QString& name) const { return home.filePath(name); }

    void change() { project.fields.txtPurpose.setText(u"to turn"_s); }

    QTemporaryDir home;
    FakeFolders folders;
    FakeClock clock;
    QStringList shown;
    ProjectState& state = project.state;
    DraftPreview preview{project, rules,   screen, *this,
                         folders, prompts, clock,  [this] { log.take("File Save"); }};
};

} // namespace quillford
