#include "editors/rules/ObjectSentences.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString sentence(int index, const QString& title) {
    return objectCaptions(index, title, SentenceWriter::Layout).sentence;
}

} // namespace

TEST(ObjectSentences, the_first_object_begins_with_An_and_the_others_with_Another) {
    EXPECT_EQ(sentence(0, u"Pencil Clip"_s),
              u"1. \"An object of my invention is to provide a pencil clip that _____________.\" "
              u"(COMPLETE SENTENCE)"_s);
    EXPECT_EQ(sentence(1, u"Pencil Clip"_s),
              u"2. \"Another object of my invention is to provide a pencil clip that "
              u"_____________.\" (COMPLETE SENTENCE)"_s);
}

TEST(ObjectSentences, twenty_objects_are_numbered_to_20) {
    for (int i = 1; i < 20; ++i)
        EXPECT_TRUE(
            sentence(i, u"Easel"_s)
                .startsWith(
                    u"%1. \"Another object of my invention is to provide an easel "_s.arg(i + 1)));
}

TEST(ObjectSentences, without_a_title_a_placeholder_stands_with_a) {
    const QString placeholder = u"to provide a [Descriptive Title] that _____________.\" "_s;
    for (const QString& title : {u""_s, u"   "_s}) {
        EXPECT_TRUE(
            sentence(0, title).contains(u"\"An object of my invention is "_s + placeholder));
        EXPECT_TRUE(
            sentence(7, title).contains(u"\"Another object of my invention is "_s + placeholder));
    }
}

TEST(ObjectSentences, the_first_letter_of_the_title_alone_chooses_the_article) {
    EXPECT_TRUE(sentence(0, u"Umbrella Stand"_s).contains(u" provide an umbrella stand that "_s));
    EXPECT_TRUE(sentence(0, u"Hour Meter"_s).contains(u" provide a hour meter that "_s));
}

TEST(ObjectSentences, the_title_stands_trimmed_and_in_lower_case) {
    EXPECT_TRUE(sentence(3, u"  Acme PRESS  "_s).contains(u" provide an acme press that "_s));
}

TEST(ObjectSentences, a_title_may_hold_what_looks_like_a_place_for_text) {
    EXPECT_TRUE(sentence(0, u"%1 Clip"_s).contains(u" provide a %1 clip that "_s));
}

TEST(ObjectSentences, a_refresh_leaves_two_blanks_behind_all_sentences_but_the_first) {
    const auto captions = [](int index, SentenceWriter writer) {
        return objectCaptions(index, u"Easel"_s, writer);
    };
    EXPECT_EQ(captions(0, SentenceWriter::Refresh), captions(0, SentenceWriter::Layout));
    EXPECT_EQ(captions(1, SentenceWriter::Refresh).sentence,
              captions(1, SentenceWriter::Layout).sentence + u"  "_s);
}

TEST(ObjectSentences, the_star_ends_two_blanks_behind_the_sentence_whoever_writes_it) {
    for (const int index : {0, 1, 19})
        for (const auto writer : {SentenceWriter::Layout, SentenceWriter::Refresh})
            EXPECT_EQ(objectCaptions(index, u"Easel"_s, writer).sentenceStar,
                      sentence(index, u"Easel"_s) + u"  *"_s);
}

TEST(ObjectSentences, a_sentence_of_two_lines_makes_a_panel_of_81) {
    EXPECT_EQ(objectPanelPlaces(3, 26), ObjectPanelPlaces(35, 81));
}

TEST(ObjectSentences, each_line_more_makes_the_panel_taller_by_a_line) {
    EXPECT_EQ(objectPanelPlaces(3, 39), ObjectPanelPlaces(48, 94));
    EXPECT_EQ(objectPanelPlaces(3, 13), ObjectPanelPlaces(22, 68));
}
