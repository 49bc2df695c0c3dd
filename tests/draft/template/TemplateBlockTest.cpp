#include "draft/template/TemplateBlock.h"

#include "support/PeakMemory.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype NoLimit = 128 * 1024 * 1024;

using Items = std::vector<std::pair<QString, QString>>;

ItemTable tableOf(const Items& items) {
    ItemTable table;
    for (const auto& [name, value] : items)
        table.set(name, value);
    return table;
}

QString rendered(const QString& text, const Items& items) {
    return TemplateBlock(text).rendered(tableOf(items), NoLimit).value_or(u"too long"_s);
}

/// What rendering means, word by word: one item after the other, each mark replaced everywhere.
QString renderedByTheBook(QString text, const ItemTable& items) {
    for (const ItemTable::Item& item : items.items())
        text.replace(u'[' + item.name + u']', item.value);
    return text;
}

/// Texts over an alphabet in which nearly everything is a mark or nearly one.
class RandomTexts {
public:
    explicit RandomTexts(quint32 seed) : random_(seed) {}

    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(random_); }

    QString text(const QString& letters, int longest) {
        QString text;
        for (int left = below(longest + 1); left > 0; --left)
            text += letters[below(static_cast<int>(letters.size()))];
        return text;
    }

    /// One table in three has brackets in its values, one in ten in its names.
    ItemTable table() {
        const QString values = below(3) == 0 ? u"ab[]"_s : u"ab"_s;
        const QString names = below(10) == 0 ? u"ab[]"_s : u"ab"_s;
        ItemTable table;
        for (int left = below(5); left > 0; --left)
            table.set(text(names, 2), text(values, 4));
        return table;
    }

private:
    std::mt19937 random_;
};

} // namespace

TEST(TemplateBlock, without_items_the_text_is_left_alone) {
    for (const QString& text : {u""_s, u"plain"_s, u"[a]"_s, u"[[a]"_s, u"]["_s, u"[]"_s, u"["_s})
        EXPECT_EQ(rendered(text, {}), text);
}

TEST(TemplateBlock, every_mark_of_an_item_is_replaced) {
    EXPECT_EQ(rendered(u"[a] and [a][a] and [b]"_s, {{u"a"_s, u"one"_s}, {u"b"_s, u""_s}}),
              u"one and oneone and "_s);
}

TEST(TemplateBlock, a_mark_of_an_unknown_item_stays) {
    EXPECT_EQ(rendered(u"[a] [b]"_s, {{u"a"_s, u"one"_s}}), u"one [b]"_s);
}

TEST(TemplateBlock, a_mark_that_differs_in_case_or_by_a_blank_stays) {
    EXPECT_EQ(rendered(u"[A/An] [a/an] [a/an ] [ a/an]"_s, {{u"a/an"_s, u"an"_s}}),
              u"[A/An] an [a/an ] [ a/an]"_s);
}

TEST(TemplateBlock, a_name_is_no_pattern) {
    EXPECT_EQ(rendered(u"[a.c] [abc] [.*] [$1] [a\\]"_s,
                       {{u"a.c"_s, u"one"_s}, {u".*"_s, u"\\1$&"_s}, {u"a\\"_s, u"three"_s}}),
              u"one [abc] \\1$& [$1] three"_s);
}

TEST(TemplateBlock, a_name_can_be_empty) {
    EXPECT_EQ(rendered(u"[] [a]"_s, {{u""_s, u"one"_s}}), u"one [a]"_s);
}

TEST(TemplateBlock, a_value_is_open_to_the_items_behind_it) {
    EXPECT_EQ(rendered(u"[a]"_s, {{u"a"_s, u"see [b]"_s}, {u"b"_s, u"here"_s}}), u"see here"_s);
}

TEST(TemplateBlock, a_value_is_closed_to_itself_and_to_the_items_before_it) {
    EXPECT_EQ(rendered(u"[b] [a]"_s, {{u"a"_s, u"one"_s}, {u"b"_s, u"[a] [b]"_s}}),
              u"[a] [b] one"_s);
}

TEST(TemplateBlock, a_mark_can_be_put_together_from_values) {
    EXPECT_EQ(rendered(u"[a]c]"_s, {{u"a"_s, u"[b"_s}, {u"bc"_s, u"made"_s}}), u"made"_s);
    EXPECT_EQ(rendered(u"[[a]]"_s, {{u"a"_s, u"b"_s}, {u"b"_s, u"made"_s}}), u"made"_s);
    EXPECT_EQ(rendered(u"[[a]]"_s, {{u"b"_s, u"early"_s}, {u"a"_s, u"b"_s}}), u"[b]"_s);
}

