#include "verification/engine/Corpus.h"

#include "base/Text.h"
#include "support/PrintQt.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(Corpus, a_word_within_a_word_is_found) {
    EXPECT_TRUE(Corpus(u"held by thunderbolts only").contains(u"bolt"));
}

TEST(Corpus, a_number_within_a_number_is_found) {
    const Corpus corpus(u"Patented in 2010.");
    EXPECT_TRUE(corpus.contains(u"10"));
    EXPECT_TRUE(corpus.contains(u"20"));
    EXPECT_FALSE(corpus.contains(u"11"));
}

TEST(Corpus, case_does_not_matter_on_either_side) {
    EXPECT_TRUE(Corpus(u"the HINGE pin").contains(u"Hinge PIN"));
    EXPECT_TRUE(Corpus(u"une CHARNIÈRE").contains(u"charnière"));
}

TEST(Corpus, an_accent_is_a_difference) {
    EXPECT_FALSE(Corpus(u"charniere").contains(u"charnière"));
}

TEST(Corpus, a_letter_whose_upper_case_is_longer_stays_as_it_is) {
    EXPECT_TRUE(Corpus(u"der Fuß").contains(u"FUß"));
    EXPECT_FALSE(Corpus(u"der FUSS").contains(u"Fuß"));
}

TEST(Corpus, the_number_of_blanks_matters) {
    EXPECT_FALSE(Corpus(u"a hinge pin").contains(u"hinge  pin"));
    EXPECT_FALSE(Corpus(u"a hinge  pin").contains(u"hinge pin"));
}

TEST(Corpus, a_text_is_found_at_both_ends) {
    const Corpus corpus(u"hinge and pin");
    EXPECT_TRUE(corpus.contains(u"hinge"));
    EXPECT_TRUE(corpus.contains(u"pin"));
    EXPECT_TRUE(corpus.contains(u"hinge and pin"));
}

TEST(Corpus, a_text_that_the_corpus_only_begins_is_not_found) {
    const Corpus corpus(u"hinge and pin");
    EXPECT_FALSE(corpus.contains(u"pins"));
    EXPECT_FALSE(corpus.contains(u"a hinge"));
    EXPECT_FALSE(corpus.contains(u"hinge and pin "));
}

TEST(Corpus, nothing_is_found_in_an_empty_corpus_but_the_empty_text) {
    EXPECT_FALSE(Corpus(u"").contains(u"a"));
    EXPECT_TRUE(Corpus(u"").contains(u""));
}

TEST(Corpus, characters_are_not_mistaken_for_others_with_the_same_low_byte) {
    EXPECT_FALSE(Corpus(u"\u0141").contains(u"A"));
    EXPECT_FALSE(Corpus(u"\u4120\u2041").contains(u"\u2041\u4120"));
    EXPECT_TRUE(Corpus(u"\u0141A").contains(u"A"));
}

TEST(Corpus, answers_as_a_plain_search_of_the_upper_case_does) {
    std::mt19937 chance(7);
    const auto text = [&](int length) {
        QString made;
        for (int i = 0; i < length; ++i)
            made += u"aAbB\u0141"[chance() % 5];
        return made;
    };
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        const QString all = text(static_cast<int>(chance() % 40));
        const QString part = text(static_cast<int>(chance() % 6));
        const bool expected = upperCase(all).contains(upperCase(part));
        ASSERT_EQ(Corpus(all).contains(part), expected) << qPrintable(all + u" / "_s + part);
        found += expected;
    }
    EXPECT_GT(found, 2000);
    EXPECT_LT(found, 18000);
}

TEST(Corpus, answers_as_a_plain_search_does_where_text_and_needle_repeat_themselves) {
    std::mt19937 chance(11);
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        QString all;
        while (all.size() < 120)
            all += u"ab"_s.repeated(static_cast<int>(chance() % 12)) + u"a"_s;
        QString part =
            all.mid(static_cast<int>(chance() % 80), 10 + static_cast<int>(chance() % 50));
        if (round % 2 == 0)
            part[static_cast<int>(chance() % 10)] = u'b';
        const bool expected = upperCase(all).contains(upperCase(part));
        ASSERT_EQ(Corpus(all).contains(part), expected) << qPrintable(all + u" / "_s + part);
        found += expected;
    }
    EXPECT_GT(found, 10000);
    EXPECT_LT(found, 19000);
}

TEST(Corpus, a_long_needle_in_an_equally_repetitive_text_takes_no_quadratic_time) {
    const Corpus corpus(u"ab"_s.repeated(500'000));
    const QString needle = u"ab"_s.repeated(125'000) + u"aa"_s + u"ab"_s.repeated(125'000);
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(corpus.contains(needle));
    EXPECT_TRUE(corpus.contains(u"ab"_s.repeated(250'000)));
    EXPECT_LT(time.elapsed(), 2000) << "comparing the needle at every place takes some 10 s";
}
