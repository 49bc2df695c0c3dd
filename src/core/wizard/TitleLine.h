#pragma once

#include <QString>

namespace quillford {

/// The line at the head of the wizard with the file number and the title, `lblTitleInvention`.
class TitleLine {
public:
    virtual ~TitleLine() = default;

    /// Shows a caption as core/text/TitleCaption.h makes it.
    virtual void showTitleInvention(const QString& caption) = 0;
};

} // namespace quillford
