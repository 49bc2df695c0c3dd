#include "editors/panels/ObjectPanel.h"

#include "controls/ControlArrays.h"
#include "controls/StarCaption.h"
#include "controls/Theme.h"
#include "controls/WrappedCaption.h"
#include "ui_ObjectPanel.h"

namespace quillford {

namespace {

/// Writes a text that wraps, and gives the label the height of its lines.
void wrap(QLabel& label, const QString& text) {
    label.setText(text);
    label.resize(ObjectSentenceWidth, wrappedHeight(text, ObjectSentenceWidth, label.font()));
}

} // namespace

ObjectPanel::ObjectPanel(int object, QWidget& view, BoundFields& bound)
    : QWidget(&view), parts_(std::make_unique<Ui::ObjectPanel>()) {
    parts_->setupUi(this);
    theme::colour(*parts_->lblObjectValidate, theme::Star);
    nameRepeated(*this, object);
    bound.bindAll(*this);
}

ObjectPanel::~ObjectPanel() = default;

void ObjectPanel::showSentence(const ObjectCaptions& captions) {
    QLabel& sentence = *parts_->lblObject;
    wrap(sentence, captions.sentence);
    wrap(*parts_->lblObjectValidate, captions.sentenceStar);
    showStarAlone(*parts_->lblObjectValidate);
    parts_->txtObject->setAccessibleName(captions.sentence);
    const ObjectPanelPlaces places = objectPanelPlaces(sentence.y(), sentence.height());
    parts_->txtObject->move(parts_->txtObject->x(), places.textTop);
    resize(width(), places.panelHeight);
}

} // namespace quillford
