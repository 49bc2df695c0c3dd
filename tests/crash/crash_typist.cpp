#include "app/Program.h"
#include "controls/Theme.h"
#include "crash/FieldsShown.h"
#include "crash/RandomTypist.h"
#include "crash/SaveJournal.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QTextStream>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Usage[] =
    "crash_typist type PROJECT JOURNAL SEED PICTURE...\n"
    "    opens the project and types until it is killed; the journal tells what was saved\n"
    "crash_typist look menu|page\n"
    "    starts after a crash, opens the first of the recent projects and prints what it shows\n";

int typeOn(Program& program, const QStringList& arguments) {
    const QString& project = arguments[1];
    if (!program.start({project}))
        return 1;
    TypingUser user(program.window()->form());
    SaveJournal journal(arguments[2], user, project);
    journal.begin();
    const RandomTypist typist(user, journal, arguments[3].toUInt(), arguments.sliced(4));
    return QApplication::exec();
}

/// The rows of the recent projects as the user meets them on one of the two places.
QJsonArray rowsShown(const QWidget& form, bool menu) {
    QJsonArray rows;
    for (int number = 1;; ++number) {
        const auto* entry = form.findChild<QAction*>(u"mnuFileRecent(%1)"_s.arg(number));
        const auto* label = form.findChild<QLabel*>(u"lblRecentPatents(%1)"_s.arg(number));
        if (!entry || !label || !label->isVisibleTo(&form))
            return rows;
        rows.append(menu ? entry->text() : label->text());
    }
}

int look(Program& program, const QString& place) {
    if (!program.start({}))
        return 1;
    const ModalUser nobodyAsks;
    TypingUser user(program.window()->form());
    QJsonObject report{{u"page"_s, rowsShown(user.form(), false)},
                       {u"menu"_s, rowsShown(user.form(), true)}};
    if (place == u"menu") {
        user.click(u"lblMenuFile"_s);
        user.press(Qt::Key_1);
    } else {
        user.click(u"lblRecentPatents(1)"_s);
    }
    user.comeBack();
    report[u"title"_s] = user.form().windowTitle();
    report[u"welcome"_s] = user.control(u"picWelcomePage"_s).isVisible();
    report[u"fields"_s] = fieldsShown(user.form());
    QTextStream(stdout) << QJsonDocument(report).toJson(QJsonDocument::Compact) << '\n';
    return 0;
}

} // namespace

/// The program with a user of its own: see the usage. It ends with a message when something is not
/// as it should be, a window that comes unasked for example.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::GTEST_FLAG(throw_on_failure) = true;
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    theme::apply(application);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    try {
        if (arguments.size() >= 5 && arguments[0] == u"type")
            return typeOn(*std::make_unique<Program>(), arguments);
        if (arguments.size() == 2 && arguments[0] == u"look")
            return look(*std::make_unique<Program>(), arguments[1]);
    } catch (const std::exception& error) {
        QTextStream(stderr) << "crash_typist: " << error.what() << '\n';
        return 1;
    }
    QTextStream(stderr) << Usage;
    return 2;
}
