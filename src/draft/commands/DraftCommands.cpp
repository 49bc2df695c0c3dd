#include "draft/commands/DraftCommands.h"

#include "base/Files.h"
#include "core/commands/Pause.h"
#include "core/commands/ShellDoc.h"
#include "draft/compose/HtmlComposer.h"
#include "draft/compose/WordComposer.h"

namespace quillford {

namespace {

using Icon = UserPrompts::Icon;

/// The hourglass for as long as a file is made.
class Hourglass {
public:
    explicit Hourglass(ProjectScreen& window) : window_(window) { window_.setHourglass(true); }

    ~Hourglass() { window_.setHourglass(false); }

    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    ProjectScreen& window_;
};

} // namespace

void DraftCommands::imgCreateToFile(int index) {
    constexpr int WordButton = 1;
    constexpr int HtmlButton = 2;
    if (index == HtmlButton)
        choose(ExportFormat::Html);
    else if (index == WordButton && parts_.system.wordInstalled)
        choose(ExportFormat::Word);
    else if (index == WordButton)
        parts_.prompts.showMessage(
            Icon::None, QStringLiteral("Microsoft Office Exporting Problem"),
            QStringLiteral(
                "You perhaps did not install Office or use Office 2010 via the 'Click-to-Run' "
                "installation method which utilizes virtualization technologies not compatible "
                "with Quillford. Please install Office or Office 2010 without using "
                "'Click-to-Run' to resolve this issue."));
}

void DraftCommands::mnuFileExportToHTML() {
    choose(ExportFormat::Html);
}

void DraftCommands::mnuFileExportToWord() {
    if (parts_.system.wordInstalled)
        choose(ExportFormat::Word);
    else
        parts_.prompts.showMessage(
            Icon::None, QStringLiteral("Microsoft Word Required to Export"),
            QStringLiteral(
                "You are attempting to export to Microsoft Word. This feature is available on "
                "Quillford only if you have Microsoft Word installed on your computer. Please "
                "install Microsoft Word on your computer and then you will be able to export to "
                "Microsoft Word."));
}

void DraftCommands::exportToFile() {
    using Choice = UserPrompts::ExportChoice;
    const Choice choice = parts_.prompts.showExportToFileMsgWindow(parts_.system.wordInstalled);
    if (choice == Choice::Cancel)
        parts_.exportFormat = ExportFormat::None;
    else
        choose(choice == Choice::Word ? ExportFormat::Word : ExportFormat::Html);
}

void DraftCommands::choose(ExportFormat format) {
    const CommandScope atWork(parts_.project.state);
    parts_.exportFormat = format;
    if (parts_.project.state.verifyPassed)
        createFile();
    else
        afterCheck(parts_.check.showVerify());
}

void DraftCommands::afterCheck(const ExportCheck::Outcome& outcome) {
    constexpr int ElementTablesTab = 5;
    switch (outcome.answer) {
    case ExportCheck::Answer::Skip:
    case ExportCheck::Answer::Continue:
        Pause(1, parts_.clock, parts_.system);
        createFile();
        return;
    case ExportCheck::Answer::GoToCell:
        parts_.navigator.SwitchTab(ElementTablesTab);
        parts_.screen.guidance.TextHighLight(ElementTablesTab);
        parts_.screen.columns.bringIntoView(outcome.field, outcome.index);
        parts_.screen.pages.focusField(outcome.field, outcome.index);
        return;
    case ExportCheck::Answer::Cancel:
        parts_.exportFormat = ExportFormat::None;
        return;
    case ExportCheck::Answer::Return:
        return; // what was chosen stays until the next choice
    }
}

void DraftCommands::createFile() {
    if (parts_.exportFormat == ExportFormat::Word)
        CreateToWord();
    else if (parts_.exportFormat == ExportFormat::Html)
        CreateToHtml();
}

void DraftCommands::CreateToHtml() {
    const CommandScope atWork(parts_.project.state);
    const QString path = parts_.saveDialog.ask(QStringLiteral("htm"));
    if (path.isEmpty())
        return;
    HtmlComposer composer(parts_.project.fields, parts_.folders, parts_.prompts);
    {
        const Hourglass hourglass(parts_.screen.project);
        QString written; // an empty text asks for a file
        composer.ExportToHTML(path, written);
    }
    finish(path, composer.failure());
}

void DraftCommands::CreateToWord() {
    const CommandScope atWork(parts_.project.state);
    const QString path = parts_.saveDialog.ask(QStringLiteral("doc"));
    if (path.isEmpty())
        return;
    WordComposer composer(parts_.project.fields, parts_.folders, parts_.prompts, parts_.word);
    if (composer.checkDocFileOpenAndClose(path)) {
        parts_.prompts.showMessage(
            Icon::Information, QStringLiteral("Information"),
            QStringLiteral("The word document is already existed and be opened. Please close it "
                           "or choose another fileName."));
        return;
    }
    {
        const Hourglass hourglass(parts_.screen.project);
        composer.ExportToWord(path);
    }
    finish(path, composer.failure());
}

/// No box tells of a file that could not be made. When a file is made, the line says again what it
/// said before; what others have told there since stays.
void DraftCommands::finish(const QString& path, const std::optional<Error>& failure) {
    const bool isTold = !told_.isEmpty() && parts_.saveState.saveState() == told_;
    if (!failure) {
        if (isTold)
            parts_.saveState.showSaveState(toldBefore_);
        return ShellDoc(path, parts_.opener);
    }
    if (!isTold)
        toldBefore_ = parts_.saveState.saveState();
    told_ = QStringLiteral("not exported: ") + reasonNotWritten(path, *failure);
    parts_.saveState.showSaveState(told_);
}

} // namespace quillford
