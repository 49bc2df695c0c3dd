#pragma once

#include "platform/SpellEngine.h"

#include <QStringList>

namespace quillford {

/// Keeps the paths of the dictionaries that it was told to load.
class FakeSpellEngine final : public SpellEngine {
public:
    [[nodiscard]] bool hasDictionary() const override { return has; }

    void loadDictionary(const QString& path) override { loaded.append(path); }

    bool has = true;
    QStringList loaded;
};

} // namespace quillford
