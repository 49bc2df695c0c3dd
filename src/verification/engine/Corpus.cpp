#include "verification/engine/Corpus.h"

#include "base/Text.h"

#include <QList>

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

std::size_t lowByte(QChar unit) {
    return unit.unicode() & 0xff;
}

/// How much of the needle's beginning is matched with one more character, where `matched` was
/// before it. `borders` says for each beginning of the needle (by its length less 1) how much of it
/// is its own end as well, which is what a mismatch leaves matched.
qsizetype matchedWith(QChar unit, qsizetype matched, QStringView needle,
                      const QList<qsizetype>& borders) {
    while (matched > 0 && needle[matched] != unit)
        matched = borders[matched - 1];
    return needle[matched] == unit ? matched + 1 : 0;
}

/// The search of Knuth, Morris and Pratt: it never looks back in the text, so that its time is
/// linear whatever repeats in the text and the needle. The needle is not empty.
bool containsRepetitive(QStringView text, QStringView needle) {
    QList<qsizetype> borders{0};
    borders.reserve(needle.size());
    while (borders.size() < needle.size())
        borders.append(matchedWith(needle[borders.size()], borders.back(), needle, borders));
    qsizetype matched = 0;
    return std::any_of(text.begin(), text.end(), [&](QChar unit) {
        matched = matchedWith(unit, matched, needle, borders);
        return matched == needle.size();
    });
}

} // namespace

Corpus::Corpus(QStringView text) : upper_(upperCase(text)) {
    for (const QChar unit : std::as_const(upper_))
        ++occurrences_[lowByte(unit)];
}

bool Corpus::contains(QStringView text) const {
    if (text.isEmpty())
        return true;
    if (text.size() > upper_.size())
        return false;
    const QString needle = upperCase(text);
    const qsizetype rarest = rarestPlace(needle);
    const qsizetype tries = occurrences(needle[rarest]);
    if (tries == 0)
        return false;
    // Each try may compare the whole needle. Ordinary names stay far below this bound.
    constexpr qsizetype MostTimesTheText = 8;
    if (tries > MostTimesTheText * upper_.size() / needle.size())
        return containsRepetitive(upper_, needle);
    return containsFrom(needle, rarest);
}

bool Corpus::containsFrom(QStringView needle, qsizetype rarest) const {
    const QStringView all = upper_;
    const QChar unit = needle[rarest];
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
