#pragma once

#include "core/fields/Project.h"
#include "support/FakeFolders.h"
#include "support/UnattendedPrompts.h"

#include <QString>
#include <QTemporaryDir>

namespace quillford {

/// A project that is ready to be composed, with a temporary folder of its own, which goes with it.
class BenchDraft {
public:
    /// Reads the project in the file `path` and measures its figures. Raises `Error` when the file
    /// cannot be read or there is no room for a folder.
    explicit BenchDraft(const QString& path);

    /// Composes the Final Draft and writes it to the file. Raises `Error` when either fails.
    void exportTo(const QString& path);

    /// The Final Draft as the preview shows it. Raises `Error` when the composition fails.
    [[nodiscard]] QString preview();

private:
    void compose(const QString& path, QString& html);

    Project project_;
    QTemporaryDir folder_;
    FakeFolders folders_;
    UnattendedPrompts prompts_;
};

} // namespace quillford
