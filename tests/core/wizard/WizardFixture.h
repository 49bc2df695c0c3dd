#pragma once

#include "core/fields/Project.h"
#include "core/settings/SettingsNames.h"
#include "core/wizard/WizardNavigator.h"
#include "support/FakePrompts.h"
#include "support/FakeSettings.h"
#include "support/RecordingScreen.h"

#include <gtest/gtest.h>

namespace quillford {

/// The wizard without a window: a new project under a screen that writes everything down.
class WizardFixture : public testing::Test {
protected:
    static constexpr int Next = 1;
    static constexpr int Back = 0;

    /// Fills every required field of a section with something that its rule accepts.
    void complete(int tab) {
        for (const FieldRow& row : fieldTable())
            if (row.section == tab + 1 && row.required == FieldRequired::Yes)
                for (int i = 0; i < membersOf(row); ++i)
                    project.fields.at(row.id, i).setText(QStringLiteral("x"));
    }

    /// The wizard as if the user had come to a tab; the section's tag is not touched.
    void standOn(int tab) {
        project.state.currentTab = tab;
        project.state.targetTab = tab;
    }

    /// The texts of the boxes that were shown.
    QStringList boxes() const {
        QStringList titles;
        for (const FakePrompts::Box& box : prompts.boxes)
            titles.append(box.title);
        return titles;
    }

    const Calls& calls() const { return log.calls; }

    Project project;
    mdlSystem system;
    CallLog log;
    RecordingScreen screen{project.fields, log};
    FakePrompts prompts;
    FakeSettings store;
    Settings settings{store};
    SectionRules rules{project.fields, project.state, screen.looks, prompts};
    SectionMessages messages{system, settings, prompts};
    FocusOrder focusOrder;
    TabEntry entry{project.fields, messages, focusOrder, screen.all};
    WizardNavigator navigator{project.state, system, rules, messages, entry, screen.all};

private:
    int membersOf(const FieldRow& row) const {
        return row.group == FieldGroup::Inventors ? project.fields.panelCount(row.group)
                                                  : project.fields.count(row.id);
    }
};

} // namespace quillford
