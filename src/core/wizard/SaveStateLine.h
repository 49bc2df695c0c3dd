#pragma once

#include <QString>

namespace quillford {

/// The small line in the title strip that tells when the project was last saved, `lblSaveState`.
class SaveStateLine {
public:
    virtual ~SaveStateLine() = default;

    /// Shows a short text in plain characters: "saved 14:02", why it could not be saved or
    /// exported, or nothing for a project that this run has not saved.
    virtual void showSaveState(const QString& text) = 0;

    /// What was shown last.
    [[nodiscard]] virtual QString saveState() const = 0;
};

} // namespace quillford
