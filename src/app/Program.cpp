#include "app/Program.h"

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
    return program.startProgram(arguments, false) == ProgramStart::Outcome::Runs;
}

void Program::loadForm() {
    spelling_.loadDictionary(system_.appFolder + QStringLiteral("Dictionary/SpellUS.lex"));
    window_ = std::make_unique<MainWindow>(project_, system_, settings_, prompts_,
                                           Ports{folders_, clock_, pictures_, measure_, spelling_});
    prompts_.setParent(&window_->form());
}

} // namespace quillford
