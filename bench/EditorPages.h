#pragma once

#include "core/wizard/ElementIndexView.h"
#include "editors/pages/SectionColumns.h"
#include "platform/linux/QtPictureReader.h"
#include "platform/linux/QtTextMeasure.h"
#include "shell/frmMain1.h"
#include "support/UnattendedPrompts.h"

namespace quillford {

/// The main form with the pages of Sections 2 to 7 and a new project, and with nothing that
/// navigates or files.
class EditorPages final : private ElementIndexView {
public:
    EditorPages();
    ~EditorPages() override;

    [[nodiscard]] frmMain1& form() { return form_; }

    [[nodiscard]] EditorColumns& columns() { return columns_; }

private:
    void RebuildElementIndex() override {}

    void clearIndex() override {}

    void enableIndex(bool) override {}

    [[nodiscard]] SectionColumns::Pages makePages();

    ProjectFields fields_;
    FocusOrder order_;
    frmMain1 form_;
    BoundFields bound_;
    UnattendedPrompts prompts_;
    QtPictureReader pictures_;
    QtTextMeasure measure_;
    SectionColumns columns_;
};

} // namespace quillford
