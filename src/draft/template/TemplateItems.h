#pragma once

#include <QString>

namespace quillford {

/// What both template engines have in common for whoever fills in items.
class TemplateItems {
public:
    virtual ~TemplateItems() = default;

    /// Sets the item `name`. A new item is added behind the others; one that exists takes the value
    /// in its place, or, when `append` is set, has it added behind its text.
    virtual void SetItem(const QString& name, const QString& value, bool append = false) = 0;
};

} // namespace quillford
