#include "core/rules/SectionRules.h"

#include "base/Error.h"
#include "core/rules/Completeness.h"

#include <algorithm>
#include <initializer_list>

namespace quillford {

namespace {

const QString Ok = QStringLiteral("OK");
const QString Warning = QStringLiteral("WARNING");

const QString& statusOf(bool complete) {
    return complete ? Ok : Warning;
}

/// A braced list is evaluated from left to right and to its end: every term of a rule is looked at
/// in its order, whatever the ones before it said.
bool allOf(std::initializer_list<bool> terms) {
    return std::all_of(terms.begin(), terms.end(), [](bool term) { return term; });
}

bool hasSection(int tab) {
    return tab >= 0 && tab < SectionRules::SectionCount;
}

} // namespace

QString namedSections(const QList<int>& numbers) {
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return (texts.size() > 1 ? QStringLiteral("Sections ") : QStringLiteral("Section ")) +
           texts.join(QStringLiteral(", "));
}

SectionRules::SectionRules(const ProjectFields& fields, const ProjectState& state, TabLooks& looks,
                           UserPrompts& prompts)
    : fields_(fields), state_(state), looks_(looks), prompts_(prompts) {}

const QString& SectionRules::tag(int tab) const {
    return tags_.at(static_cast<std::size_t>(tab));
}

bool SectionRules::isComplete(int tab) const {
    return tag(tab) == Ok;
}

QList<int> SectionRules::incompleteSections() const {
    QList<int> sections;
    for (int tab = 0; tab < SectionCount; ++tab)
        if (!isComplete(tab))
            sections.append(tab + 1);
    return sections;
}

/// Runs a step whose failure the user is told of, and nobody else.
template <typename Step>
void SectionRules::trapped(Step step) {
    try {
        step();
    } catch (const Error& error) {
        looks_.setDefaultPointer();
        prompts_.showMessage(UserPrompts::Icon::None, QStringLiteral("Error"), error.description());
    }
}

void SectionRules::validateSection(int tab) {
    if (hasSection(tab))
        trapped([&] { tags_.at(static_cast<std::size_t>(tab)) = statusOf(sectionIsFilled(tab)); });
}

void SectionRules::refreshSection(int tab) {
    trapped([&] {
        if (hasSection(tab))
            setSectionStatus(tab, statusOf(sectionIsFilled(tab)));
        const bool complete = incompleteSections().isEmpty();
        setSectionStatus(FinalDraftTab, statusOf(complete));
        if (!complete)
            looks_.enableDraftCommands(false);
    });
}

void SectionRules::setSectionStatus(int tab, const QString& status) {
    looks_.setTabLook(tab, status == Ok ? TabLook::Complete : TabLook::Incomplete);
    tags_.at(static_cast<std::size_t>(tab)) = status;
}

void SectionRules::forgetVerdicts() {
    for (int tab = 0; tab < TabCount; ++tab)
        setSectionStatus(tab, QString());
}

bool SectionRules::sectionIsFilled(int tab) const {
    using Rule = bool (SectionRules::*)() const;
    static constexpr Rule Rules[SectionCount] = {
        &SectionRules::introductionIsFilled,  &SectionRules::inventorsAreFilled,
        &SectionRules::objectsAreFilled,      &SectionRules::figuresAreFilled,
        &SectionRules::mainElementsAreFilled, &SectionRules::subElementsAreFilled,
        &SectionRules::descriptionsAreFilled, &SectionRules::operationIsFilled,
    };
    Q_ASSERT(hasSection(tab));
    return (this->*Rules[tab])();
}

bool SectionRules::introductionIsFilled() const {
    return requiredSinglesAreFilled(1);
}

bool SectionRules::inventorsAreFilled() const {
    bool filled = true;
    for (const FieldRow& row : fieldTable())
        if (row.group == FieldGroup::Inventors && row.required == FieldRequired::Yes)
            filled &= isFilledWhereVisible(fields_.array(row.id));
    return filled;
}

bool SectionRules::objectsAreFilled() const {
    return allOf({requiredSinglesAreFilled(3), allFieldsFilled(fields_.txtObject)});
}

bool SectionRules::figuresAreFilled() const {
    if (fields_.cboFiguresNum.number() == 0)
        return true;
    return allOf({isFilledWhereVisible(fields_.txtAttachFig),
                  allFieldsFilled(fields_.cboFigureType), allViewsChosen(fields_.cboFigureType),
                  allFieldsFilled(fields_.txtFigureDetail)});
}

bool SectionRules::mainElementsAreFilled() const {
    return allOf({requiredSinglesAreFilled(5), allFieldsFilled(fields_.txtElementName),
                  allFieldsFilled(fields_.txtElementDes)});
}

bool SectionRules::subElementsAreFilled() const {
    return allFieldsFilled(fields_.txtElementMain);
}

bool SectionRules::descriptionsAreFilled() const {
    return allOf({allFieldsFilled(fields_.txtMainElementNameDetail), requiredSinglesAreFilled(7)});
}

bool SectionRules::operationIsFilled() const {
    return requiredSinglesAreFilled(8);
}

bool SectionRules::requiredSinglesAreFilled(int section) const {
    bool filled = true;
    for (const FieldRow& row : fieldTable())
        if (row.section == section && row.group == FieldGroup::Single &&
            row.required == FieldRequired::Yes)
            filled &= fields_.at(row.id).isFilled();
    return filled;
}

bool SectionRules::isFilledWhereVisible(const FieldArray& fields) const {
    const int visible = fields_.panelCount(fields.row().group);
    return visibleFieldsFilled(fields, visible, state_.isOpening).answer ==
           VisibleFieldsFilled::Answer::AllFilled;
}

} // namespace quillford
