#pragma once

#include "verification/engine/ElementCell.h"

#include <QString>

#include <vector>

namespace quillford {

/// What was not found, and the cell that asked for it.
struct MissingEntry {
    QString text;
    ElementCell cell;
};

/// One list of things that a verification did not find, in the order in which it looked for them.
/// The list reads as one text; beside each entry it keeps the cell, so that whoever shows an entry
/// can lead to its field.
class MissingList {
public:
    /// @param separator  what stands between two entries of the text
    explicit MissingList(QString separator);

    /// Adds an entry behind the others. Its text is not empty.
    void add(const QString& text, ElementCell cell);

    void clear() noexcept { entries_.clear(); }

    [[nodiscard]] bool isEmpty() const noexcept { return entries_.empty(); }

    /// All entries with the separator between them; empty for an empty list.
    [[nodiscard]] QString text() const;

    [[nodiscard]] const std::vector<MissingEntry>& entries() const noexcept { return entries_; }

private:
    QString separator_;
    std::vector<MissingEntry> entries_;
};

} // namespace quillford
