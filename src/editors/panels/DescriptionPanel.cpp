#include "editors/panels/DescriptionPanel.h"

#include "controls/ControlArrays.h"
#include "controls/StarCaption.h"
#include "controls/Theme.h"
#include "controls/WrappedCaption.h"
#include "editors/panels/FrameCaption.h"
#include "editors/rules/DescriptionCaptions.h"
#include "editors/rules/DescriptionFlow.h"
#include "ui_DescriptionPanel.h"

namespace quillford {

namespace {

void moveTop(QWidget& widget, int top) {
    widget.move(widget.x(), top);
}

/// Gives the label the height of its wrapped text.
int wrap(QLabel& label) {
    const int height = wrappedHeight(label.text(), QuestionWidth, label.font());
    label.resize(QuestionWidth, height);
    return height;
}

} // namespace

DescriptionPanel::DescriptionPanel(int element, QWidget& page, BoundFields& bound)
    : QWidget(&page), element_(element), parts_(std::make_unique<Ui::DescriptionPanel>()) {
    parts_->setupUi(this);
    theme::colour(*parts_->lblDesElementNameValidate, theme::Star);
    nameRepeated(*this, element);
    bound.bindAll(*this);
}

DescriptionPanel::~DescriptionPanel() = default;

void DescriptionPanel::quoteName(const QString& name, int count, const TextMeasure& measure) {
    showFrameCaption(*parts_->lblDesOfMainElement,
                     descriptionFrameCaption(element_, count, name, measure));
    const QString detail = detailQuestion(element_, name, measure);
    parts_->lblMainElementNameDetail->setText(detail);
    parts_->txtMainElementNameDetail->setAccessibleName(detail);
    parts_->lblDesElementNameValidate->setText(detailQuestionStar(detail));
    const QString variations = variationsQuestion(element_, name, measure);
    parts_->lblMainElementVariations->setText(variations);
    parts_->txtMainElementVariations->setAccessibleName(variations);
    fit();
}

void DescriptionPanel::fit() {
    wrap(*parts_->lblDesElementNameValidate);
    showStarAlone(*parts_->lblDesElementNameValidate);
    const int detailHeight = wrap(*parts_->lblMainElementNameDetail);
    const int variationsHeight = wrap(*parts_->lblMainElementVariations);
    const DescriptionPanelPlaces places = descriptionPanelPlaces(detailHeight, variationsHeight);
    moveTop(*parts_->txtMainElementNameDetail, places.detailTop);
    moveTop(*parts_->lblMainElementVariations, places.variationsTop);
    moveTop(*parts_->txtMainElementVariations, places.variationsBoxTop);
    QWidget& frame = *parts_->shpDesOfMainElement;
    frame.resize(frame.width(), places.frameHeight);
    resize(width(), places.panelHeight);
}

} // namespace quillford
