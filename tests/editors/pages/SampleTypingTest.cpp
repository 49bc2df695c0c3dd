#include "controls/LineField.h"
#include "controls/TextField.h"
#include "editors/pages/ElementPagesFixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Sections 5 to 7 of a real project, typed in by the user.
class SampleTyping : public ElementPagesFixture {
protected:
    SampleTyping() {
        QFile file(QStringLiteral(QUILLFORD_SAMPLES "/folding-easel/folding-easel.json"));
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("the sample cannot be read");
        sample_ = QJsonDocument::fromJson(file.readAll()).object();
    }

    [[nodiscard]] QString told(const FieldRow& row, int i) const {
        const QJsonValue value = sample_.value(row.name.toString());
        return row.group == FieldGroup::Single ? value.toString()
                                               : value.toArray().at(i).toString();
    }

    [[nodiscard]] static bool isInTab(const FieldRow& row, int tab) {
        return row.section == tab + 1 && row.kind != FieldKind::List;
    }

    /// Types all fields of a tab, line by line, but those that hold their text already.
    void typeTab(int tab) {
        go(tab);
        for (const FieldRow& row : fieldTable())
            for (int i = 0; isInTab(row, tab) && i < fields.count(row.id); ++i)
                if (fields.at(row.id, i).text() != told(row, i))
                    typeLines(controlName(FieldPlace{row.id, i}), told(row, i));
    }

    void typeLines(const QString& name, const QString& text) {
        const QStringList lines = text.split(u"\r\n"_s);
        type(name, lines.first());
        for (const QString& line : lines.sliced(1)) {
            QTest::keyClick(&control(name), Qt::Key_Return);
            QTest::keyClicks(&control(name), line);
        }
    }

private:
    QJsonObject sample_;
};

} // namespace

TEST_F(SampleTyping, every_field_of_sections_5_to_7_holds_what_was_typed) {
    go(MainElementsTab);
    chooseCount(4);
    for (const int tab : {MainElementsTab, SubElementsTab, DescriptionsTab})
        typeTab(tab);
    int compared = 0;
    for (const int tab : {MainElementsTab, SubElementsTab, DescriptionsTab})
        for (const FieldRow& row : fieldTable())
            for (int i = 0; isInTab(row, tab) && i < fields.count(row.id); ++i, ++compared)
                EXPECT_EQ(fields.at(row.id, i).text(), told(row, i))
                    << row.name.toString().toStdString() << " " << i;
    EXPECT_EQ(compared, 1 + 4 * 2 + 4 * 10 + 4 * 2 + 2);
    go(MainElementsTab); // leaving a section gives its verdict
    for (const int tab : {MainElementsTab, SubElementsTab, DescriptionsTab})
        EXPECT_TRUE(rules.isComplete(tab)) << tab;
}
