#include "platform/linux/HunspellEngine.h"

#include "base/Error.h"
#include "base/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QStringEncoder>

#include <hunspell/hunspell.hxx>
#include <string>
#include <utility>

namespace quillford {

namespace {

constexpr int MostSuggestions = 6;

/// The library takes any bytes for a dictionary and then knows no word. A list of words begins with
/// their number.
bool isListOfWords(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && numberIn(QString::fromLatin1(file.readLine(16))) > 0;
}

/// In one allocation at most, since the words of a whole field come one by one.
std::string utf8Of(QStringView word) {
    QStringEncoder encoder(QStringEncoder::Utf8);
    std::string bytes(static_cast<std::size_t>(encoder.requiredSpace(word.size())), '\0');
    const char* const end = encoder.appendToBuffer(bytes.data(), word);
    bytes.resize(static_cast<std::size_t>(end - bytes.data()));
    return bytes;
}

/// Null when either file is missing or of another kind.
std::unique_ptr<Hunspell> opened(const QString& path) {
    const QFileInfo list(path);
    const QString affixes = list.path() + u'/' + list.completeBaseName() + QStringLiteral(".aff");
    if (!isListOfWords(path) || !QFileInfo(affixes).isFile())
        return nullptr;
    auto dictionary = std::make_unique<Hunspell>(QFile::encodeName(affixes).constData(),
                                                 QFile::encodeName(path).constData());
    return dictionary->get_dict_encoding() == "UTF-8" ? std::move(dictionary) : nullptr;
}

} // namespace

HunspellEngine::HunspellEngine(QString userWords) : userWords_(std::move(userWords)) {}

HunspellEngine::~HunspellEngine() = default;

bool HunspellEngine::hasDictionary() const {
    return dictionary_ != nullptr;
}

void HunspellEngine::loadDictionary(const QString& path) {
    if (path == path_)
        return;
    path_ = path;
    dictionary_ = opened(path);
    readUserWords();
}

bool HunspellEngine::isKnown(const QString& word) const {
    return !dictionary_ || dictionary_->spell(utf8Of(word));
}

QStringList HunspellEngine::suggestions(const QString& word) const {
    QStringList words;
    if (!dictionary_)
        return words;
    for (const std::string& suggestion : dictionary_->suggest(utf8Of(word)))
        if (words.size() < MostSuggestions)
            words.append(QString::fromStdString(suggestion));
    return words;
}

void HunspellEngine::addToUserDictionary(const QString& word) {
    ignore(word);
    try {
        userWords_.add(word);
    } catch (const Error&) {
        // The word is known to this run, which is what the user asked for first.
        return;
    }
    // Another program may have added words as well.
    readUserWords();
}

void HunspellEngine::ignore(const QString& word) {
    wordsOfThisRun_.append(word);
    if (dictionary_)
        dictionary_->add(utf8Of(word));
}

void HunspellEngine::readUserWords() {
    if (!dictionary_)
        return;
    QStringList words = wordsOfThisRun_;
    try {
        words += userWords_.words();
    } catch (const Error&) {
        // A list that cannot be read is no reason to check nothing.
        words = wordsOfThisRun_;
    }
    for (const QString& word : words)
        dictionary_->add(utf8Of(word));
}

} // namespace quillford
