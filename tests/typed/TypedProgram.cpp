#include "typed/TypedProgram.h"

#include "controls/Theme.h"
#include "core/wizard/FocusOrder.h"

#include <QApplication>
#include <QtTest>

namespace quillford {

TypedProgram::Look::Look() {
    theme::apply(*qApp);
}

TypedProgram::TypedProgram() {
    if (!program_.start({}))
        throw std::runtime_error("the program has ended at its start");
    user = std::make_unique<TypingUser>(program_.window()->form());
    user->click(QStringLiteral("lblRecentPatents(0)"));
}

void TypedProgram::clickTab(int tab) {
    user->click(controlName(u"picTab", tab));
    user->comeBack();
}

void TypedProgram::chooseCount(const QString& list, int count) {
    static const QHash<QString, QString> panels = {
        {QStringLiteral("cboInventorsNum"), QStringLiteral("picInventors")},
        {QStringLiteral("cboObjectNum"), QStringLiteral("frmObjectsNum")},
        {QStringLiteral("cboFiguresNum"), QStringLiteral("picFigures")},
        {QStringLiteral("cboMainElementNum"), QStringLiteral("picElement")},
    };
    user->choose(list, QString::number(count));
    EXPECT_TRUE(QTest::qWaitFor([&] { return user->shownMembers(panels.value(list)) == count; }))
        << qPrintable(list) << " " << count;
}

void TypedProgram::saveAs(const QString& path) {
    windows.expectFileDialog(path);
    user->press(Qt::Key_S, Qt::ControlModifier);
    user->comeBack();
}

} // namespace quillford
