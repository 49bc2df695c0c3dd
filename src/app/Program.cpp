#include "app/Program.h"

#include "draft/pages/PagedDocument.h"
#include "shell/dialogs/frmSplash.h"

#include <QApplication>

namespace quillford {

namespace {

QString configurationFile(LinuxFolders& folders, const QString& name) {
    return folders.configurationFolder() + u'/' + name;
}

} // namespace

Program::Program()
    : store_(configurationFile(folders_, QStringLiteral("settings"))),
      settings_(store_),
      spelling_(configurationFile(folders_, QStringLiteral("words.txt"))),
      word_(folders_),
      printer_(
          [this](const PrintJob& job) { return std::make_unique<PagedDocument>(job, pictures_); }),
      fileTypes_(folders_),
      association_(settings_, folders_, fileTypes_),
      prompts_(project_.state) {}

Program::~Program() = default;

int Program::run(const QStringList& arguments) {
    return start(arguments) ? QApplication::exec() : 0;
}

bool Program::start(const QStringList& arguments) {
    frmSplash(clock_, system_).showModally();
    ProgramStart program(system_, settings_, folders_, association_, prompts_, *this);
    return program.startProgram(arguments, word_.isInstalled()) == ProgramStart::Outcome::Runs;
}

void Program::loadForm() {
    const Ports ports{
        folders_,  clock_, pictures_, pictures_, measure_, QtTextMeasure::font(TextWeight::Regular),
        spelling_, word_,  printer_,  opener_};
    window_ = std::make_unique<MainWindow>(project_, system_, settings_, prompts_, ports);
    prompts_.setParent(&window_->form());
    printer_.setParent(&window_->form());
}

} // namespace quillford
