#pragma once

namespace quillford {

/// The switch of the timer that saves on its own, `tmrAutoSave`.
class AutoSaveSwitch {
public:
    virtual ~AutoSaveSwitch() = default;

    virtual void setAutoSaveEnabled(bool on) = 0;

    [[nodiscard]] virtual bool isAutoSaveEnabled() const = 0;
};

} // namespace quillford
