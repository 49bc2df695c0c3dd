#pragma once

#include "platform/SettingsStore.h"
#include "platform/linux/SharedFile.h"

#include <chrono>

namespace quillford {

/// The settings in one text file (see `SettingsText`), which several programs share.
class FileSettingsStore final : public SettingsStore {
public:
    /// How long `change` waits for other programs before it gives up.
    static constexpr std::chrono::milliseconds Patience{5000};

    explicit FileSettingsStore(QString path, std::chrono::milliseconds patience = Patience);

    void look(const Look& step) const override;
    void change(const Change& step) override;

private:
    SharedFile file_;
};

} // namespace quillford
