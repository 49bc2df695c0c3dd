#pragma once

#include "core/fields/Field.h"

namespace quillford {

/// The check that stands before an export: it asks the user whether every element was written of,
/// and tells what he wants then.
class ExportCheck {
public:
    enum class Answer {
        Skip,     ///< export without the check
        Continue, ///< export after it
        Return,   ///< go back to the project
        GoToCell, ///< the same, into the field that is named
        Cancel,
    };

    struct Outcome {
        Answer answer = Answer::Cancel;
        FieldId field{}; ///< with `GoToCell`: a field of the element tables, and its panel, which
        int index = 0;   ///< may have gone since it was looked at
    };

    virtual ~ExportCheck() = default;

    /// Shows the check and waits for its end; all its windows are closed then.
    [[nodiscard]] virtual Outcome showVerify() = 0;
};

} // namespace quillford
