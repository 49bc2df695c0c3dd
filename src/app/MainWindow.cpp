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
             {form_, form_.panel(SectionRules::FinalDraftTab), rules_, navigator_, screen_,
              form_.title()},
             files_, ports) {
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

/// Has the gate run a command at a signal. A command with a number is known by name and number.
template <typename Sender, typename... Index, typename Command>
void MainWindow::starts(Sender& sender, void (Sender::*signal)(Index...), QStringView name,
                        const Command& command) {
    QObject::connect(&sender, signal, &form_, [this, name, command](Index... index) {
        QString known = name.toString();
        ((known += QString::number(index)), ...);
        gate_.run(known, [command, index...] { command(index...); });
    });
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
    ProjectCommands& commands = files_.commands();
    starts(form_.tabs(), &TabStrip::picTab_Click, u"picTab",
           [this](int tab) { navigator_.picTab_Click(tab); });
    starts(form_.bar(), &StepBar::btnStep_Click, u"btnStep",
           [this](int index) { navigator_.btnStep_Click(index); });
    starts(form_.welcome(), &WelcomePage::newWanted, u"lblRecentPatents",
           [&commands] { commands.lblRecentPatents_Click(0); });
    starts(form_.welcome(), &WelcomePage::openWanted, u"mnuFileOpen",
           [&commands] { commands.mnuFileOpen_Click(); });
    starts(form_.welcome(), &WelcomePage::recentWanted, u"lblRecentPatents",
           [&commands](int row) { commands.lblRecentPatents_Click(row); });
    QObject::connect(&form_, &frmMain1::closing, &form_,
                     [this](bool& refuse) { refuse = !mayClose(); });
}

/// A window that is asked to close while a command is at work closes after it.
bool MainWindow::mayClose() {
    const QString exit = QStringLiteral("mnuFileExit");
    system_.exiting = false;
    if (gate_.isBusy())
        gate_.run(exit, [this] { QTimer::singleShot(0, &form_, &QWidget::close); });
    else
        gate_.run(exit, [this] { system_.exiting = files_.commands().queryUnload(); });
    return system_.exiting;
}

void MainWindow::joinMenus() {
    ProjectCommands& commands = files_.commands();
    starts(*fileEntries_, &FileMenuEntries::mnuFileNew_Click, u"mnuFileNew",
           [&commands] { commands.mnuFileNew_Click(); });
    starts(*fileEntries_, &FileMenuEntries::mnuFileOpen_Click, u"mnuFileOpen",
           [&commands] { commands.mnuFileOpen_Click(); });
    starts(*fileEntries_, &FileMenuEntries::mnuFileSave_Click, u"mnuFileSave",
           [&commands] { commands.mnuFileSave_Click(); });
    starts(*fileEntries_, &FileMenuEntries::mnuFileSaveAs_Click, u"mnuFileSaveAs",
           [&commands] { commands.mnuFileSaveAs_Click(); });
    starts(*fileEntries_, &FileMenuEntries::mnuGotoWelcomePage_Click, u"mnuGotoWelcomePage",
           [&commands] { commands.mnuGotoWelcomePage_Click(); });
    starts(*fileEntries_, &FileMenuEntries::mnuFileRecent_Click, u"mnuFileRecent",
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
    // A command that was kept while another project came may find no draft any more, and the
    // buttons below the preview none on screen.
    const auto ofDraft = [this](const auto& command) {
        return [this, command](auto... index) {
            if (rules_.isComplete(SectionRules::FinalDraftTab))
                command(index...);
        };
    };
    const auto ofPreview = [this, ofDraft](const auto& command) {
        return ofDraft([this, command](auto... index) {
            if (project_.state.currentTab == SectionRules::FinalDraftTab)
                command(index...);
        });
    };
    starts(form_.bar(), &StepBar::imgCreateToFile_Click, u"imgCreateToFile",
           ofPreview([&commands](int index) { commands.imgCreateToFile(index); }));
    starts(*fileEntries_, &FileMenuEntries::mnuFileExportToHTML_Click, u"mnuFileExportToHTML",
           ofDraft([&commands] { commands.mnuFileExportToHTML(); }));
    starts(*fileEntries_, &FileMenuEntries::mnuFileExportToWord_Click, u"mnuFileExportToWord",
           ofDraft([&commands] { commands.mnuFileExportToWord(); }));
    starts(form_.bar(), &StepBar::imgPrintFile_Click, u"mnuFilePrint",
           ofPreview([&printing] { printing.imgPrintFile(); }));
    starts(*fileEntries_, &FileMenuEntries::mnuFilePrint_Click, u"mnuFilePrint",
           ofDraft([&printing] { printing.mnuFilePrint(); }));
    starts(*form_.findChild<ClickLabel*>(QStringLiteral("imgPrint")), &ClickLabel::clicked,
           u"imgPrint", [&printing] { printing.imgPrint(); });
    starts(form_.help(), &HelpPane::imgHelpPrint_Click, u"imgHelpPrint",
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
    starts(form_.keys(), &KeyCommands::newWanted, u"mnuFileNew",
           [&commands] { commands.mnuFileNew_Click(); });
    starts(form_.keys(), &KeyCommands::openWanted, u"mnuFileOpen",
           [&commands] { commands.mnuFileOpen_Click(); });
    starts(form_.keys(), &KeyCommands::saveWanted, u"mnuFileSave", [this, &commands] {
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
