#include "platform/linux/DesktopOpener.h"

#include "base/Text.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <optional>

namespace quillford {

namespace {

constexpr int AnswerMilliseconds = 5000;

/// "https" of "https://..."; empty for a path.
QString schemeOf(const QString& document) {
    static const QRegularExpression scheme(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]+):"));
    return lowerCase(scheme.match(document).captured(1));
}

/// What the tool says about one thing, in a line; nothing where it cannot be asked.
std::optional<QString> askDesktop(const QString& question, const QString& thing) {
    QProcess tool;
    tool.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), question, thing});
    if (!tool.waitForFinished(AnswerMilliseconds))
        return std::nullopt;
    return QString::fromUtf8(tool.readAllStandardOutput()).section(u'\n', 0, 0);
}

/// Whether the desktop says that it has no program for the document.
bool hasNoProgram(const QString& document) {
    const QString scheme = schemeOf(document);
    const auto kind = scheme.isEmpty()
                          ? askDesktop(QStringLiteral("filetype"), document)
                          : std::optional(QStringLiteral("x-scheme-handler/") + scheme);
    if (!kind || kind->isEmpty())
        return false;
    const auto program = askDesktop(QStringLiteral("default"), *kind);
    return program && program->isEmpty();
}

bool startOpening(const QString& document) {
    return QProcess::startDetached(QStringLiteral("xdg-open"), {document});
}

} // namespace

DocumentOpener::Result DesktopOpener::open(const QString& document) {
    if (hasNoProgram(document))
        return Result::NoProgram;
    return startOpening(document) ? Result::Opened : Result::Failed;
}

void DesktopOpener::askForProgram(const QString& document) {
    if (schemeOf(document).isEmpty())
        startOpening(QFileInfo(document).absolutePath());
}

} // namespace quillford
