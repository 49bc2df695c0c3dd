#include "core/fields/FieldTable.h"
#include "help/HelpPage.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quillford {
namespace {

using namespace Qt::Literals::StringLiterals;

QJsonObject sample() {
    QFile file(QStringLiteral(QUILLFORD_SOURCE_TREE "/samples/folding-easel/folding-easel.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

/// The lines that a field of the sample holds, all its members together.
QStringList linesOf(const FieldRow& row, const QJsonObject& project) {
    const QJsonValue value = project.value(row.name);
    QStringList lines;
    for (const QJsonValue& member : value.isArray() ? value.toArray() : QJsonArray{value})
        lines += member.toString().split(u"\r\n"_s, Qt::SkipEmptyParts);
    if (row.id == FieldId::txtAttachFig)
        for (QString& line : lines)
            line = QFileInfo(line).fileName();
    return lines;
}

// A reader who types what the examples show gets the sample.
TEST(HelpExamples, the_example_of_a_section_holds_every_answer_of_the_sample) {
    QHash<QString, QString> texts;
    for (const HelpPage& page : helpPages())
        texts.insert(page.name, page.text);
    const QJsonObject project = sample();
    int compared = 0;
    for (const FieldRow& row : fieldTable()) {
        const QString page = u"Section %1/example.htm"_s.arg(row.section);
        for (const QString& line : linesOf(row, project)) {
            EXPECT_TRUE(texts.value(page).contains(joinedText(line)))
                << qPrintable(page + u' ' + line);
            ++compared;
        }
    }
    EXPECT_GT(compared, 100);
}

} // namespace
} // namespace quillford
