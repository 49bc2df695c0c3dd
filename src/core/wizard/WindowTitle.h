#pragma once

#include "core/wizard/ProjectScreen.h"

#include <QString>

namespace quillford {

/// The caption of the window: the program, and the file of the open project.
class WindowTitle {
public:
    /// The screen outlives the title.
    explicit WindowTitle(ProjectScreen& screen) : screen_(screen) {}

    /// Shows a file's name behind that of the program. An empty name shows the last one again.
    void SetWindowTitle(const QString& fileName);

    /// Shows the program alone; the last name stays remembered.
    void showProgramAlone();

private:
    ProjectScreen& screen_;
    QString fileName_;
};

} // namespace quillford
