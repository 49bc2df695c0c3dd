#include "draft/language/Articles.h"

#include "base/Text.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Vowels = u"AEIOU";

/// As the list of citizenships spells them.
constexpr std::array<QStringView, 6> CountriesWithArticle{
    u"United States", u"United Arab Emirates", u"Czech Republic",
    u"Netherlands",   u"Philippines",          u"Syrian Arab Republic"};

} // namespace

QString isVowelInitial(QStringView text) {
    if (text.isEmpty())
        return u"a"_s;
    return Vowels.contains(upperCase(text.first(1))) ? u"an"_s : u"a"_s;
}

QString citizenshipText(QStringView country) {
    const QStringView name = trimBlanks(country);
    const QString lowered = lowerCase(name);
    const auto listed =
        std::find_if(CountriesWithArticle.begin(), CountriesWithArticle.end(),
                     [&lowered](QStringView row) { return lowerCase(row) == lowered; });
    return listed == CountriesWithArticle.end() ? name.toString() : u"the " % *listed;
}

} // namespace quillford
