#pragma once

#include "core/fields/FieldTable.h"

#include <QString>

#include <deque>

namespace quillford {

class ProjectFields;

/// One field of a project: its text and whether that text was changed. Owned by `ProjectFields`; a
/// reference to a field of a panel lives as long as the panel.
class Field {
public:
    Field(ProjectFields& owner, FieldId id, int index = 0);

    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    [[nodiscard]] const FieldRow& row() const { return fieldRow(id_); }

    /// The panel's index; 0 for a field that stands once.
    [[nodiscard]] int index() const noexcept { return index_; }

    /// The text as it was typed, CR LF between its lines.
    [[nodiscard]] const QString& text() const noexcept { return text_; }

    /// The text without the blanks at its ends.
    [[nodiscard]] QString trimmedText() const;

    /// False when the text is empty or holds blanks only.
    [[nodiscard]] bool isFilled() const noexcept;

    /// The number with which the text begins, 0 when it begins with none.
    [[nodiscard]] int number() const noexcept;

    /// Takes a new text as a change: when it really differs, the field is marked as changed and the
    /// observer is told. A text over the field's limit is kept; limits bind typing only.
    void setText(const QString& text);

    /// Takes a text that was read from a project: the observer is told when it differs, and the
    /// mark stays as it is.
    void loadText(const QString& text);

    /// True when `setText` has changed the text since the mark was last cleared.
    [[nodiscard]] bool isChanged() const noexcept { return changed_; }

    void clearChanged() noexcept { changed_ = false; }

private:
    ProjectFields& owner_;
    FieldId id_;
    int index_;
    bool changed_ = false;
    QString text_;
};

/// A repeated field: one member for each panel of its group.
class FieldArray {
public:
    FieldArray(ProjectFields& owner, FieldId id);

    FieldArray(const FieldArray&) = delete;
    FieldArray& operator=(const FieldArray&) = delete;

    /// The member on panel `index`; the index is below `count()`.
    [[nodiscard]] Field& operator()(int index);
    [[nodiscard]] const Field& operator()(int index) const;

    [[nodiscard]] const FieldRow& row() const { return fieldRow(id_); }

    /// The number of members, shown or not.
    [[nodiscard]] int count() const noexcept { return static_cast<int>(members_.size()); }

private:
    friend class ProjectFields;

    /// Drops members from the end or adds new ones, each with the value of a new project.
    void resize(int count);

    ProjectFields& owner_;
    FieldId id_;
    std::deque<Field> members_; // a deque keeps its members in place when it grows
};

} // namespace quillford
