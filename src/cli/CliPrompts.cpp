#include "cli/CliPrompts.h"

#include <algorithm>

namespace quillford {

namespace {

/// A control character could end the line, or write over it on a terminal.
bool breaksLine(QChar character) {
    return character.category() == QChar::Other_Control ||
           character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

} // namespace

void CliPrompts::showMessage(Icon, const QString& title, const QString& text) {
    writeErrorLine(errors_, title, text);
}

bool CliPrompts::askYesNo(Icon icon, const QString& title, const QString& text) {
    showMessage(icon, title, text);
    return false;
}

void writeErrorLine(QIODevice& errors, const QString& name, const QString& text) {
    QString line = QStringLiteral("quillford-cli: ");
    if (!name.isEmpty())
        line += name + QStringLiteral(": ");
    line += text;
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(line.begin(), line.end(), breaksLine, QChar(u' '));
    errors.write(line.toUtf8() + '\n');
}

} // namespace quillford
