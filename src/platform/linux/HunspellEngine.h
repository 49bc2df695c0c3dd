#pragma once

#include "platform/SpellEngine.h"
#include "platform/linux/WordList.h"

#include <memory>

class Hunspell;

namespace quillford {

/// Spelling by the Hunspell library. A dictionary "NAME.lex" is a list of words of that library in
/// UTF-8, and its rules of affixes stand beside it in "NAME.aff".
class HunspellEngine final : public SpellEngine {
public:
    /// `userWords` is the path of the user's own list of words (see `WordList`); it is read with
    /// each dictionary, and need not exist.
    explicit HunspellEngine(QString userWords);
    ~HunspellEngine() override;

    HunspellEngine(const HunspellEngine&) = delete;
    HunspellEngine& operator=(const HunspellEngine&) = delete;
    HunspellEngine(HunspellEngine&&) = delete;
    HunspellEngine& operator=(HunspellEngine&&) = delete;

    [[nodiscard]] bool hasDictionary() const override;
    void loadDictionary(const QString& path) override;
    [[nodiscard]] bool isKnown(const QString& word) const override;
    [[nodiscard]] QStringList suggestions(const QString& word) const override;
    void addToUserDictionary(const QString& word) override;
    void ignore(const QString& word) override;

private:
    void readUserWords();

    WordList userWords_;
    QStringList wordsOfThisRun_;
    QString path_;
    std::unique_ptr<Hunspell> dictionary_;
};

} // namespace quillford
