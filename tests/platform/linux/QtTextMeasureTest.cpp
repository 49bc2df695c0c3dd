#include "platform/linux/QtTextMeasure.h"

#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <QFontInfo>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Regular = TextWeight::Regular;
constexpr auto Bold = TextWeight::Bold;

const QString Sentence = u"AVATAR To Wave: Größe of 12 fluffy \U0001F600 offices, Ty. "_s;

} // namespace

TEST(QtTextMeasure, measures_the_designed_font) {
    for (const TextWeight weight : {Regular, Bold}) {
        const QFontInfo font(QtTextMeasure::font(weight));
        EXPECT_EQ(font.family(), u"Liberation Sans"_s);
        EXPECT_EQ(font.pixelSize(), 11);
        EXPECT_EQ(font.bold(), weight == Bold);
    }
}

TEST(QtTextMeasure, a_line_has_the_height_that_captions_are_laid_out_with) {
    EXPECT_EQ(QtTextMeasure().lineHeight(), 13);
}

TEST(QtTextMeasure, a_text_is_as_wide_as_its_letters_in_the_font) {
    // In units of which 2048 are the font's size, an m has 1706, or 1821 in bold, and an i 455, or
    // 569. The rasteriser may round each letter to whole pixels.
    const QtTextMeasure measure;
    const auto units = [](double width) { return width * 2048 / 11 / 100; };
    constexpr double HalfPixel = 2048.0 / 11 / 2;
    EXPECT_NEAR(units(measure.width(QString(100, u'm'), Regular)), 1706, HalfPixel);
    EXPECT_NEAR(units(measure.width(QString(100, u'm'), Bold)), 1821, HalfPixel);
    EXPECT_NEAR(units(measure.width(QString(100, u'i'), Regular)), 455, HalfPixel);
    EXPECT_NEAR(units(measure.width(QString(100, u'i'), Bold)), 569, HalfPixel);
    EXPECT_EQ(measure.width(u"", Regular), 0);
}

TEST(QtTextMeasure, blanks_at_the_end_count) {
    const QtTextMeasure measure;
    EXPECT_GT(measure.width(u"one ", Regular), measure.width(u"one", Regular));
}

TEST(QtTextMeasure, a_longer_text_is_never_narrower_than_its_beginning) {
    const QtTextMeasure measure;
    for (const TextWeight weight : {Regular, Bold})
        for (qsizetype length = 1; length <= Sentence.size(); ++length)
            EXPECT_GE(measure.width(QStringView(Sentence).first(length), weight),
                      measure.width(QStringView(Sentence).first(length - 1), weight))
                << length;
}

TEST(QtTextMeasure, a_million_characters_without_a_blank_are_measured_in_seconds) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_GT(QtTextMeasure().width(QString(1'000'000, u'm'), Regular), 8e6);
    EXPECT_LT(timer.elapsed(), 20'000);
}
