#pragma once

#include "core/fields/ProjectFields.h"
#include "core/wizard/ElementIndexView.h"
#include "editors/index/IndexSurface.h"
#include "platform/TextMeasure.h"

#include <QObject>
#include <QScrollBar>

namespace quillford {

/// The Index of Elements beside the sections, `picIndexContainer`: the drawing
/// `picIndexOfMainElementD`, which the scroll bar `VScroll1` moves in its view.
class ElementIndexPanel final : public QObject, public ElementIndexView {
    Q_OBJECT

public:
    /// The places on the form. `container` owns the panel and is the parent of all others.
    struct Places {
        QWidget& container; ///< `picIndexContainer`
        QWidget& view;      ///< `picIndexPrintFrm`, in which the drawing is moved
        QScrollBar& bar;    ///< `VScroll1`
        QWidget& print;     ///< `imgPrint`
    };

    /// The index is empty at first. `fields` and `measure` outlive the panel.
    ///
    /// @param font  the font that `measure` measures, in its regular weight
    ElementIndexPanel(const Places& places, const ProjectFields& fields, const TextMeasure& measure,
                      const QFont& font);

    /// Keeps the place as far as the new drawing goes. From now on the index can be printed.
    void RebuildElementIndex() override;

    /// Leaves nothing that could be printed.
    void clearIndex() override;

    void enableIndex(bool on) override;

    /// True while the wheel moves the index.
    [[nodiscard]] bool indexHasFocus() const { return surface_->hasFocus(); }

private:
    void VScroll1_Change();
    void show(const ElementIndex& index);

    Places places_;
    const ProjectFields& fields_;
    const TextMeasure& measure_;
    IndexSurface* surface_;
};

} // namespace quillford
