#pragma once

#include "core/fields/Project.h"
#include "typed/TypedProgram.h"

namespace quillford {

/// Types a project in that is told, section by section, and leaves alone what shows its text
/// already.
class ProjectTypist : public TypedProgram {
protected:
    explicit ProjectTypist(const QString& toldFile);

    /// Fills the fields of the section that is shown, panel by panel, as the Tab key walks. Counts
    /// have been chosen and pictures are attached apart.
    void typeSection(int section);

    /// Attaches the pictures of the figures through the file dialog.
    void attachPictures();

    Project told;

private:
    void typeField(const FieldRow& row, int panel);
};

} // namespace quillford
