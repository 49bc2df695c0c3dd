#include "app/MainWindow.h"

#include "controls/ClickLabel.h"
#include "core/rules/ProjectNames.h"
#include "editors/pages/PageIntroduction.h"
#include "editors/pages/PageOperation.h"
#include "shell/HelpPane.h"
#include "shell/KeyCommands.h"
#include "shell/MainMenus.h"

namespace quillford {

namespace {

ElementIndexPanel* makeIndex(frmMain1& form, const ProjectFields& fields, const Ports& ports) {
    const auto part = [&form](const QString& name) -> QWidget& {
        return *form.findChild<QWidget*>(name);
    };
    return new ElementIndexPanel({form.index(), part(QStringLiteral("picIndexPrintFrm")),
                                  *form.findChild<QScrollBar*>(QStringLiteral("VScroll1")),
                                  part(QStringLiteral("imgPrint"))},
                                 fields, ports.measure, ports.measuredFont);
}

/// The pages of Sections 1 to 8, each on its panel, which owns it.
SectionColumns::Pages makePages(frmMain1& form, ProjectFields& fields, BoundFields& bound,
                                FocusOrder& order, ElementIndexView& index, UserPrompts& prompts,
                                const Ports& ports) {
    new PageIntroduction(form.panel(0), bound);
    new PageOperation(form.panel(7), bound);
    SectionColumns::Pages pages{};
    pages.inventors = new PageInventors(form.panel(1), fields, bound, order);
    pages.objects = new PageObjects(form.panel(2), fields, bound, order);
    pages.figures = new PageFigures(form.panel(3), fields, bound, order,
                                    {ports.pictureSizes, ports.pictures, prompts});
    pages.mainElements = new PageMainElements(form.panel(4), fields, bound, order, index);
    pages.subElements = new PageSubElements(form.panel(5), fields, bound, order);
    pages.descriptions =
        new PageDescriptions(form.panel(6), fields, bound, order, ports.measure,
                             [page = pages.subElements] { page->stackSubElements(); });
    return pages;
}

} // namespace

MainWindow::MainWindow(Project& project, mdlSystem& system, Settings& settings,
                       UserPrompts& prompts, const Ports& ports)
    : project_(project),
      system_(system),
      form_(system.appFolder, focusOrder_),
      fileEntries_(new FileMenuEntries(form_.menus().file())),
      tmrAutoSave_(new QTimer(&form_)),
      autoSaveSwitch_(*tmrAutoSave_),
      bound_(project.fields),
      spelling_(ports.spelling, system.appFolder + QStringLiteral("Dictionary/SpellUS.lex"),
                [&project] { return projectNames(project.fields); }),
      pages_(form_, form_.help(), bound_),
      projectScreen_(form_, form_.title(), form_.welcome(),
                     [this] { draft_.page().showBlankPreview(); }),
      guidance_(project.fields, project.state, bound_,
                [this](const PanelScroll& scroll) { columns_.scroll(scroll); }),
      index_(makeIndex(form_, project.fields, ports)),
      columns_(makePages(form_, project.fields, bound_, focusOrder_, *index_, prompts, ports),
               bound_),
      screen_{form_.looks(), pages_,        columns_,       guidance_,
              *index_,       form_.title(), projectScreen_, autoSaveSwitch_},
      rules_(project.fields, project.state, form_.looks(), prompts),
      messages_(system, settings, prompts),
      entry_(project.fields, messages_, focusOrder_, screen_),
      navigator_(project.state, system, rules_, messages_, entry_, screen_),
      mirror_(project.fields, project.state, prompts, bound_, focusOrder_),
      steps_(project.fields, project.state, mirror_, bound_, form_.title(), *index_, ports.measure),
      wrap_(project.fields, pages_, focusOrder_),
      timers_(project.fields, bound_, pages_, columns_),
      files_(project, system, settings, prompts,
             {rules_, navigator_, screen_, form_.title(), *tmrAutoSave_}, ports),
      draft_(project, system, settings, prompts,
             {form_, form_.panel(SectionRules::FinalDraftTab), rules_, navigator_, screen_}, files_,
             ports) {
    pages_.setPage(SectionRules::FinalDraftTab, draft_.page());
    numberSingleFields();
    joinFields();
    joinNavigation();
    joinMenus();
    joinDraft();
    joinKeys();
    joinWheel();
    joinRecentProjects();
    form_.menus().showWords();
}

MainWindow::~MainWindow() {
    project_.fields.setObserver(nullptr);
}

/// The designed order of the Tab key, until a section that is entered numbers its own.
void MainWindow::numberSingleFields() {
    int number = 0;
    for (const FieldRow& row : fieldTable())
        if (row.group == FieldGroup::Single)
            focusOrder_.setTabIndex(row.name.toString(), number++);
}

void MainWindow::joinFields() {
    project_.fields.setObserver(&steps_);
    bound_.setHooks({[this](QWidget& control) { spelling_.SpellAttach(control); },
                     [this](int figure) { columns_.showFigureSentence(figure); }});
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
                     [this] { files_.commands().lblRecentPatents_Click(0); });
    QObject::connect(&form_.welcome(), &WelcomePage::openWanted, &form_,
                     [this] { files_.commands().mnuFileOpen_Click(); });
    QObject::connect(&form_.welcome(), &WelcomePage::recentWanted, &form_,
                     [this](int row) { files_.commands().lblRecentPatents_Click(row); });
    QObject::connect(&form_, &frmMain1::closing, &form_, [this](bool& refuse) {
        system_.exiting = files_.commands().queryUnload();
        refuse = !system_.exiting;
    });
}

