#include "editors/rules/ContactMirror.h"

#include "editors/rules/PanelTabOrder.h"

namespace quillford {

namespace {

struct MirrorPair {
    FieldId contact;
    FieldId inventor;
};

using enum FieldId;

/// The country of the contact is the citizenship of the inventor.
constexpr MirrorPair Pairs[] = {
    {txtNameStep1, txtNameStep2},           {txtMIStep1, txtMIStep2},
    {txtLastStep1, txtLastStep2},           {txtAddress1Step1, txtAddress1Step2},
    {txtAddress2Step1, txtAddress2Step2},   {txtCityStep1, txtCityStep2},
    {cboStateStep1, cboStateStep2},         {txtZipStep1, txtZipStep2},
    {cboCountryStep1, cboCitizenshipStep2},
};

} // namespace

ContactMirror::ContactMirror(ProjectFields& fields, const ProjectState& state, UserPrompts& prompts,
                             FieldScreen& screen, FocusOrder& order)
    : fields_(fields), state_(state), prompts_(prompts), screen_(screen), order_(order) {}

void ContactMirror::mirror(FieldId field) {
    if (state_.isLoading || state_.resetting || !isChecked())
        return;
    for (const MirrorPair& pair : Pairs)
        if (pair.contact == field)
            passOn(pair.inventor, fields_.at(field).text());
}

void ContactMirror::chkSameAsContact_Click() {
    if (!isChecked())
        return release();
    if (!PromptSameAsContact())
        return;
    if (prompts_.askYesNo(UserPrompts::Icon::Question, QStringLiteral("Information"),
                          QStringLiteral("Do you want Quillford 3.1 to use the information "
                                         "provided in section 1.Introduction for the First "
                                         "Inventor?")))
        useContact();
    else
        fields_.chkSameAsContact.setText(QStringLiteral("0")); // comes back here
}

void ContactMirror::cboStateStep1_LostFocus() {
    // A project that is opened takes the focus away, and brings an inventor of its own.
    if (state_.commandsRunning > 0)
        return;
    passOn(cboStateStep2, fields_.cboStateStep1.text());
}

bool ContactMirror::isChecked() const {
    return fields_.chkSameAsContact.text() == u"1";
}

void ContactMirror::release() {
    enableInventor(true);
    numberInventors(fields_.panelCount(FieldGroup::Inventors), order_);
}

void ContactMirror::useContact() {
    for (const MirrorPair& pair : Pairs)
        passOn(pair.inventor, textToUse(fields_.at(pair.contact)));
    enableInventor(false);
}

/// The zip code goes by the city: without a city it does not pass over.
QString ContactMirror::textToUse(const Field& contact) const {
    const FieldId field = contact.row().id;
    if (field == txtZipStep1 && !fields_.txtCityStep1.isFilled())
        return {};
    if (field == cboCountryStep1 || (field == cboStateStep1 && contact.isFilled()))
        return contact.text();
    return contact.trimmedText();
}

void ContactMirror::enableInventor(bool on) {
    for (const MirrorPair& pair : Pairs)
        screen_.enableField({pair.inventor}, on);
}

/// A state turns white by a choice alone, and nobody can choose in a list that is disabled.
void ContactMirror::passOn(FieldId partner, const QString& text) {
    Field& inventor = fields_.at(partner);
    inventor.setText(text);
    if (partner == cboStateStep2 && inventor.isFilled())
        screen_.whiten({partner});
}

} // namespace quillford
