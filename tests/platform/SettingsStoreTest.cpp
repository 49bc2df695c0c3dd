#include "platform/SettingsStore.h"

#include "base/Error.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/FakeSettings.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <stdexcept>

// What every store promises, the one on the disk and the one of the tests alike.

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Key = u"Software\\Some Publisher\\Some Program";

struct OnDisk {
    QTemporaryDir folder;
    FileSettingsStore store{folder.filePath(u"configuration/settings.txt"_s)};
};

struct InMemory {
    FakeSettings store;
};

template <typename Place>
class SettingsStoreTest : public testing::Test {
protected:
    void set(QStringView key, QStringView name, const QString& text,
             Hive hive = Hive::CurrentUser) {
        store.change([&](SettingsValues& values) { values.setValue(hive, key, name, text); });
    }

    void remove(QStringView key, QStringView name) {
        store.change(
            [&](SettingsValues& values) { values.removeValue(Hive::CurrentUser, key, name); });
    }

    std::optional<QString> get(QStringView key, QStringView name, Hive hive = Hive::CurrentUser) {
        std::optional<QString> found;
        store.look([&](const SettingsValues& values) { found = values.value(hive, key, name); });
        return found;
    }

    bool hasKey(QStringView key) {
        bool found = false;
        store.look(
            [&](const SettingsValues& values) { found = values.hasKey(Hive::CurrentUser, key); });
        return found;
    }

    Place place;
    SettingsStore& store = place.store;
};

using Places = testing::Types<OnDisk, InMemory>;

} // namespace

TYPED_TEST_SUITE(SettingsStoreTest, Places, );

TYPED_TEST(SettingsStoreTest, a_value_that_was_never_written_is_missing) {
    EXPECT_EQ(this->get(Key, u"file1"), std::nullopt);
    this->set(Key, u"file1", u"x"_s);
    EXPECT_EQ(this->get(Key, u"file2"), std::nullopt);
    EXPECT_EQ(this->get(u"Software", u"file1"), std::nullopt);
}

TYPED_TEST(SettingsStoreTest, an_empty_value_is_not_missing) {
    this->set(Key, u"file1", QString());
    EXPECT_EQ(this->get(Key, u"file1"), QString());
}

TYPED_TEST(SettingsStoreTest, every_text_comes_back_as_it_went_in) {
    QString everyCodeUnit;
    for (char16_t unit = 0; unit < 0xFFFF; ++unit)
        everyCodeUnit += QChar(unit);
    for (const QString& text :
         {u" leading and trailing "_s, u"=|[]\"\\\"\\n;#"_s, u"one\r\ntwo\nthree\rfour\t"_s,
          u"Größe ★ 𝄞 \u2028 \u0085 \uFEFF"_s, u"zero "_s + QChar(u'\0') + u" inside"_s,
          QString(QChar(0xD834)), QString(QChar(0xDD1E)), u"[x]\n\"a\"=\"b\""_s, everyCodeUnit,
          u"Länge 20 KB|\r\n"_s.repeated(1600)}) {
        this->set(Key, u"file1", text);
        EXPECT_EQ(this->get(Key, u"file1"), text);
    }
}

TYPED_TEST(SettingsStoreTest, names_may_hold_what_texts_may_hold) {
    for (const QString& name : {QString(), u"a=b"_s, u"\"quoted\""_s, u" Größe\n"_s}) {
        this->set(Key, name, u"text of "_s + name);
        EXPECT_EQ(this->get(Key, name), u"text of "_s + name);
    }
}

TYPED_TEST(SettingsStoreTest, the_two_roots_are_apart) {
    this->set(u"same", u"name", u"user"_s);
    this->set(u"same", u"name", u"root"_s, Hive::ClassesRoot);
    EXPECT_EQ(this->get(u"same", u"name"), u"user"_s);
    EXPECT_EQ(this->get(u"same", u"name", Hive::ClassesRoot), u"root"_s);
}

TYPED_TEST(SettingsStoreTest, keys_and_names_are_the_same_in_either_case) {
    this->set(Key, u"LastDir", u"one"_s);
    EXPECT_EQ(this->get(u"SOFTWARE\\some publisher\\Some Program", u"lastdir"), u"one"_s);
    this->set(Key, u"LASTDIR", u"two"_s);
    EXPECT_EQ(this->get(Key, u"LastDir"), u"two"_s);
}

TYPED_TEST(SettingsStoreTest, a_key_comes_with_the_keys_on_its_way_and_outlives_its_values) {
    EXPECT_FALSE(this->hasKey(Key));
    this->set(Key, u"file1", u"x"_s);
    EXPECT_TRUE(this->hasKey(Key));
    EXPECT_TRUE(this->hasKey(u"software"));
    EXPECT_FALSE(this->hasKey(u"Soft"));
    this->remove(Key, u"file1");
    EXPECT_EQ(this->get(Key, u"file1"), std::nullopt);
    EXPECT_TRUE(this->hasKey(Key));
}

TYPED_TEST(SettingsStoreTest, removing_a_missing_value_does_nothing) {
    this->remove(Key, u"file1");
    EXPECT_FALSE(this->hasKey(Key));
}

TYPED_TEST(SettingsStoreTest, a_key_with_a_control_character_is_refused) {
    EXPECT_THROW(this->set(u"two\nlines", u"name", u"x"_s), Error);
    EXPECT_FALSE(this->hasKey(u"two\nlines"));
}

TYPED_TEST(SettingsStoreTest, a_step_sees_its_own_writes_and_a_look_in_it_does_not) {
    this->set(Key, u"file1", u"old"_s);
    this->store.change([&](SettingsValues& values) {
        values.setValue(Hive::CurrentUser, Key, u"file1", u"new"_s);
        EXPECT_EQ(values.value(Hive::CurrentUser, Key, u"file1"), u"new"_s);
        EXPECT_EQ(this->get(Key, u"file1"), u"old"_s);
    });
    EXPECT_EQ(this->get(Key, u"file1"), u"new"_s);
}

TYPED_TEST(SettingsStoreTest, an_exception_out_of_a_step_writes_nothing_and_the_next_step_works) {
    this->set(Key, u"file1", u"old"_s);
    EXPECT_THROW(this->store.change([&](SettingsValues& values) {
        values.setValue(Hive::CurrentUser, Key, u"file1", u"new"_s);
        throw std::runtime_error("the step failed");
    }),
                 std::runtime_error);
    EXPECT_EQ(this->get(Key, u"file1"), u"old"_s);
    this->set(Key, u"file1", u"newer"_s);
    EXPECT_EQ(this->get(Key, u"file1"), u"newer"_s);
}

TYPED_TEST(SettingsStoreTest, a_change_within_a_change_is_refused_at_once) {
    this->store.change([&](SettingsValues& values) {
        EXPECT_THROW(this->set(Key, u"file2", u"inner"_s), Error);
        values.setValue(Hive::CurrentUser, Key, u"file1", u"outer"_s);
    });
    EXPECT_EQ(this->get(Key, u"file1"), u"outer"_s);
    EXPECT_EQ(this->get(Key, u"file2"), std::nullopt);
}
