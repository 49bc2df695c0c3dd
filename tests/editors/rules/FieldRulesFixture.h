#pragma once

#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/RecordingFieldScreen.h"
#include "support/FakePrompts.h"
#include "support/FakeTabLooks.h"
#include "support/FakeTextMeasure.h"
#include "support/RecordingScreen.h"

#include <gtest/gtest.h>

namespace quillford {

/// A new project whose changes set off what they set off in the program, and what of it is seen.
class FieldRulesFixture : public testing::Test {
protected:
    FieldRulesFixture() { fields.setObserver(&steps); }

    ~FieldRulesFixture() override { fields.setObserver(nullptr); }

    FieldRulesFixture(const FieldRulesFixture&) = delete;
    FieldRulesFixture& operator=(const FieldRulesFixture&) = delete;

    /// Checks the box without the question.
    void followContact() {
        prompts.yesNoAnswers.push_back(true);
        fields.chkSameAsContact.setText(QStringLiteral("1"));
        prompts.boxes.clear();
        log.calls.clear();
    }

    ProjectFields fields;
    ProjectState state;
    CallLog log;
    RecordingFieldScreen fieldScreen{log};
    RecordingScreen screen{fields, log};
    FakePrompts prompts;
    FakeTextMeasure measure;
    FocusOrder order;
    ContactMirror mirror{fields, state, prompts, fieldScreen, order};
    FieldChangeSteps steps{fields, state, mirror, fieldScreen, screen, screen, measure};
};

} // namespace quillford
