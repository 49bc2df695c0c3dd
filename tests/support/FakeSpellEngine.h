#pragma once

#include "platform/SpellEngine.h"

#include <QHash>
#include <QStringList>

namespace quillford {

/// Knows every word but those in `unknown`, and keeps what it was told.
class FakeSpellEngine final : public SpellEngine {
public:
    [[nodiscard]] bool hasDictionary() const override { return has; }

    void loadDictionary(const QString& path) override { loaded.append(path); }

    [[nodiscard]] bool isKnown(const QString& word) const override {
        asked.append(word);
        return !has || !unknown.contains(word);
    }

    [[nodiscard]] QStringList suggestions(const QString& word) const override {
        return has ? suggested.value(word) : QStringList();
    }

    void addToUserDictionary(const QString& word) override {
        added.append(word);
        unknown.removeAll(word);
    }

    void ignore(const QString& word) override {
        ignored.append(word);
        unknown.removeAll(word);
    }

    bool has = true;
    QStringList unknown;
    QHash<QString, QStringList> suggested;
    QStringList loaded;
    QStringList added;
    QStringList ignored;
    mutable QStringList asked;
};

} // namespace quillford
