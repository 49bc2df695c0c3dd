#include "editors/columns/PanelColumn.h"

#include <QSignalBlocker>

namespace quillford {

PanelColumn::PanelColumn(EditorColumn column, QWidget& view, QScrollBar& bar, MakePanel makePanel)
    : QObject(&view),
      view_(view),
      bar_(bar),
      makePanel_(std::move(makePanel)),
      arithmetic_(column) {
    connect(&bar_, &QScrollBar::valueChanged, this, &PanelColumn::vscroll_Change);
}

void PanelColumn::dropPanelsFrom(int count) {
    while (panels_.size() > count)
        delete panels_.takeLast();
}

void PanelColumn::makePanelsUpTo(int count) {
    while (panels_.size() < count) {
        QWidget* panel = makePanel_(panelCount());
        panels_.append(panel);
        panel->show();
    }
}

void PanelColumn::layOut(int shown) {
    shown_ = shown;
    arithmetic_.layOut(heights(shown));
    obey();
}

void PanelColumn::reflow() {
    arithmetic_.reflow(heights(shown_));
    obey();
}

void PanelColumn::ScrollPanelTo(int row, bool atEnd, int position) {
    arithmetic_.ScrollPanelTo(row, atEnd, position);
    obey();
}

void PanelColumn::ScrollPanelTo(const PanelTarget& target) {
    arithmetic_.ScrollPanelTo(target);
    obey();
}

void PanelColumn::FollowTab(const QWidget& control, int panel) {
    const auto target = quillford::FollowTab(arithmetic_.column(), arithmetic_.place(),
                                             {control.y(), control.height(), panel});
    if (target)
        ScrollPanelTo(*target);
}

QList<int> PanelColumn::heights(int shown) const {
    QList<int> heights;
    for (int i = 0; i < shown; ++i)
        heights.append(panels_[i]->height());
    return heights;
}

void PanelColumn::vscroll_Change(int value) {
    arithmetic_.vscroll_Change(value);
    obey();
}

/// One top is written for each panel, and nothing is painted from here.
void PanelColumn::obey() {
    const ColumnPlace& place = arithmetic_.place();
    for (qsizetype i = 0; i < place.tops.size(); ++i)
        panels_[i]->move(panels_[i]->x(), place.tops[i]);
    if (arithmetic_.column() == EditorColumn::Descriptions)
        view_.move(view_.x(), place.pageTop);
    const ScrollBarState& bar = arithmetic_.bar();
    const QSignalBlocker quiet(bar_);
    bar_.setEnabled(bar.enabled);
    bar_.setMaximum(bar.maximum);
    bar_.setPageStep(bar.largeChange);
    bar_.setValue(bar.value);
    bar_.update();
}

} // namespace quillford
