#include "core/commands/NewProject.h"

#include "core/commands/Pause.h"
#include "core/fields/SaveFlag.h"

namespace quillford {

namespace {

bool isTextBox(const FieldRow& row) {
    return row.kind == FieldKind::Text || row.kind == FieldKind::MultiLine ||
           row.kind == FieldKind::MultiLineNoBar;
}

bool isCombo(const FieldRow& row) {
    return row.kind == FieldKind::Combo || row.kind == FieldKind::List;
}

void setToInitial(Field& field) {
    field.setText(field.row().initial.toString());
}

} // namespace

NewProject::NewProject(Project& project, mdlSystem& system, SectionRules& rules,
                       WizardNavigator& navigator, WizardScreen& screen, ProjectStore& store,
                       SpellEngine& spelling, Clock& clock)
    : project_(project),
      system_(system),
      rules_(rules),
      navigator_(navigator),
      screen_(screen),
      store_(store),
      spelling_(spelling),
      clock_(clock) {}

void NewProject::NewFile() {
    const CommandScope running(project_.state);
    clearOpenMarker();
    reloadDictionary();
    screen_.project.showBlankPreview();
    project_.state.draftCurrent = false;
    clearFigures();
    forgetFile();
    project_.state.resetting = true;
    store_.resetRecentCounters();
    layOutPanels();
    setDefaults();
    emptyTexts();
    // The layout has drawn the names of the old project once more.
    screen_.index.clearIndex();
    Pause(1, clock_, system_);
    rules_.forgetVerdicts();
    project_.state.saveFlag = false;
    project_.state.resetting = false;
    hideWelcomePage();
    showFirstSection();
}

void NewProject::clearOpenMarker() {
    if (!project_.state.projectFileName.isEmpty())
        store_.clearOpenMarker();
}

void NewProject::reloadDictionary() {
    if (spelling_.hasDictionary())
        spelling_.loadDictionary(system_.appFolder + QStringLiteral("Dictionary/SpellUS.lex"));
}

void NewProject::clearFigures() {
    ProjectFields& fields = project_.fields;
    for (int i = 0; i < fields.panelCount(FieldGroup::Figures); ++i) {
        fields.txtAttachFig(i).setText(QString());
        screen_.columns.removePicture(i);
    }
}

/// All names go together: one that stayed would tie the new project to the files of the old one.
void NewProject::forgetFile() {
    ProjectState& state = project_.state;
    for (QString* name : {&state.projectFileName, &state.draftFileName, &state.realFileName,
                          &state.shadowFileName, &state.timerSavedFileName})
        name->clear();
    state.isDraftProject = false;
    state.isRecovered = false;
    state.isRefused = false;
}

/// Comes before the other defaults, since an inventor who is hidden loses his state, and before the
/// changed marks are cleared, since panels that are dropped change texts.
void NewProject::layOutPanels() {
    ProjectFields& fields = project_.fields;
    for (const FieldGroup group : RepeatingGroups)
        setToInitial(fields.at(groupLimits(group).count));
    const int elements = fields.cboMainElementNum.number();
    screen_.columns.LayoutInventors(fields.cboInventorsNum.number());
    screen_.columns.LayoutObjects(fields.cboObjectNum.number());
    screen_.columns.LayoutFigures(fields.cboFiguresNum.number());
    screen_.columns.LayoutMainElements(elements);
    screen_.columns.LayoutSubElements(elements);
    screen_.columns.LayoutDescriptions(elements);
}

void NewProject::setDefaults() {
    ProjectFields& fields = project_.fields;
    for (const FieldRow& row : fieldTable())
        for (int i = 0; isCombo(row) && i < fields.count(row.id); ++i)
            setToInitial(fields.at(row.id, i));
    screen_.columns.removePicture(0);
}

void NewProject::emptyTexts() {
    ProjectFields& fields = project_.fields;
    for (const FieldRow& row : fieldTable())
        for (int i = 0; isTextBox(row) && i < fields.count(row.id); ++i)
            fields.at(row.id, i).setText(QString());
    clearChangedMarks(fields);
    screen_.guidance.whitenAll();
    // While the fields are reset their changes do not write the title line.
    screen_.title.showTitleInvention(QString());
}

/// At the start of the program the Welcome page stays, or comes only now.
void NewProject::hideWelcomePage() {
    if (system_.tabSwitchCount > 0 && screen_.project.isWelcomePageShown())
        screen_.project.hideWelcomePage();
}

void NewProject::showFirstSection() {
    navigator_.SwitchTab(0);
    screen_.autoSave.setAutoSaveEnabled(true);
    project_.state.fileOrigin = QStringLiteral("new");
    screen_.guidance.TextHighLight(0);
    screen_.pages.HelpOn(0);
}

} // namespace quillford
