#include "verification/engine/MissingList.h"

#include <utility>

namespace quillford {

MissingList::MissingList(QString separator) : separator_(std::move(separator)) {}

void MissingList::add(const QString& text, ElementCell cell) {
    entries_.push_back({text, cell});
}

QString MissingList::text() const {
    QString text;
    for (const MissingEntry& entry : entries_)
        text += text.isEmpty() ? entry.text : separator_ + entry.text;
    return text;
}

} // namespace quillford
