#include "platform/linux/WordList.h"

#include "base/Text.h"

#include <utility>

namespace quillford {

namespace {

/// The user waits for it at a click.
constexpr std::chrono::milliseconds Patience{1000};

QStringList wordsIn(const QByteArray& bytes) {
    QStringList words;
    QString text = QString::fromUtf8(bytes);
    text.remove(u'\r');
    for (const QStringView line : QStringView(text).split(u'\n'))
        if (const QStringView word = trimBlanks(line); !word.isEmpty())
            words.append(word.toString());
    return words;
}

} // namespace

WordList::WordList(QString path)
    : file_(std::move(path), QStringLiteral("list of words"), Patience) {}

QStringList WordList::words() const {
    return wordsIn(file_.bytes());
}

void WordList::add(const QString& word) {
    file_.change([&word](const QByteArray& before) {
        if (wordsIn(before).contains(word))
            return before;
        const bool endsInLine = !before.isEmpty() && !before.endsWith('\n');
        return before + (endsInLine ? "\n" : "") + word.toUtf8() + '\n';
    });
}

} // namespace quillford
