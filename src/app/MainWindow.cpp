#include "app/MainWindow.h"

#include "editors/pages/PageIntroduction.h"
#include "editors/pages/PageOperation.h"
#include "persistence/project/ProjectFileReader.h"

namespace quillford {

MainWindow::MainWindow(Project& project, mdlSystem& system, Settings& settings,
                       UserPrompts& prompts, const Ports& ports)
    : project_(project),
      ports_(ports),
      form_(system.appFolder, focusOrder_),
      bound_(project.fields),
      pages_(form_, form_.help(), bound_),
      projectScreen_(form_, form_.title(), form_.welcome(), [] {}),
      guidance_(project.fields, project.state, bound_, [](const PanelScroll&) {}),
      columns_(project.fields),
      screen_{form_.looks(), pages_, columns_,       guidance_,
              index_,        form_.title(), projectScreen_, autoSave_},
      rules_(project.fields, project.state, form_.looks(), prompts),
      messages_(system, settings, prompts),
      entry_(project.fields, messages_, focusOrder_, screen_),
      navigator_(project.state, system, rules_, messages_, entry_, screen_),
      mirror_(project.fields, project.state, prompts, bound_, focusOrder_),
      steps_(project.fields, project.state, mirror_, bound_, form_.title(), index_, ports.measure),
      wrap_(project.fields, pages_, focusOrder_),
      timers_(project.fields, bound_, pages_, columns_),
      newProject_(project, system, rules_, navigator_, screen_, store_, ports.spelling,
                  ports.clock) {
    new PageIntroduction(form_.panel(0), bound_);
    new PageOperation(form_.panel(7), bound_);
    joinFields();
    joinNavigation();
    joinWindow();
}

MainWindow::~MainWindow() {
    project_.fields.setObserver(nullptr);
}

void MainWindow::joinFields() {
    project_.fields.setObserver(&steps_);
    QObject::connect(&bound_, &BoundFields::chosen, &form_,
                     [this](const FieldPlace& place) { steps_.clicked(place); });
    QObject::connect(&bound_, &BoundFields::focusLeft, &form_,
                     [this](const FieldPlace& place) { steps_.focusLost(place); });
    QObject::connect(&bound_, &BoundFields::focusReached, &form_,
                     [this](const FieldPlace& place) { wrap_.focusReached(place); });
}

void MainWindow::joinNavigation() {
    QObject::connect(&form_.tabs(), &TabStrip::picTab_Click, &form_,
                     [this](int tab) { navigator_.picTab_Click(tab); });
    QObject::connect(&form_.bar(), &StepBar::btnStep_Click, &form_,
                     [this](int index) { navigator_.btnStep_Click(index); });
    QObject::connect(&form_.welcome(), &WelcomePage::newWanted, &form_,
                     [this] { navigator_.showSectionOne(); });
}

void MainWindow::joinWindow() {}

void MainWindow::OpenFile(const QString&) {}

} // namespace quillford
