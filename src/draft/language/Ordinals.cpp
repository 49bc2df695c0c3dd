#include "draft/language/Ordinals.h"

#include <QStringView>

#include <array>

namespace quillford {

namespace {

constexpr std::array<QStringView, 15> OrdinalWords{
    u"First",    u"Second",  u"Third",      u"Fourth",     u"Fifth",
    u"Sixth",    u"Seventh", u"Eighth",     u"Ninth",      u"Tenth",
    u"Eleventh", u"Twelfth", u"Thirteenth", u"Fourteenth", u"Fifteenth"};

} // namespace

QString getOrdinalWord(int number) {
    const auto index = static_cast<std::size_t>(number);
    if (number < 0 || index >= OrdinalWords.size())
        return {};
    return OrdinalWords[index].toString();
}

} // namespace quillford
