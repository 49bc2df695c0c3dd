#pragma once

#include "base/Error.h"
#include "core/rules/TabLooks.h"

#include <functional>
#include <string>
#include <vector>

namespace quillford {

/// Keeps every call as the line that a reader would write for it, in order. `refuses` may name the
/// calls that fail: such a call is kept as well and then raises an `Error`.
class FakeTabLooks final : public TabLooks {
public:
    std::vector<std::string> calls;
    std::function<bool(const std::string& call)> refuses;

    void setTabLook(int tab, TabLook look) override {
        static constexpr const char* Names[] = {"complete", "complete, selected", "incomplete",
                                                "incomplete, selected"};
        take("tab " + std::to_string(tab) + " looks " + Names[static_cast<int>(look)]);
    }

    void setTabPointer(int tab, TabPointer pointer) override {
        take("tab " + std::to_string(tab) +
             (pointer == TabPointer::Hand ? " has the hand" : " has the default pointer"));
    }

    void showBar(ButtonBar bar) override {
        static constexpr const char* Names[] = {"step bar", "export bar", "no bar"};
        take(Names[static_cast<int>(bar)]);
    }

    void enableStepButton(StepButton button, bool on) override {
        take((button == StepButton::Back ? "Back " : "Next ") + std::string(on ? "on" : "off"));
    }

    void enableDraftCommands(bool on) override {
        take(on ? "draft commands on" : "draft commands off");
    }

    void setDefaultPointer() override { take("default pointer"); }

private:
    void take(const std::string& call) {
        calls.push_back(call);
        if (refuses && refuses(call))
            throw Error(5, QString::fromStdString("cannot do: " + call));
    }
};

} // namespace quillford
