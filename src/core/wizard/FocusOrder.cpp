#include "core/wizard/FocusOrder.h"

#include <algorithm>
#include <iterator>

namespace quillford {

namespace {

/// A step of the Tab key. A control of the group `Single` is met once; neighbours of another group
/// are met panel by panel.
struct FocusStep {
    int tab;
    QStringView control;
    FieldGroup group = FieldGroup::Single;
};

constexpr auto Inventors = FieldGroup::Inventors;
constexpr auto MainElements = FieldGroup::MainElements;
constexpr auto SubElements = FieldGroup::SubElements;

constexpr FocusStep Steps[] = {
    {0, u"txtFileNo"},
    {1, u"cboInventorsNum"},
    {1, u"chkSameAsContact"},
    {1, u"txtNameStep2", Inventors},
    {1, u"txtMIStep2", Inventors},
    {1, u"txtLastStep2", Inventors},
    {1, u"txtAddress1Step2", Inventors},
    {1, u"txtAddress2Step2", Inventors},
    {1, u"txtCityStep2", Inventors},
    {1, u"cboStateStep2", Inventors},
    {1, u"txtZipStep2", Inventors},
    {1, u"cboCitizenshipStep2", Inventors},
    {2, u"txtPurpose"},
    {2, u"cboObjectNum"},
    {2, u"txtObject(0)"},
    {3, u"cboFiguresNum"},
    {3, u"cboFigureType(0)"},
    {3, u"imgBrowse(0)"},
    {3, u"imgRemove(0)"},
    {3, u"txtFigureDetail(0)"},
    {4, u"txtMainElement"},
    {4, u"cboMainElementNum"},
    {4, u"txtElementName", MainElements},
    {4, u"txtElementDes", MainElements},
    {5, u"txtElementMain", SubElements},
    {5, u"txtElementSub1", SubElements},
    {5, u"txtElementSub2", SubElements},
    {5, u"txtElementSub3", SubElements},
    {5, u"txtElementSub4", SubElements},
    {5, u"txtElementSub5", SubElements},
    {5, u"txtElementSub6", SubElements},
    {5, u"txtElementSub7", SubElements},
    {5, u"txtElementSub8", SubElements},
    {5, u"txtElementSub9", SubElements},
    {7, u"txtOperation"},
};

/// The fixed number of a tab's first control. The count of inventors leaves 0 to whichever field
/// closes its ring.
constexpr int firstTabIndex(int tab) {
    return tab == 1 ? 1 : 0;
}

} // namespace

QString controlName(QStringView name, int index) {
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

QString controlName(FieldPlace place) {
    const FieldRow& row = fieldRow(place.field);
    return row.group == FieldGroup::Single ? row.name.toString()
                                           : controlName(row.name, place.index);
}

QStringList focusOrderOf(int tab, const ProjectFields& fields) {
    QStringList controls;
    for (auto step = std::begin(Steps); step != std::end(Steps);) {
        const auto end = std::find_if(step, std::end(Steps), [&](const FocusStep& other) {
            return other.tab != step->tab || other.group != step->group;
        });
        const bool single = step->group == FieldGroup::Single;
        const int panels = single ? 1 : fields.panelCount(step->group);
        for (int i = 0; step->tab == tab && i < panels; ++i)
            for (auto member = step; member != end; ++member)
                controls.append(single ? member->control.toString()
                                       : controlName(member->control, i));
        step = end;
    }
    return controls;
}

void FocusOrder::chainTabIndex(const QString& previous, const QString& next) {
    setTabIndex(next, tabIndex(previous) + 1);
}

void FocusOrder::enterTab(int tab, const ProjectFields& fields) {
    const QStringList controls = focusOrderOf(tab, fields);
    if (controls.isEmpty())
        return;
    setTabIndex(controls.first(), firstTabIndex(tab));
    for (qsizetype i = 1; i < controls.size(); ++i)
        chainTabIndex(controls[i - 1], controls[i]);
}

} // namespace quillford
