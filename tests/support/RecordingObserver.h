#pragma once

#include "core/fields/FieldObserver.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillford {

/// Keeps every change as "name(index)", in order, and then does what the test wants done in the
/// middle of the change.
class RecordingObserver final : public FieldObserver {
public:
    using Step = std::function<void(FieldId field, int index)>;

    explicit RecordingObserver(Step step = {}) : step_(std::move(step)) {}

    std::vector<std::string> changes;

    void fieldChanged(FieldId field, int index) override {
        const std::string name = fieldRow(field).name.toString().toStdString();
        changes.push_back(name + '(' + std::to_string(index) + ')');
        if (step_)
            step_(field, index);
    }

private:
    Step step_;
};

} // namespace quillford
