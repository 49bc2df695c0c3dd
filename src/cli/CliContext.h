#pragma once

#include "platform/Folders.h"
#include "platform/PictureReader.h"

#include <QIODevice>

namespace quillford {

/// What a command needs of the world. Nothing is owned.
struct CliContext {
    QIODevice& output; ///< standard output, open for writing; texts go out in UTF-8
    QIODevice& errors; ///< standard error
    Folders& folders;
    PictureReader& pictures;
};

} // namespace quillford
