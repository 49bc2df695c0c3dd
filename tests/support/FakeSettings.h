#pragma once

#include "base/Error.h"
#include "base/Text.h"
#include "platform/SettingsStore.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <utility>

namespace quillford {

/// Values in memory.
class FakeSettingsValues final : public SettingsValues {
public:
    [[nodiscard]] std::optional<QString> value(Hive hive, QStringView key,
                                               QStringView name) const override {
        const auto found = values_.constFind({fullName(hive, key), upperCase(name)});
        return found == values_.constEnd() ? std::nullopt : std::optional(*found);
    }

    [[nodiscard]] bool hasKey(Hive hive, QStringView key) const override {
        return keys_.contains(fullName(hive, key));
    }

    void setValue(Hive hive, QStringView key, QStringView name, const QString& text) override {
        if (std::any_of(key.begin(), key.end(), [](QChar c) { return c.unicode() < 32; }))
            throw Error(1, QStringLiteral("A key cannot hold a control character."));
        for (qsizetype end = key.indexOf(u'\\'); end >= 0; end = key.indexOf(u'\\', end + 1))
            keys_.insert(fullName(hive, key.first(end)));
        keys_.insert(fullName(hive, key));
        values_.insert({fullName(hive, key), upperCase(name)}, text);
    }

    void removeValue(Hive hive, QStringView key, QStringView name) override {
        values_.remove({fullName(hive, key), upperCase(name)});
    }

private:
    [[nodiscard]] static QString fullName(Hive hive, QStringView key) {
        return (hive == Hive::CurrentUser ? QStringLiteral("USER\\") : QStringLiteral("ROOT\\")) +
               upperCase(key);
    }

    QSet<QString> keys_;
    QMap<std::pair<QString, QString>, QString> values_;
};

/// A store in memory, which can be told to fail.
class FakeSettings final : public SettingsStore {
public:
    void look(const Look& step) const override {
        if (cannotRead)
            throw Error(1, QStringLiteral("The settings cannot be read."));
        step(values_);
    }

    void change(const Change& step) override {
        if (cannotRead || changing_)
            throw Error(1, QStringLiteral("The settings cannot be changed."));
        FakeSettingsValues changed = values_;
        changing_ = true;
        try {
            step(changed);
        } catch (...) {
            changing_ = false;
            throw;
        }
        changing_ = false;
        if (cannotWrite)
            throw Error(1, QStringLiteral("The settings cannot be written."));
        values_ = std::move(changed);
        ++changes;
    }

    bool cannotRead = false;
    bool cannotWrite = false;
    /// How often a change went through.
    int changes = 0;

private:
    FakeSettingsValues values_;
    bool changing_ = false;
};

} // namespace quillford
