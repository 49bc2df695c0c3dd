#pragma once

#include <QString>

namespace quillford {

/// What both template engines have in common for whoever fills in items.
class TemplateItems {
public:
    virtual ~TemplateItems() = default;

    /// Gives the item `name` a value. What the flag asks for beyond that is the engine's affair.
    virtual void SetItem(const QString& name, const QString& value, bool flag = false) = 0;
};

} // namespace quillford
