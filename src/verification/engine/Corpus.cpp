#include "verification/engine/Corpus.h"

#include "base/Text.h"

#include <algorithm>

namespace quillford {

namespace {

std::size_t lowByte(QChar unit) {
    return unit.unicode() & 0xff;
}

} // namespace

Corpus::Corpus(QStringView text) : upper_(upperCase(text)) {
    for (const QChar unit : std::as_const(upper_))
        ++occurrences_[lowByte(unit)];
}

bool Corpus::contains(QStringView text) const {
    if (text.isEmpty())
        return true;
    const QString needle = upperCase(text);
    const qsizetype rarest = rarestPlace(needle);
    if (occurrences(needle[rarest]) == 0)
        return false;
    const QStringView all = upper_;
    const qsizetype last = all.size() - needle.size();
    qsizetype start = 0;
    while (start <= last) {
        start = all.indexOf(needle[rarest], start + rarest) - rarest;
        if (start < 0 || start > last)
            return false;
        if (all.sliced(start, needle.size()) == needle)
            return true;
        ++start;
    }
    return false;
}

qsizetype Corpus::occurrences(QChar unit) const {
    return occurrences_[lowByte(unit)];
}

qsizetype Corpus::rarestPlace(QStringView text) const {
    const auto rarest = std::min_element(text.begin(), text.end(), [this](QChar a, QChar b) {
        return occurrences(a) < occurrences(b);
    });
    return rarest - text.begin();
}

} // namespace quillford
