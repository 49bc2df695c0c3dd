#include "core/fields/Field.h"

#include "base/Text.h"
#include "core/fields/ProjectFields.h"

namespace quillford {

Field::Field(ProjectFields& owner, FieldId id, int index)
    : owner_(owner), id_(id), index_(index), text_(fieldRow(id).initial.toString()) {}

QString Field::trimmedText() const {
    return trimBlanks(text_).toString();
}

bool Field::isFilled() const noexcept {
    return !isBlank(text_);
}

int Field::number() const noexcept {
    return numberIn(text_);
}

void Field::setText(const QString& text) {
    if (text == text_)
        return;
    // The mark comes first: whoever is told of the change may ask for it.
    changed_ = true;
    loadText(text);
}

void Field::loadText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    owner_.tellChange(id_, index_);
}

FieldArray::FieldArray(ProjectFields& owner, FieldId id) : owner_(owner), id_(id) {}

Field& FieldArray::operator()(int index) {
    Q_ASSERT(index >= 0 && index < count());
    return members_[static_cast<std::size_t>(index)];
}

const Field& FieldArray::operator()(int index) const {
    Q_ASSERT(index >= 0 && index < count());
    return members_[static_cast<std::size_t>(index)];
}

void FieldArray::resize(int count) {
    while (this->count() > count)
        members_.pop_back();
    while (this->count() < count)
        members_.emplace_back(owner_, id_, this->count());
}

} // namespace quillford
