#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"
#include "editors/rules/ObjectSentences.h"

namespace quillford {

/// Section 3, Purpose and Objects: one sentence on the purpose, a count, and a panel for each of
/// one to twenty objects of the invention.
class PageObjects final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, binds its fields and makes the panels that the project
    /// has. All other arguments outlive the page.
    PageObjects(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order);

    /// Makes `count` panels stand, scrolled to their top. Fields of new panels are empty; the texts
    /// of dropped ones are gone.
    void LayoutObjects(int count);

    /// Writes all sentences anew from the title of the invention, and lays the panels out where
    /// they differ from the count field. No field changes but by that layout.
    void RefreshObjectSentences();

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    void writeSentence(int object, SentenceWriter writer);

    ProjectFields& fields_;
    FocusOrder& order_;
    PanelColumn* column_;
};

} // namespace quillford
