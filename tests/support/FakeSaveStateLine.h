#pragma once

#include "core/wizard/SaveStateLine.h"

namespace quillford {

/// Keeps what it shows.
class FakeSaveStateLine final : public SaveStateLine {
public:
    void showSaveState(const QString& newText) override { text = newText; }

    [[nodiscard]] QString saveState() const override { return text; }

    QString text;
};

} // namespace quillford
