#pragma once

#include <QString>

namespace quillford {

/// Checks spelling. One dictionary serves the whole program.
class SpellEngine {
public:
    virtual ~SpellEngine() = default;

    /// True once a dictionary has been loaded.
    [[nodiscard]] virtual bool hasDictionary() const = 0;

    /// Loads the dictionary in the file `path`, or does nothing when that one is loaded already. A
    /// file that is missing or cannot be used is passed over, and the engine then finds no mistake.
    virtual void loadDictionary(const QString& path) = 0;
};

} // namespace quillford
