#include "typed/TypedProgram.h"

#include "core/wizard/FocusOrder.h"

namespace quillford {

TypedProgram::TypedProgram() {
    begin();
    hands->click(u"lblRecentPatents(0)"_s);
}

void TypedProgram::begin(const QStringList& arguments) {
    start(arguments);
    hands = std::make_unique<TypingUser>(form());
}

void TypedProgram::clickTab(int tab) {
    hands->click(controlName(u"picTab", tab));
    hands->comeBack();
}

void TypedProgram::chooseCount(const QString& list, int count) {
    static const QHash<QString, QString> panels = {
        {QStringLiteral("cboInventorsNum"), QStringLiteral("picInventors")},
        {QStringLiteral("cboObjectNum"), QStringLiteral("frmObjectsNum")},
        {QStringLiteral("cboFiguresNum"), QStringLiteral("picFigures")},
        {QStringLiteral("cboMainElementNum"), QStringLiteral("picElement")},
    };
    hands->choose(list, QString::number(count));
    EXPECT_TRUE(QTest::qWaitFor([&] { return hands->shownMembers(panels.value(list)) == count; }))
        << qPrintable(list) << " " << count;
}

void TypedProgram::saveAs(const QString& path) {
    whenAskedForFile(path);
    hands->press(Qt::Key_S, Qt::ControlModifier);
    hands->comeBack();
}

} // namespace quillford
