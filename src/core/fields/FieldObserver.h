#pragma once

#include "core/fields/FieldTable.h"

namespace quillford {

/// Is told of every text that really changes, whoever changed it, before the call that changed it
/// returns.
class FieldObserver {
public:
    virtual ~FieldObserver() = default;

    /// The field holds its new text already. `index` is the panel's, 0 for a field that stands
    /// once. The observer may change other fields from here; writing back the text that a field
    /// holds tells nobody, so that two fields bound to each other come to rest.
    virtual void fieldChanged(FieldId field, int index) = 0;
};

} // namespace quillford
