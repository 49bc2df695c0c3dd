#include "base/Text.h"

#include <algorithm>
#include <limits>

namespace quillford {

namespace {

constexpr QChar Blank = u' ';

template <typename Mapping>
QString mapCodeUnits(QStringView text, Mapping mapping) {
    QString mapped(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), mapped.begin(), mapping);
    return mapped;
}

bool isDigit(QChar character) noexcept {
    return character >= u'0' && character <= u'9';
}

} // namespace

QStringView trimBlanks(QStringView text) noexcept {
    while (!text.isEmpty() && text.front() == Blank)
        text = text.sliced(1);
    while (!text.isEmpty() && text.back() == Blank)
        text.chop(1);
    return text;
}

bool isBlank(QStringView text) noexcept {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == Blank; });
}

QString upperCase(QStringView text) {
    return mapCodeUnits(text, [](QChar c) { return c.toUpper(); });
}

QString lowerCase(QStringView text) {
    return mapCodeUnits(text, [](QChar c) { return c.toLower(); });
}

int numberIn(QStringView text) noexcept {
    text = trimBlanks(text);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    qint64 number = 0;
    for (const QChar digit : text) {
        if (!isDigit(digit))
            break;
        number = std::min<qint64>(number * 10 + (digit.unicode() - u'0'),
                                  std::numeric_limits<int>::max());
    }
    return static_cast<int>(negative ? -number : number);
}

} // namespace quillford
