#pragma once

#include <QByteArray>
#include <QString>

/// Content that is told by a number: the same bytes wherever they are made.
class SeedContent {
public:
    explicit SeedContent(quint64 seed) : seed_(seed) {}

    /// The `count` bytes from `first` on.
    [[nodiscard]] QByteArray bytes(quint64 first, qsizetype count) const;

    /// The string with the number `index`, of `units` printable code units.
    [[nodiscard]] QString text(quint32 index, qsizetype units) const;

private:
    [[nodiscard]] quint64 word(quint64 index) const;

    quint64 seed_;
};
