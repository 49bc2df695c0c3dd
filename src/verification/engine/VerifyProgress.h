#pragma once

#include <QString>

namespace quillford {

/// The progress bar `prgCompletePercent` and the text `lbPercent` beside it.
class VerifyProgress {
public:
    virtual ~VerifyProgress() = default;

    /// The bar's value at full length; at least 1, and set before the first value of a run.
    virtual void setBarMaximum(int maximum) = 0;

    /// The bar's value, 0 to the maximum.
    virtual void setBarValue(int value) = 0;

    /// The text of the percentage, its sign included.
    virtual void setPercentText(const QString& text) = 0;
};

} // namespace quillford
