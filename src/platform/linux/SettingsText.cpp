#include "platform/linux/SettingsText.h"

#include "base/Error.h"
#include "base/Text.h"
#include "platform/linux/QuotedText.h"

#include <algorithm>
#include <cerrno>

namespace quillford {

namespace {

QString fullName(Hive hive, QStringView key) {
    const QString root = hive == Hive::CurrentUser ? QStringLiteral("HKEY_CURRENT_USER\\")
                                                   : QStringLiteral("HKEY_CLASSES_ROOT\\");
    return root + key.toString();
}

/// A line ends in a line feed; a text that went through another system may have a carriage return
/// before it, which is part of no key and no value.
QString lineText(QByteArray bytes) {
    if (bytes.endsWith('\r'))
        bytes.chop(1);
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString();
}

void refuseControlCharacters(QStringView key) {
    if (std::any_of(key.begin(), key.end(),
                    [](QChar c) { return c.category() == QChar::Other_Control; }))
        throw Error(EINVAL,
                    QStringLiteral("The name of a settings key cannot hold a control character."));
}

} // namespace

SettingsText::SettingsText(const QByteArray& bytes) {
    if (bytes.isEmpty())
        return;
    QString heading;
    for (const QByteArray& line : bytes.split('\n')) {
        lines_.append(understood(line, heading));
        heading = lines_.constLast().heading;
    }
    if (bytes.endsWith('\n'))
        lines_.removeLast();
}

QByteArray SettingsText::bytes() const {
    QByteArray bytes;
    for (const Line& line : lines_)
        bytes += line.bytes + '\n';
    return bytes;
}

SettingsText::Line SettingsText::understood(const QByteArray& bytes, const QString& headingBefore) {
    Line line{bytes, Line::Kind::Foreign, headingBefore, {}, {}};
    // A damaged heading names no key, and neither do the lines below it.
    if (bytes.startsWith('['))
        line.heading.clear();
    const QString text = lineText(bytes);
    if (text.startsWith(u'[') && text.endsWith(u']')) {
        line.kind = Line::Kind::Heading;
        line.heading = upperCase(text.sliced(1).chopped(1));
        return line;
    }
    QStringView rest = text;
    const auto name = takeQuoted(rest);
    if (!name || !rest.startsWith(u'='))
        return line;
    rest = rest.sliced(1);
    const auto value = takeQuoted(rest);
    if (!value || !rest.isEmpty())
        return line;
    line.kind = Line::Kind::Value;
    line.name = *name;
    line.text = *value;
    return line;
}

qsizetype SettingsText::lineOf(const QString& heading, QStringView name) const {
    const QString wanted = upperCase(name);
    for (qsizetype i = lines_.size() - 1; i >= 0; --i) {
        const Line& line = lines_[i];
        if (line.kind == Line::Kind::Value && line.heading == heading &&
            upperCase(line.name) == wanted)
            return i;
    }
    return -1;
}

std::optional<QString> SettingsText::value(Hive hive, QStringView key, QStringView name) const {
    const qsizetype i = lineOf(upperCase(fullName(hive, key)), name);
    return i < 0 ? std::nullopt : std::optional(lines_[i].text);
}

bool SettingsText::hasKey(Hive hive, QStringView key) const {
    const QString wanted = upperCase(fullName(hive, key));
    return std::any_of(lines_.begin(), lines_.end(), [&wanted](const Line& line) {
        return line.kind == Line::Kind::Heading &&
               (line.heading == wanted || line.heading.startsWith(wanted + u'\\'));
    });
}

/// Behind the last line under the key that is understood, so that blank lines and comments before
/// the next key keep their places. The key's heading is added at the end if there is none.
qsizetype SettingsText::placeForNewValue(Hive hive, QStringView key) {
    const QString heading = fullName(hive, key);
    const QString wanted = upperCase(heading);
    for (qsizetype i = lines_.size() - 1; i >= 0; --i)
        if (lines_[i].kind != Line::Kind::Foreign && lines_[i].heading == wanted)
            return i + 1;
    if (!lines_.isEmpty() && !lines_.constLast().bytes.isEmpty())
        lines_.append(Line{});
    lines_.append(understood((u'[' + heading + u']').toUtf8(), {}));
    return lines_.size();
}

void SettingsText::setValue(Hive hive, QStringView key, QStringView name, const QString& text) {
    refuseControlCharacters(key);
    const QString heading = upperCase(fullName(hive, key));
    const auto lineFor = [&](QStringView writtenName) {
        return understood((quoted(writtenName) + u'=' + quoted(text)).toUtf8(), heading);
    };
    const qsizetype i = lineOf(heading, name);
    if (i < 0)
        lines_.insert(placeForNewValue(hive, key), lineFor(name));
    else if (lines_[i].text != text)
        lines_[i] = lineFor(lines_[i].name);
}

void SettingsText::removeValue(Hive hive, QStringView key, QStringView name) {
    const QString heading = upperCase(fullName(hive, key));
    for (qsizetype i = lineOf(heading, name); i >= 0; i = lineOf(heading, name))
        lines_.removeAt(i);
}

} // namespace quillford
