#include "controls/SpellBinder.h"

#include <utility>

namespace quillford {

SpellBinder::SpellBinder(SpellEngine& engine, QString dictionary, Spelling::Names names)
    : engine_(engine), dictionary_(std::move(dictionary)), spelling_(engine, std::move(names)) {}

SpellBinder::~SpellBinder() {
    release();
}

void SpellBinder::SpellAttach(QWidget& field) {
    engine_.loadDictionary(dictionary_);
    SpellMarks* const marks = SpellMarks::of(field);
    if (marks && marks == bound_)
        return;
    release();
    bound_ = marks;
    if (bound_)
        bound_->bindTo(&spelling_);
}

void SpellBinder::release() {
    if (bound_)
        bound_->bindTo(nullptr);
}

} // namespace quillford
