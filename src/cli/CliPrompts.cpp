#include "cli/CliPrompts.h"

namespace quillford {

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
    line.replace(u'\r', u' ').replace(u'\n', u' ');
    errors.write(line.toUtf8() + '\n');
}

} // namespace quillford
