#include "shell/dialogs/QtUserPrompts.h"

#include "shell/dialogs/msgWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace quillford {

namespace {

QMessageBox::Icon asShown(UserPrompts::Icon icon) {
    switch (icon) {
    case UserPrompts::Icon::None:
        return QMessageBox::NoIcon;
    case UserPrompts::Icon::Information:
        return QMessageBox::Information;
    case UserPrompts::Icon::Question:
        return QMessageBox::Question;
    case UserPrompts::Icon::Exclamation:
        return QMessageBox::Warning;
    case UserPrompts::Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// The button that was pressed; a box that is closed otherwise presses `escape`.
int askInBox(QWidget* parent, UserPrompts::Icon icon, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape) {
    QWidget* const inFront = QApplication::activeModalWidget();
    QMessageBox box(asShown(icon), title, text, buttons, inFront ? inFront : parent);
    // A file may bear a name that looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(escape);
    return box.exec();
}

/// "Quillford File|*.ivd;*.x" as the toolkit's dialog writes it.
QString filterOf(const UserPrompts::FileQuestion& question) {
    QString patterns = question.filterPattern;
    return QStringLiteral("%1 (%2)").arg(question.filterDescription, patterns.replace(u';', u' '));
}

QString chooseFile(QWidget* parent, const UserPrompts::FileQuestion& question,
                   QFileDialog::AcceptMode mode) {
    QFileDialog dialog(parent, QString(), question.folder, filterOf(question));
    dialog.setAcceptMode(mode);
    // A name outside the filter may be typed; whether there is such a file is the asker's business.
    dialog.setFileMode(QFileDialog::AnyFile);
    if (QFileInfo(question.name).isAbsolute())
        dialog.setDirectory(QFileInfo(question.name).path());
    if (!question.name.isEmpty())
        dialog.selectFile(question.name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().first();
}

} // namespace

void QtUserPrompts::showMessage(Icon icon, const QString& title, const QString& text) {
    const CommandScope asking(state_);
    askInBox(parent_, icon, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtUserPrompts::askYesNo(Icon icon, const QString& title, const QString& text) {
    const CommandScope asking(state_);
    return askInBox(parent_, icon, title, text, QMessageBox::Yes | QMessageBox::No,
                    QMessageBox::No) == QMessageBox::Yes;
}

UserPrompts::Answer QtUserPrompts::askYesNoCancel(Icon icon, const QString& title,
                                                  const QString& text) {
    const CommandScope asking(state_);
    const int answer =
        askInBox(parent_, icon, title, text,
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer == QMessageBox::Yes)
        return Answer::Yes;
    return answer == QMessageBox::No ? Answer::No : Answer::Cancel;
}

QString QtUserPrompts::chooseFileToOpen(const FileQuestion& question) {
    const CommandScope asking(state_);
    return chooseFile(parent_, question, QFileDialog::AcceptOpen);
}

QString QtUserPrompts::chooseFileToSave(const FileQuestion& question) {
    const CommandScope asking(state_);
    return chooseFile(parent_, question, QFileDialog::AcceptSave);
}

bool QtUserPrompts::showMsgWindow(const NotAgainChanged& changed) {
    const CommandScope asking(state_);
    return msgWindow(parent_).showMsgWindow(changed);
}

void QtUserPrompts::showTab4MsgWindow(const NotAgainChanged& changed) {
    const CommandScope asking(state_);
    msgWindow(parent_).showTab4MsgWindow(changed);
}

UserPrompts::ExportChoice QtUserPrompts::showExportToFileMsgWindow(bool wordInstalled) {
    const CommandScope asking(state_);
    return msgWindow(parent_).showExportToFileMsgWindow(wordInstalled);
}

} // namespace quillford
