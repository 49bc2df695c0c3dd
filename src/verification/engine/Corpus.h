#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace quillford {

/// A text in which many others are looked for, blind to case and to the bounds of words: "bolt" is
/// found in "Thunderbolts". The text is put into upper case once, and it is counted how often each
/// character stands in it, so that a search can begin at the rarest character of what it looks for.
class Corpus {
public:
    explicit Corpus(QStringView text);

    /// True when `text` stands somewhere in the corpus. An empty text is in every corpus. The time
    /// is linear in the two texts, also where both repeat themselves.
    [[nodiscard]] bool contains(QStringView text) const;

private:
    [[nodiscard]] qsizetype occurrences(QChar unit) const;
    [[nodiscard]] qsizetype rarestPlace(QStringView text) const;
    [[nodiscard]] bool containsFrom(QStringView needle, qsizetype rarest) const;

    QString upper_;
    /// By the low byte of the character: characters that share it are counted together, so that a
    /// count may be too high, but one of 0 means that the character does not occur.
    std::array<qsizetype, 256> occurrences_{};
};

} // namespace quillford
