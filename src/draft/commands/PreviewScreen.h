#pragma once

#include <QString>

namespace quillford {

/// The page of the Final Draft, as the commands on the draft see it.
class PreviewScreen {
public:
    virtual ~PreviewScreen() = default;

    /// Shows `lblPopTab9`, as wide as the preview, and the preview below it: the label's height and
    /// 5 from the top, 385 high. The preview is blank first, and then shows the page.
    virtual void showPreview(const QString& html) = 0;
};

} // namespace quillford
