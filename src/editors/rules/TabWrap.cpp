#include "editors/rules/TabWrap.h"

#include <optional>

namespace quillford {

namespace {

/// Which member of a repeated field is meant; a field that stands once has only the first.
enum class On { AnyPanel, FirstPanel, LastPanel };

struct Place {
    FieldId field;
    On panel;
};

/// When the focus reaches a place, another gets the number behind a third, or 0 where there is no
/// third. Some rules hold only while the panel of their tab is enabled.
struct WrapRule {
    Place reached;
    std::optional<int> enabledTab;
    Place moved;
    std::optional<FieldId> behind; ///< on the last panel
};

using enum FieldId;

constexpr WrapRule Rules[] = {
    {{txtFileNo, On::AnyPanel}, {}, {txtFileNo, On::FirstPanel}, {}},
    {{txtEmailStep1, On::AnyPanel}, 0, {txtFileNo, On::FirstPanel}, txtEmailStep1},
    {{cboInventorsNum, On::AnyPanel}, {}, {cboCitizenshipStep2, On::LastPanel}, txtZipStep2},
    {{cboCitizenshipStep2, On::LastPanel}, 1, {cboCitizenshipStep2, On::LastPanel}, {}},
    {{txtPurpose, On::AnyPanel}, {}, {txtPurpose, On::FirstPanel}, {}},
    {{txtObject, On::LastPanel}, 2, {txtPurpose, On::FirstPanel}, txtObject},
    {{txtFigureDetail, On::LastPanel}, 3, {cboFiguresNum, On::FirstPanel}, txtFigureDetail},
    {{txtMainElement, On::AnyPanel}, {}, {txtMainElement, On::FirstPanel}, {}},
    {{txtElementDes, On::LastPanel}, 4, {txtMainElement, On::FirstPanel}, txtElementDes},
    {{txtElementMain, On::FirstPanel}, {}, {txtElementMain, On::FirstPanel}, {}},
    {{txtElementSub9, On::LastPanel}, 5, {txtElementMain, On::FirstPanel}, txtElementSub9},
    {{txtMainElementNameDetail, On::AnyPanel},
     {},
     {txtDesAlterative, On::FirstPanel},
     txtDesConnections},
    {{txtDesAlterative, On::AnyPanel}, 6, {txtDesAlterative, On::FirstPanel}, {}},
};

} // namespace

TabWrap::TabWrap(const ProjectFields& fields, const PageStack& pages, FocusOrder& order)
    : fields_(fields), pages_(pages), order_(order) {}

void TabWrap::focusReached(FieldPlace place) {
    for (const WrapRule& rule : Rules) {
        if (rule.reached.field != place.field ||
            (rule.reached.panel == On::FirstPanel && place.index != 0) ||
            (rule.reached.panel == On::LastPanel && place.index != lastPanel(place.field)) ||
            (rule.enabledTab && !pages_.isPanelEnabled(*rule.enabledTab)))
            continue;
        const FieldId moved = rule.moved.field;
        const bool last = rule.moved.panel == On::LastPanel;
        const QString control = controlName({moved, last ? lastPanel(moved) : 0});
        if (rule.behind)
            order_.chainTabIndex(controlName({*rule.behind, lastPanel(*rule.behind)}), control);
        else
            order_.setTabIndex(control, 0);
    }
}

int TabWrap::lastPanel(FieldId field) const {
    const FieldGroup group = fieldRow(field).group;
    return group == FieldGroup::Single ? 0 : fields_.panelCount(group) - 1;
}

} // namespace quillford
