#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/rules/FieldScreen.h"
#include "support/CallLog.h"

#include <string>

namespace quillford {

/// Writes down what the rules ask of the fields on screen.
class RecordingFieldScreen final : public FieldScreen {
public:
    explicit RecordingFieldScreen(CallLog& log) : log_(log) {}

    void showText(FieldPlace place) override { take("show ", place); }

    void whiten(FieldPlace place) override { take("white ", place); }

    void SpellAttach(FieldPlace place) override { take("SpellAttach ", place); }

    void enableField(FieldPlace place, bool on) override {
        take(on ? "enable " : "disable ", place);
    }

    void showFigureSentence(int figure) override { log_.take(callText("figure sentence", figure)); }

private:
    void take(const std::string& call, FieldPlace place) {
        log_.take(call + controlName(place).toStdString());
    }

    CallLog& log_;
};

} // namespace quillford
