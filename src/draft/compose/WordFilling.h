#pragma once

#include "core/fields/ProjectFields.h"
#include "draft/compose/TypedItems.h"

namespace quillford {

/// Fills the Word template of the Final Draft from the fields. Each step takes the marks that come
/// next, so that the order of the steps, and of the items in them, is part of the composition.
class WordFilling {
public:
    /// Owns none of its arguments; both outlive it.
    WordFilling(const ProjectFields& fields, WordTemplate& document);

    /// Fills the whole document, from a template just loaded. Raises what the word processor
    /// raises, and `Error` for a Main Element without a panel of descriptions.
    void fill();

private:
    void fillHead();
    void fillInventors();
    void fillSummary();
    void fillObjects();
    void fillFigureDescriptions();
    void fillMainElements();
    void fillClosing();
    void fillAbstract();
    void fillDrawings();
    void fillIndex();

    void set(const char16_t* name, const QString& value);
    void setTitle();

    const ProjectFields& fields_;
    WordTemplate& document_;
    TypedItems items_;
};

} // namespace quillford
