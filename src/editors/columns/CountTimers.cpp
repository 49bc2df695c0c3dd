#include "editors/columns/CountTimers.h"

#include "core/wizard/FocusOrder.h"

#include <algorithm>
#include <iterator>

namespace quillford {

namespace {

constexpr int Interval = 2; // milliseconds

/// One list of counts; its place in the table is the index of its timer.
struct CountColumn {
    FieldId count;
    int tab;
    void (EditorColumns::*lay)(int);
};

constexpr CountColumn Columns[] = {
    {FieldId::cboInventorsNum, 1, &EditorColumns::LayoutInventors},
    {FieldId::cboObjectNum, 2, &EditorColumns::LayoutObjects},
    {FieldId::cboFiguresNum, 3, &EditorColumns::LayoutFigures},
    {FieldId::cboMainElementNum, 4, &EditorColumns::LayoutMainElements},
};

} // namespace

CountTimers::CountTimers(const ProjectFields& fields, BoundFields& bound, PageStack& pages,
                         EditorColumns& columns)
    : fields_(fields), pages_(pages), columns_(columns) {
    for (int i = 0; i < static_cast<int>(Timer_.size()); ++i) {
        QTimer& timer = Timer_[static_cast<std::size_t>(i)];
        timer.setObjectName(controlName(u"Timer", i));
        timer.setParent(this);
        timer.setSingleShot(true);
        timer.setInterval(Interval);
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, this, [this, i] { Timer_Timer(i); });
    }
    connect(&bound, &BoundFields::chosen, this, &CountTimers::countChosen);
}

void CountTimers::countChosen(const FieldPlace& place) {
    const auto* column = std::find_if(std::begin(Columns), std::end(Columns),
                                      [&](const CountColumn& c) { return c.count == place.field; });
    if (column == std::end(Columns))
        return;
    Timer_[static_cast<std::size_t>(column - std::begin(Columns))].start();
    if (pages_.isPanelEnabled(column->tab))
        pages_.focusPanel(column->tab);
}

void CountTimers::Timer_Timer(int index) {
    const CountColumn& column = Columns[index];
    const int count = fields_.at(column.count).number();
    // With no figure one panel stays all the same.
    (columns_.*column.lay)(std::max(count, 1));
}

} // namespace quillford