void MainWindow::joinMenus() {
    ProjectCommands& commands = files_.commands();
    const auto starts = [&](void (FileMenuEntries::*click)(), void (ProjectCommands::*command)()) {
        QObject::connect(fileEntries_, click, &form_,
                         [&commands, command] { (commands.*command)(); });
    };
    starts(&FileMenuEntries::mnuFileNew_Click, &ProjectCommands::mnuFileNew_Click);
    starts(&FileMenuEntries::mnuFileOpen_Click, &ProjectCommands::mnuFileOpen_Click);
    starts(&FileMenuEntries::mnuFileSave_Click, &ProjectCommands::mnuFileSave_Click);
    starts(&FileMenuEntries::mnuFileSaveAs_Click, &ProjectCommands::mnuFileSaveAs_Click);
    starts(&FileMenuEntries::mnuGotoWelcomePage_Click, &ProjectCommands::mnuGotoWelcomePage_Click);
    QObject::connect(fileEntries_, &FileMenuEntries::mnuFileRecent_Click, &form_,
                     [&commands](int index) { commands.mnuFileRecent_Click(index); });
    QObject::connect(fileEntries_, &FileMenuEntries::mnuFileExit_Click, &form_, &QWidget::close);
    QObject::connect(&form_.menus(), &MainMenus::fileMenuOpens, &form_, [this] {
        fileMenu_.open(projectScreen_.isWelcomePageShown(),
                       rules_.isComplete(SectionRules::FinalDraftTab));
        fileEntries_->enable(fileMenu_);
    });
}

void MainWindow::joinDraft() {
    DraftCommands& commands = draft_.commands();
    PrintCommands& printing = draft_.printing();
    QObject::connect(&form_.bar(), &StepBar::imgCreateToFile_Click, &form_,
                     [&commands](int index) { commands.imgCreateToFile(index); });
    QObject::connect(fileEntries_, &FileMenuEntries::mnuFileExportToHTML_Click, &form_,
                     [&commands] { commands.mnuFileExportToHTML(); });
    QObject::connect(fileEntries_, &FileMenuEntries::mnuFileExportToWord_Click, &form_,
                     [&commands] { commands.mnuFileExportToWord(); });
    QObject::connect(&form_.bar(), &StepBar::imgPrintFile_Click, &form_,
                     [&printing] { printing.imgPrintFile(); });
    QObject::connect(fileEntries_, &FileMenuEntries::mnuFilePrint_Click, &form_,
                     [&printing] { printing.mnuFilePrint(); });
    QObject::connect(form_.findChild<ClickLabel*>(QStringLiteral("imgPrint")), &ClickLabel::clicked,
                     &form_, [&printing] { printing.imgPrint(); });
    QObject::connect(&form_.help(), &HelpPane::imgHelpPrint_Click, &form_,
                     [this, &printing] { printing.imgHelpPrint(form_.help().view().printJob()); });
}

void MainWindow::joinWheel() {
    const auto indexBar = [this]() -> QScrollBar* {
        return index_->indexHasFocus() ? form_.findChild<QScrollBar*>(QStringLiteral("VScroll1"))
                                       : nullptr;
    };
    const auto sectionBar = [this]() -> QScrollBar* {
        constexpr int FirstWithBar = 1;
        constexpr int LastWithBar = 6;
        for (int tab = FirstWithBar; tab <= LastWithBar; ++tab)
            if (pages_.isPanelEnabled(tab))
                return form_.findChild<QScrollBar*>(controlName(u"vscroll", tab - 1));
        return nullptr;
    };
    new WheelRouter(form_, form_.help().pane(), {indexBar, sectionBar});
}

void MainWindow::joinKeys() {
    ProjectCommands& commands = files_.commands();
    QObject::connect(&form_.keys(), &KeyCommands::newWanted, &form_,
                     [&commands] { commands.mnuFileNew_Click(); });
    QObject::connect(&form_.keys(), &KeyCommands::openWanted, &form_,
                     [&commands] { commands.mnuFileOpen_Click(); });
    QObject::connect(&form_.keys(), &KeyCommands::saveWanted, &form_, [this, &commands] {
        if (fileMenu_.isProjectEnabled())
            commands.mnuFileSave_Click();
    });
}

void MainWindow::joinRecentProjects() {
    RecentProjects& recent = files_.recent();
    const auto show = [this, &recent] {
        QStringList menu;
        QStringList page;
        for (int number = 1; number <= recent.rowCount(); ++number) {
            menu.append(recent.menuCaption(number));
            page.append(recent.labelCaption(number));
        }
        fileEntries_->setRecentProjects(menu);
        form_.welcome().setRecentProjects(page);
    };
    QObject::connect(&recent, &RecentProjects::rowsChanged, &form_, show);
    recent.loadRecentProjects(false);
    show();
}

} // namespace quillford
