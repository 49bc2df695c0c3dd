#include "platform/linux/FileSettingsStore.h"

#include "platform/linux/SettingsText.h"

#include <utility>

namespace quillford {

namespace {

constexpr char FirstLine[] = "# The settings of Quillford. A line that is no value is kept.\n";

SettingsText textOf(const QByteArray& bytes) {
    return SettingsText(bytes.isEmpty() ? QByteArray(FirstLine) : bytes);
}

} // namespace

FileSettingsStore::FileSettingsStore(QString path, std::chrono::milliseconds patience)
    : file_(std::move(path), QStringLiteral("settings file"), patience) {}

void FileSettingsStore::look(const Look& step) const {
    step(textOf(file_.bytes()));
}

void FileSettingsStore::change(const Change& step) {
    file_.change([&step](const QByteArray& before) {
        SettingsText text = textOf(before);
        const QByteArray unchanged = text.bytes();
        step(text);
        const QByteArray after = text.bytes();
        return after == unchanged ? before : after;
    });
}

} // namespace quillford
