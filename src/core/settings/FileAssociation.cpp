#include "core/settings/FileAssociation.h"

#include "base/Error.h"

namespace quillford {

namespace {

constexpr QStringView EndingKey = u".ivd";
constexpr QStringView TypeKey = u"ivdfile";
constexpr QStringView IconKey = u"ivdfile\\DefaultIcon";
constexpr QStringView CommandKey = u"ivdfile\\shell\\open\\command";
constexpr QStringView DefaultValue = u"";

QString description() {
    return QStringLiteral("Quillford File");
}

} // namespace

void FileAssociation::registerFileType() {
    writeKeys();
    tellDesktop();
}

void FileAssociation::writeKeys() {
    const QString program = u'"' + folders_.programFile() + u'"';
    settings_.change([&](SettingsValues& values) {
        constexpr Hive Root = Hive::ClassesRoot;
        if (values.hasKey(Root, EndingKey) && values.hasKey(Root, TypeKey))
            return;
        values.setValue(Root, EndingKey, DefaultValue, TypeKey.toString());
        values.setValue(Root, TypeKey, DefaultValue, description());
        values.setValue(Root, IconKey, DefaultValue, program + QStringLiteral(",1"));
        values.setValue(Root, CommandKey, DefaultValue, program + QStringLiteral(" %1"));
    });
}

void FileAssociation::tellDesktop() {
    const FileType type{.mimeType = QStringLiteral("application/x-quillford-project"),
                        .description = description(),
                        .ending = QStringLiteral("ivd"),
                        .programName = QStringLiteral("Quillford"),
                        .programFile = folders_.programFile()};
    try {
        fileTypes_.makeKnown(type);
    } catch (const Error&) {
        // A desktop that cannot be told is no reason not to start.
        return;
    }
}

} // namespace quillford
