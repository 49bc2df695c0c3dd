#pragma once

#include "platform/Folders.h"

namespace quillford {

/// The folders of a freedesktop.org desktop.
class LinuxFolders final : public Folders {
public:
    [[nodiscard]] QString temporaryFolder() override;
};

} // namespace quillford
