#include "editors/pages/PageFigures.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/columns/PanelCount.h"
#include "editors/panels/ShrunkPicture.h"
#include "editors/rules/FigureSentence.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageFigures.h"

#include <algorithm>

namespace quillford {

PageFigures::PageFigures(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                         FocusOrder& order, const Desktop& desktop)
    : QObject(&panel),
      fields_(fields),
      bound_(bound),
      order_(order),
      desktop_(desktop),
      attachment_(fields, desktop.sizes, desktop.prompts, *this) {
    const auto parts = fillPanel<Ui::PageFigures>(panel);
    theme::makeHeadings(panel, {u"lblFigures"});
    theme::colour(*parts.lnFigure, theme::Line);
    bound.bindAll(panel);
    view_ = parts.picFigureContainer;
    bar_ = parts.vscroll_2;
    column_ = new PanelColumn(EditorColumn::Figures, *view_, *bar_,
                              [this](int figure) { return makePanel(figure); });
    followTab(bound, *column_);
    connect(&bound, &BoundFields::chosen, this, &PageFigures::chosen);
    // The first panel is numbered before the section is entered, since the others follow it.
    int number = 1;
    for (const QStringView control :
         {u"cboFigureType", u"imgBrowse", u"imgRemove", u"txtFigureDetail"})
        order.setTabIndex(controlName(control, 0), number++);
    LayoutFigures(fields.panelCount(FieldGroup::Figures));
}

void PageFigures::LayoutFigures(int count) {
    const int before = column_->panelCount();
    setPanelCount(*column_, fields_, FieldGroup::Figures, count);
    const int now = column_->panelCount();
    for (int i = before; i < now; ++i)
        showFigureSentence(i);
    numberPanels(FieldGroup::Figures, std::max(before, 1), now, order_);
    column_->layOut(now);
    showFigures(fields_.cboFiguresNum.number() != 0);
}

QWidget* PageFigures::makePanel(int figure) {
    auto* panel = new FigurePanel(figure, *view_, bound_);
    connect(panel, &FigurePanel::imgBrowse_Click, this,
            [this, figure] { attachment_.imgBrowse_Click(figure); });
    connect(panel, &FigurePanel::imgRemove_Click, this,
            [this, figure] { attachment_.imgRemove_Click(figure); });
    // The path is not typed into, so the view follows the Tab key to its button.
    connect(panel, &FigurePanel::browseReachedByTab, this,
            [this, figure](const QWidget& button) { column_->FollowTab(button, figure); });
    return panel;
}

FigurePanel& PageFigures::figurePanel(int figure) const {
    return static_cast<FigurePanel&>(column_->panel(figure));
}

void PageFigures::chosen(const FieldPlace& place) {
    if (place.field == FieldId::cboFiguresNum)
        attachment_.cboFiguresNum_Click();
    else if (place.field == FieldId::cboFigureType)
        attachment_.cboFigureType_Click(place.index);
}

void PageFigures::showFigureSentence(int figure) {
    if (figure < column_->panelCount())
        figurePanel(figure).showSentence(
            figureSentence(figure, fields_.cboFigureType(figure).text()));
}

/// The panel may still show the picture of the project before.
void PageFigures::showPicture(int index) {
    clearPicture(index);
    attachment_.showWorkingCopy(index);
}

void PageFigures::removePicture(int index) {
    if (index >= column_->panelCount())
        return;
    clearPicture(index);
    showNoFigure(index, true);
}

void PageFigures::showFigures(bool on) {
    view_->setVisible(on);
    bar_->setVisible(on);
}

void PageFigures::showPicture(int figure, const QString& path, const QRect& place) {
    const QSize pixels = place.size() * view_->devicePixelRatio();
    figurePanel(figure).showPicture(shrunkPicture(desktop_.pictures.picture(path), pixels), place);
}

void PageFigures::clearPicture(int figure) {
    figurePanel(figure).showPicture({}, QRect(0, 0, FigureBoxSide, FigureBoxSide));
}

void PageFigures::showNoFigure(int figure, bool on) {
    figurePanel(figure).showNoFigure(on);
}

} // namespace quillford
