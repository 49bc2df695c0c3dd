#pragma once

#include "core/fields/ProjectFields.h"

namespace quillford {

/// Gives a group of panels its number, in the count field and on the panels.
inline void setCount(ProjectFields& fields, FieldGroup group, int count) {
    fields.at(groupLimits(group).count).setText(QString::number(count));
    for (const FieldGroup other : RepeatingGroups)
        if (groupLimits(other).count == groupLimits(group).count)
            fields.setPanelCount(other, count);
}

/// A small project: two inventors, two objects, one figure and three Main Elements, of which the
/// second has a Sub-Element.
inline void fillWidgetHolder(ProjectFields& fields) {
    fields.txtFileNo.setText(QStringLiteral("QF-7"));
    fields.txtInventionTitle.setText(QStringLiteral("Widget Holder"));
    fields.txtTechTitle.setText(QStringLiteral("Fastener"));

    setCount(fields, FieldGroup::Inventors, 2);
    fields.txtNameStep2(0).setText(QStringLiteral("ann"));
    fields.txtMIStep2(0).setText(QStringLiteral("b"));
    fields.txtLastStep2(0).setText(QStringLiteral("COLE"));
    fields.cboCitizenshipStep2(0).setText(QStringLiteral("United States"));
    fields.txtNameStep2(1).setText(QStringLiteral("Ed"));
    fields.txtLastStep2(1).setText(QStringLiteral("Fox"));
    fields.cboCitizenshipStep2(1).setText(QStringLiteral("Canada"));

    fields.txtPurpose.setText(QStringLiteral("holding One Widget"));
    setCount(fields, FieldGroup::Objects, 2);
    fields.txtObject(0).setText(QStringLiteral("holds fast"));
    fields.txtObject(1).setText(QStringLiteral("lets go."));

    setCount(fields, FieldGroup::Figures, 1);
    fields.txtAttachFig(0).setText(QStringLiteral("/nowhere/fig1.png"));
    fields.cboFigureType(0).setText(QStringLiteral("upper perspective view"));
    fields.txtFigureDetail(0).setText(QStringLiteral("the holder is open"));

    fields.txtMainElement.setText(QStringLiteral("a base, a Clip and a pin"));
    setCount(fields, FieldGroup::MainElements, 3);
    const QString names[] = {QStringLiteral("base of steel"), QStringLiteral("clip"),
                             QStringLiteral("pin")};
    for (int i = 0; i < 3; ++i) {
        fields.txtElementName(i).setText(names[i]);
        fields.txtElementDes(i).setText(names[i] + QStringLiteral(" described"));
        fields.txtMainElementNameDetail(i).setText(names[i] + QStringLiteral(" in detail"));
        fields.txtMainElementVariations(i).setText(names[i] + QStringLiteral(" varied"));
    }
    fields.txtElementSub1(1).setText(QStringLiteral("spring"));

    fields.txtDesConnections.setText(QStringLiteral("the clip sits on the base"));
    fields.txtDesAlterative.setText(QStringLiteral("a screw instead"));
    fields.txtOperation.setText(QStringLiteral("press the clip"));
}

} // namespace quillford
