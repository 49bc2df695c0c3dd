#include "draft/language/Ordinals.h"

#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <limits>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(Ordinals, fifteen_numbers_from_zero_have_their_word) {
    const QStringList words{u"First"_s,      u"Second"_s,     u"Third"_s,    u"Fourth"_s,
                            u"Fifth"_s,      u"Sixth"_s,      u"Seventh"_s,  u"Eighth"_s,
                            u"Ninth"_s,      u"Tenth"_s,      u"Eleventh"_s, u"Twelfth"_s,
                            u"Thirteenth"_s, u"Fourteenth"_s, u"Fifteenth"_s};
    for (int number = 0; number < 15; ++number)
        EXPECT_EQ(getOrdinalWord(number), words.at(number)) << number;
}

TEST(Ordinals, any_other_number_has_no_word) {
    for (const int number :
         {-1, 15, 16, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(getOrdinalWord(number), u""_s) << number;
}
