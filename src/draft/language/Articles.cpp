#include "draft/language/Articles.h"

#include "base/Text.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Vowels = u"AEIOU";

constexpr std::array<QStringView, 6> CountriesWithArticle{
    u"united states", u"united arab emirates", u"czech republic",
    u"netherlands",   u"philippines",          u"syrian arab republic"};

bool needsArticle(QStringView country) {
    const QString name = lowerCase(country);
    return std::find(CountriesWithArticle.begin(), CountriesWithArticle.end(), name) !=
           CountriesWithArticle.end();
}

} // namespace

QString isVowelInitial(QStringView text) {
    if (text.isEmpty())
        return u"a"_s;
    return Vowels.contains(upperCase(text.first(1))) ? u"an"_s : u"a"_s;
}

QString citizenshipText(QStringView country) {
    const QStringView name = trimBlanks(country);
    return (needsArticle(name) ? u"the "_s : QString()) % name;
}

} // namespace quillford
