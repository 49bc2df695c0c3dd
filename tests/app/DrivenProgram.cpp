#include "app/Program.h"
#include "controls/Theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>

#include <cstdio>
#include <iostream>
#include <string>

// driven_program: the whole program before a user who does what standard input tells him, a step a
// line, and tells on standard output, a line a step, which boxes came up, or else "done":
//
//   open PATH   chooses Open in the File menu
//   write TEXT  sets txtOperation
//   tick        lets the timer that saves tick six times
//   save        chooses Save
//   text        tells txtOperation instead
//   state       tells lblSaveState instead
//   close       closes the form, and the program ends
//
// A question is answered by Yes, every other box by OK.

namespace {

using namespace quillford;

class DrivenProgram {
public:
    DrivenProgram() {
        QObject::connect(&user_, &QTimer::timeout, [this] { answerDialogs(); });
        user_.start(1);
    }

    /// False when the program does not start.
    [[nodiscard]] bool start() { return program_.start({}); }

    [[nodiscard]] QString take(const QString& step) {
        boxes_.clear();
        const QString verb = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        if (verb == u"text")
            return operation().toPlainText();
        if (verb == u"state")
            return control<QLabel>(QStringLiteral("lblSaveState")).text();
        if (verb == u"open") {
            fileToOpen_ = rest;
            control<QAction>(QStringLiteral("mnuFileOpen")).trigger();
        } else if (verb == u"write") {
            operation().setPlainText(rest);
        } else if (verb == u"tick") {
            tick();
        } else if (verb == u"save") {
            control<QAction>(QStringLiteral("mnuFileSave")).trigger();
        } else if (verb == u"close") {
            program_.window()->form().close();
        }
        return boxes_.isEmpty() ? QStringLiteral("done") : boxes_.join(u'/');
    }

private:
    template <typename Control>
    [[nodiscard]] Control& control(const QString& name) {
        return *program_.window()->form().findChild<Control*>(name);
    }

    [[nodiscard]] QPlainTextEdit& operation() {
        return control<QPlainTextEdit>(QStringLiteral("txtOperation"));
    }

    void tick() {
        constexpr int TicksToSave = 6;
        for (int i = 0; i < TicksToSave; ++i)
            QMetaObject::invokeMethod(&control<QTimer>(QStringLiteral("tmrAutoSave")), "timeout");
    }

    void answerDialogs() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(fileToOpen_);
            // Not `accept`, which is protected here.
            QMetaObject::invokeMethod(files, "accept");
        } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            boxes_.append(box->windowTitle() + QStringLiteral(": ") + box->text());
            QAbstractButton* yes = box->button(QMessageBox::Yes);
            (yes ? yes : box->button(QMessageBox::Ok))->click();
        }
    }

    Program program_;
    QTimer user_;
    QString fileToOpen_;
    QStringList boxes_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    theme::apply(application);
    DrivenProgram program;
    if (!program.start())
        return 1;
    for (std::string line; std::getline(std::cin, line);) {
        QCoreApplication::processEvents();
        std::cout << program.take(QString::fromStdString(line)).toStdString() << std::endl;
        if (line == "close")
            break;
    }
    return 0;
}
