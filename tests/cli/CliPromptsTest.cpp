#include "cli/CliPrompts.h"

#include "support/PrintQt.h"

#include <QBuffer>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray lineOf(const QString& name, const QString& text) {
    QBuffer errors;
    errors.open(QIODevice::WriteOnly);
    writeErrorLine(errors, name, text);
    return errors.data();
}

} // namespace

TEST(CliPrompts, tells_a_failure_in_one_line) {
    EXPECT_EQ(lineOf(u"a.json"_s, u"no caf\u00E9"_s), "quillford-cli: a.json: no caf\xC3\xA9\n");
}

TEST(CliPrompts, makes_a_blank_of_each_line_end_and_control_character) {
    EXPECT_EQ(lineOf(u"a\nb"_s, u"c\r\nd\re\u001b[2J\u0085f\u2028g\u2029h\tk"_s),
              "quillford-cli: a b: c d e [2J f g h k\n");
    EXPECT_EQ(lineOf(QString(QChar(0)), u"x"_s), "quillford-cli:  : x\n");
}

TEST(CliPrompts, takes_percent_signs_as_they_are) {
    EXPECT_EQ(lineOf(u"%1"_s, u"%2 %n"_s), "quillford-cli: %1: %2 %n\n");
}

TEST(CliPrompts, shows_a_message_box_as_a_line) {
    QBuffer errors;
    errors.open(QIODevice::WriteOnly);
    CliPrompts(errors).showMessage(UserPrompts::Icon::Critical, u"Error"_s, u"It broke.\nTwice."_s);
    EXPECT_EQ(errors.data(), "quillford-cli: Error: It broke. Twice.\n");
}
