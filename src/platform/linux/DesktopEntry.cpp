#include "platform/linux/DesktopEntry.h"

#include "base/Text.h"

namespace quillford {

namespace {

/// One argument of a command line: in quotation marks, with a backslash before what a shell would
/// read, and a doubled % for one that is no field code.
QString argument(const QString& text) {
    QString quoted(u'"');
    for (const QChar character : text) {
        if (QStringLiteral("\"`$\\").contains(character))
            quoted += u'\\';
        if (character == u'%')
            quoted += u'%';
        quoted += character;
    }
    return quoted + u'"';
}

/// A value of any line of the entry; it is unescaped before a command line in it is read.
QString value(QString text) {
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"));
}

QString line(const QString& key, const QString& text) {
    return key + u'=' + value(text) + u'\n';
}

} // namespace

QByteArray desktopEntry(const FileType& type) {
    return (QStringLiteral("[Desktop Entry]\n") +
            line(QStringLiteral("Type"), QStringLiteral("Application")) +
            line(QStringLiteral("Version"), QStringLiteral("1.0")) +
            line(QStringLiteral("Name"), type.programName) +
            line(QStringLiteral("Icon"), lowerCase(type.programName)) +
            line(QStringLiteral("Exec"), argument(type.programFile) + QStringLiteral(" %f")) +
            line(QStringLiteral("Terminal"), QStringLiteral("false")) +
            line(QStringLiteral("Categories"), QStringLiteral("Office;")) +
            line(QStringLiteral("MimeType"), type.mimeType + u';'))
        .toUtf8();
}

} // namespace quillford
