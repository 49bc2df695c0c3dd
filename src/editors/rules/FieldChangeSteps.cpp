#include "editors/rules/FieldChangeSteps.h"

#include "base/Text.h"
#include "core/text/TitleCaption.h"

namespace quillford {

namespace {

bool isStateList(FieldId field) {
    return field == FieldId::cboStateStep1 || field == FieldId::cboStateStep2;
}

/// The path of a figure is no language.
bool isLanguage(const FieldRow& row) {
    const bool isText = row.kind == FieldKind::Text || row.kind == FieldKind::MultiLine ||
                        row.kind == FieldKind::MultiLineNoBar;
    return isText && row.id != FieldId::txtAttachFig;
}

} // namespace

FieldChangeSteps::FieldChangeSteps(ProjectFields& fields, const ProjectState& state,
                                   ContactMirror& mirror, FieldScreen& screen, TitleLine& title,
                                   ElementIndexView& index, const TextMeasure& measure)
    : fields_(fields),
      state_(state),
      contact_(mirror),
      screen_(screen),
      title_(title),
      index_(index),
      measure_(measure) {}

void FieldChangeSteps::fieldChanged(FieldId field, int index) {
    const FieldPlace place{field, index};
    screen_.showText(place);
    if (state_.resetting)
        return showSentence(place);
    mirror(place);
    // Nobody chooses a state that is loaded.
    if (!isStateList(field) || state_.isLoading)
        whiten(place);
    spell(place);
    extra(place);
}

void FieldChangeSteps::clicked(FieldPlace place) {
    whiten(place);
    contact_.mirror(place.field);
}

void FieldChangeSteps::focusLost(FieldPlace place) {
    if (place.field == FieldId::cboStateStep1)
        contact_.cboStateStep1_LostFocus();
    // A panel that is taken off the screen loses the focus, and its fields may be gone before it.
    if (fieldRow(place.field).group == FieldGroup::SubElements &&
        place.index < fields_.count(place.field) &&
        fields_.at(place.field, place.index).isChanged())
        index_.RebuildElementIndex();
}

void FieldChangeSteps::mirror(FieldPlace place) {
    if (!isStateList(place.field))
        contact_.mirror(place.field);
    if (!state_.isLoading)
        bindName(place);
}

/// The name of a Main Element stands in two sections. Section 6 may have other panels than Section
/// 5 while the number of elements is being changed.
void FieldChangeSteps::bindName(FieldPlace place) {
    const int panels = fields_.txtElementMain.count();
    const int i = place.index;
    if (place.field == FieldId::txtElementName && panels == fields_.cboMainElementNum.number() &&
        i < panels)
        fields_.txtElementMain(i).setText(fields_.txtElementName(i).trimmedText());
    if (place.field == FieldId::txtElementMain && i < fields_.txtElementName.count())
        fields_.txtElementName(i).setText(fields_.txtElementMain(i).trimmedText());
}

/// Only required fields are ever tinted. One that is emptied again stays white.
void FieldChangeSteps::whiten(FieldPlace place) {
    if (fieldRow(place.field).required == FieldRequired::Yes &&
        fields_.at(place.field, place.index).isFilled())
        screen_.whiten(place);
}

void FieldChangeSteps::spell(FieldPlace place) {
    if (isLanguage(fieldRow(place.field)) &&
        isWorthSpelling(fields_.at(place.field, place.index).text()))
        screen_.SpellAttach(place);
}

void FieldChangeSteps::extra(FieldPlace place) {
    if (place.field == FieldId::txtFileNo || place.field == FieldId::txtInventionTitle)
        title_.showTitleInvention(titleInventionCaption(
            fields_.txtFileNo.text(), fields_.txtInventionTitle.text(), measure_));
    showSentence(place);
    if (place.field == FieldId::chkSameAsContact)
        contact_.chkSameAsContact_Click();
}

/// The article of the sentence goes by the view that is shown.
void FieldChangeSteps::showSentence(FieldPlace place) {
    if (place.field == FieldId::cboFigureType)
        screen_.showFigureSentence(place.index);
}

bool isWorthSpelling(QStringView text) noexcept {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    return text.contains(u' ');
}

} // namespace quillford
