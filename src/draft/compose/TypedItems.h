#pragma once

#include "draft/template/WordTemplate.h"

namespace quillford {

/// Puts what a user typed into the marks of a Word document. The document itself is searched for
/// marks and tags, and a text that looks like one must come out as it was typed: until `finish`,
/// what opens a mark or a tag in a value is a mark itself.
class TypedItems final : public TemplateItems {
public:
    /// The document is not owned and outlives the items.
    explicit TypedItems(WordTemplate& document) : document_(document) {}

    void SetItem(const QString& name, const QString& value, bool all = false) override;

    /// Puts in what was typed. Called once, after the last item.
    void finish();

private:
    WordTemplate& document_;
};

} // namespace quillford
