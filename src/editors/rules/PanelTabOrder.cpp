#include "editors/rules/PanelTabOrder.h"

#include <QList>

namespace quillford {

namespace {

/// The controls of one panel that the Tab key meets, in the order in which it does.
QList<QStringView> panelControls(FieldGroup group) {
    // The path of a figure is not typed; its buttons stand in for it.
    if (group == FieldGroup::Figures)
        return {u"cboFigureType", u"imgBrowse", u"imgRemove", u"txtFigureDetail"};
    QList<QStringView> names;
    for (const FieldRow& row : fieldTable())
        if (row.group == group)
            names.append(row.name);
    return names;
}

} // namespace

void numberPanels(FieldGroup group, int from, int count, FocusOrder& order) {
    const QList<QStringView> names = panelControls(group);
    const int step = static_cast<int>(names.size());
    for (int i = from; i < count; ++i)
        for (const QStringView name : names)
            order.setTabIndex(controlName(name, i),
                              order.tabIndex(controlName(name, 0)) + step * i);
}

void ResetSubElementTabOrder(int count, FocusOrder& order) {
    numberPanels(FieldGroup::SubElements, 1, count, order);
}

void numberInventors(int count, FocusOrder& order) {
    QString previous = controlName({FieldId::chkSameAsContact});
    order.chainTabIndex(controlName({FieldId::cboCitizenshipStep2}), previous);
    for (const QStringView name : panelControls(FieldGroup::Inventors)) {
        const QString control = controlName(name, 0);
        order.chainTabIndex(previous, control);
        previous = control;
    }
    numberPanels(FieldGroup::Inventors, 1, count, order);
}

void numberDescriptions(int count, FocusOrder& order) {
    const QString connections = controlName({FieldId::txtDesConnections});
    order.chainTabIndex(controlName({FieldId::txtMainElementNameDetail}),
                        controlName({FieldId::txtMainElementVariations}));
    numberPanels(FieldGroup::Descriptions, 1, count, order);
    order.chainTabIndex(controlName({FieldId::txtMainElementVariations, count - 1}), connections);
    order.chainTabIndex(connections, controlName({FieldId::txtDesAlterative}));
}

} // namespace quillford