TEST(TemplateBlock, a_block_is_not_used_up) {
    const TemplateBlock block(u"<[a]>"_s);
    EXPECT_EQ(block.rendered(tableOf({{u"a"_s, u"one"_s}}), NoLimit), u"<one>"_s);
    EXPECT_EQ(block.rendered(tableOf({{u"a"_s, u"two"_s}}), NoLimit), u"<two>"_s);
    EXPECT_EQ(block.text(), u"<[a]>"_s);
}

TEST(TemplateBlock, a_new_text_takes_the_place_of_the_old_one) {
    TemplateBlock block(u"[a]"_s);
    const ItemTable items = tableOf({{u"a"_s, u"one"_s}, {u"b"_s, u"two"_s}});
    EXPECT_EQ(block.rendered(items, NoLimit), u"one"_s);
    block.setText(u"now [b]"_s);
    EXPECT_EQ(block.text(), u"now [b]"_s);
    EXPECT_EQ(block.rendered(items, NoLimit), u"now two"_s);
}

TEST(TemplateBlock, a_copy_outlives_its_original) {
    const ItemTable items = tableOf({{u"a"_s, u"one"_s}});
    TemplateBlock copy;
    {
        TemplateBlock original(u"a text of its own with [a]"_s);
        EXPECT_EQ(original.rendered(items, NoLimit), u"a text of its own with one"_s);
        copy = original;
        original.setText(u"another"_s);
    }
    EXPECT_EQ(copy.rendered(items, NoLimit), u"a text of its own with one"_s);
}

TEST(TemplateBlock, surrogates_are_letters_like_others) {
    const QString pair = QString::fromUcs4(U"\U0001F58B");
    const QString lone(QChar(0xD83D));
    EXPECT_EQ(rendered(pair + u"[a]"_s + lone, {{u"a"_s, lone + pair}}), pair + lone + pair + lone);
}

bool hasBracket(const ItemTable& items) {
    return std::any_of(items.items().begin(), items.items().end(), [](const ItemTable::Item& item) {
        return (item.name + item.value).contains(u'[') || item.name.contains(u']');
    });
}

TEST(TemplateBlock, in_one_pass_or_item_by_item_the_text_is_the_same) {
    constexpr int Cases = 40'000;
    RandomTexts random(1);
    int changedInOnePass = 0;
    int changedItemByItem = 0;
    for (int i = 0; i < Cases; ++i) {
        const ItemTable items = random.table();
        const QString text = random.text(u"ab[[]]"_s, 14);
        const QString expected = renderedByTheBook(text, items);
        ASSERT_EQ(TemplateBlock(text).rendered(items, NoLimit), expected)
            << "of " << qPrintable(text);
        if (expected != text)
            ++(hasBracket(items) ? changedItemByItem : changedInOnePass);
    }
    EXPECT_GT(changedInOnePass, Cases / 20);
    EXPECT_GT(changedItemByItem, Cases / 20);
}

TEST(TemplateBlock, a_text_of_just_the_length_allowed_passes_and_one_more_character_does_not) {
    const Items plain{{u"a"_s, u"12345"_s}};
    const Items withBrackets{{u"a"_s, u"12[45"_s}};
    for (const Items& items : {plain, withBrackets}) {
        const TemplateBlock block(u"<[a][a]>"_s);
        EXPECT_EQ(block.rendered(tableOf(items), 12).value_or(QString()).size(), 12);
        EXPECT_EQ(block.rendered(tableOf(items), 11), std::nullopt);
    }
}

TEST(TemplateBlock, a_text_without_marks_has_the_same_limit) {
    EXPECT_EQ(TemplateBlock(u"12345"_s).rendered({}, 5), u"12345"_s);
    EXPECT_EQ(TemplateBlock(u"12345"_s).rendered({}, 4), std::nullopt);
}

TEST(TemplateBlock, a_refused_text_takes_no_memory) {
    const QString text = u"[a]"_s.repeated(10'000);
    const QString value(1'000'000, u'x');
    const ItemTable plain = tableOf({{u"a"_s, value}});
    const ItemTable withBrackets = tableOf({{u"a"_s, value + u'['}});
    const PeakMemory memory;
    for (const ItemTable* items : {&plain, &withBrackets})
        EXPECT_EQ(TemplateBlock(text).rendered(*items, NoLimit), std::nullopt);
    EXPECT_LT(memory.growthInBytes(), 16 * 1024 * 1024);
}
