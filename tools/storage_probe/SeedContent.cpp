#include "storage_probe/SeedContent.h"

quint64 SeedContent::word(quint64 index) const {
    quint64 z = seed_ * 0xD1342543DE82EF95ULL + (index + 1) * 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

QByteArray SeedContent::bytes(quint64 first, qsizetype count) const {
    QByteArray made(count, Qt::Uninitialized);
    char* const data = made.data();
    quint64 current = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const quint64 place = first + static_cast<quint64>(i);
        if (i == 0 || place % 8 == 0)
            current = word(place / 8);
        data[i] = static_cast<char>(current >> (8 * (place % 8)));
    }
    return made;
}

QString SeedContent::text(quint32 index, qsizetype units) const {
    constexpr quint32 FirstPrintable = 0x20;
    constexpr quint32 PrintableMask = 0x3F;
    const QByteArray source = bytes(0, units);
    QString text(units, Qt::Uninitialized);
    for (qsizetype i = 0; i < units; ++i) {
        const auto byte = static_cast<unsigned char>(source[i]);
        text[i] = QChar(FirstPrintable + ((byte + index) & PrintableMask));
    }
    return text;
}
