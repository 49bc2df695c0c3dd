#include "editors/index/ElementIndexPanel.h"

namespace quillford {

ElementIndexPanel::ElementIndexPanel(const Places& places, const ProjectFields& fields,
                                     const TextMeasure& measure, const QFont& font)
    : QObject(&places.container),
      places_(places),
      fields_(fields),
      measure_(measure),
      surface_(new IndexSurface(places.view, font)) {
    surface_->setObjectName(QStringLiteral("picIndexOfMainElementD"));
    connect(&places_.bar, &QScrollBar::valueChanged, this, &ElementIndexPanel::VScroll1_Change);
    clearIndex();
}

void ElementIndexPanel::RebuildElementIndex() {
    show(layOutElementIndex(fields_, measure_));
}

void ElementIndexPanel::clearIndex() {
    show({{}, 0});
}

void ElementIndexPanel::enableIndex(bool on) {
    places_.container.setEnabled(on);
}

void ElementIndexPanel::VScroll1_Change() {
    surface_->move(surface_->x(), -places_.bar.value());
}

/// The bar keeps its place as far as the new range goes, and tells of it where it does not.
void ElementIndexPanel::show(const ElementIndex& index) {
    surface_->draw(index);
    const ScrollBarState bar = elementIndexBar(index.height, places_.view.height());
    places_.bar.setMaximum(bar.maximum);
    places_.bar.setPageStep(bar.largeChange);
    places_.bar.setEnabled(bar.enabled);
    places_.print.setEnabled(index.height != 0);
}

} // namespace quillford
