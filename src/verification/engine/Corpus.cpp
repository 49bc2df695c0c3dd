#include "verification/engine/Corpus.h"

#include "base/Text.h"

#include <algorithm>
#include <utility>

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
    const QChar unit = needle[rarest];
    if (occurrences(unit) == 0)
        return false;
    const QStringView all = upper_;
    const qsizetype lastPlace = all.size() - needle.size() + rarest;
    for (qsizetype place = all.indexOf(unit, rarest); place >= 0 && place <= lastPlace;
         place = all.indexOf(unit, place + 1))
        if (all.sliced(place - rarest, needle.size()) == needle)
            return true;
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
