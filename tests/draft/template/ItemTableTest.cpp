#include "draft/template/ItemTable.h"

#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QStringList namesOf(const ItemTable& table) {
    QStringList names;
    for (const ItemTable::Item& item : table.items())
        names.append(item.name);
    return names;
}

ItemTable tableOf(const QStringList& names) {
    ItemTable table;
    for (const QString& name : names)
        table.set(name, u"value of "_s + name);
    return table;
}

} // namespace

TEST(ItemTable, an_empty_table_knows_no_item) {
    const ItemTable table;
    EXPECT_EQ(table.find(u"a"_s), nullptr);
    EXPECT_TRUE(table.items().empty());
    EXPECT_FALSE(table.hasNameWithBracket());
}

TEST(ItemTable, an_item_has_its_name_in_brackets_as_mark) {
    const ItemTable table = tableOf({u"1-INVENTION TITLE"_s});
    ASSERT_NE(table.find(u"1-INVENTION TITLE"_s), nullptr);
    EXPECT_EQ(table.find(u"1-INVENTION TITLE"_s)->mark, u"[1-INVENTION TITLE]"_s);
}

TEST(ItemTable, names_are_told_apart_by_case_and_blanks) {
    ItemTable table = tableOf({u"a/an"_s, u"A/An"_s, u"a/an "_s, u""_s});
    table.set(u"a/an"_s, u"an"_s);
    EXPECT_EQ(namesOf(table), QStringList({u"a/an"_s, u"A/An"_s, u"a/an "_s, u""_s}));
    EXPECT_EQ(table.find(u"a/an"_s)->value, u"an"_s);
    EXPECT_EQ(table.find(u"A/An"_s)->value, u"value of A/An"_s);
    EXPECT_EQ(table.find(u"A/AN"_s), nullptr);
}

TEST(ItemTable, the_order_is_that_in_which_the_names_were_first_added) {
    ItemTable table = tableOf({u"c"_s, u"a"_s, u"b"_s});
    table.set(u"c"_s, u"once more"_s);
    table.append(u"a"_s, u"once more"_s);
    EXPECT_EQ(namesOf(table), QStringList({u"c"_s, u"a"_s, u"b"_s}));
}

TEST(ItemTable, an_existing_item_takes_the_new_value_or_has_it_added_behind) {
    ItemTable table = tableOf({u"a"_s});
    table.set(u"a"_s, u"one"_s);
    EXPECT_EQ(table.find(u"a"_s)->value, u"one"_s);
    table.append(u"a"_s, u", two"_s);
    EXPECT_EQ(table.find(u"a"_s)->value, u"one, two"_s);
    table.set(u"a"_s, u""_s);
    EXPECT_EQ(table.find(u"a"_s)->value, u""_s);
}

TEST(ItemTable, appending_to_an_unknown_name_adds_the_item) {
    ItemTable table;
    table.append(u"a"_s, u"one"_s);
    ASSERT_NE(table.find(u"a"_s), nullptr);
    EXPECT_EQ(table.find(u"a"_s)->value, u"one"_s);
}

TEST(ItemTable, a_removed_item_is_gone_and_the_others_are_found_as_before) {
    ItemTable table = tableOf({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    table.remove(u"b"_s);
    table.remove(u"unknown"_s);
    EXPECT_EQ(table.find(u"b"_s), nullptr);
    EXPECT_EQ(namesOf(table), QStringList({u"a"_s, u"c"_s, u"d"_s}));
    for (const QString& name : {u"a"_s, u"c"_s, u"d"_s}) {
        ASSERT_NE(table.find(name), nullptr);
        EXPECT_EQ(table.find(name)->value, u"value of "_s + name);
    }
}

TEST(ItemTable, a_removed_item_that_comes_back_stands_behind_the_others) {
    ItemTable table = tableOf({u"a"_s, u"b"_s});
    table.remove(u"a"_s);
    table.set(u"a"_s, u"again"_s);
    EXPECT_EQ(namesOf(table), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(table.find(u"a"_s)->value, u"again"_s);
}

TEST(ItemTable, an_item_can_be_removed_by_the_name_that_it_owns) {
    ItemTable table = tableOf({u"a"_s, u"b"_s});
    table.remove(table.find(u"a"_s)->name);
    EXPECT_EQ(namesOf(table), QStringList({u"b"_s}));
    EXPECT_EQ(table.find(u"a"_s), nullptr);
}

TEST(ItemTable, a_bracket_in_a_name_is_seen_until_the_item_goes) {
    ItemTable table = tableOf({u"a"_s});
    table.set(u"a[0]"_s, u"["_s);
    table.set(u"a[0]"_s, u"plain"_s);
    EXPECT_TRUE(table.hasNameWithBracket());
    table.remove(u"a[0]"_s);
    EXPECT_FALSE(table.hasNameWithBracket());
}
