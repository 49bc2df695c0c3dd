#include "core/settings/Settings.h"

#include "core/settings/SettingsNames.h"
#include "support/FakeSettings.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;
using namespace quillford::settingsNames;

namespace {

class SettingsTest : public testing::Test {
protected:
    QString written(const QString& text) {
        settings.regWrite(Hive::CurrentUser, SettingsKey, u"file1", text);
        return settings.regRead(Hive::CurrentUser, SettingsKey, u"file1");
    }

    FakeSettings store;
    Settings settings{store};
};

} // namespace

TEST_F(SettingsTest, a_first_run_shows_every_message) {
    for (const QStringView name : {ShowMsgTab, ShowMsgFigure, ShowMsgUpdate})
        EXPECT_FALSE(settings.flag(name));
}

TEST_F(SettingsTest, a_message_stays_away_while_its_value_is_True) {
    settings.setFlag(ShowMsgTab, true);
    EXPECT_TRUE(settings.flag(ShowMsgTab));
    EXPECT_FALSE(settings.flag(ShowMsgFigure));
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"showmsgTab"), u"True"_s);
    settings.setFlag(ShowMsgTab, false);
    EXPECT_FALSE(settings.flag(ShowMsgTab));
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"showmsgTab"), u"False"_s);
}

TEST_F(SettingsTest, a_text_that_is_no_truth_is_false) {
    for (const QString& text : {QString(), u"true "_s, u"1"_s, u"yes"_s}) {
        settings.regWrite(Hive::CurrentUser, SettingsKey, ShowMsgTab, text);
        EXPECT_FALSE(settings.flag(ShowMsgTab)) << qPrintable(text);
    }
}

TEST_F(SettingsTest, a_missing_key_or_value_reads_empty) {
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file1"), QString());
    written(u"/home/ann/easel.ivd"_s);
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file2"), QString());
    EXPECT_EQ(settings.regRead(Hive::ClassesRoot, SettingsKey, u"file1"), QString());
}

TEST_F(SettingsTest, a_value_reads_as_it_was_written) {
    const QString entry = u"/home/ann/Größe=1.ivd|QF-101|Easel\r\nof wood 𝄞|FILEOPEN"_s;
    EXPECT_EQ(written(entry), entry);
}

TEST_F(SettingsTest, a_value_of_10240_bytes_is_whole_and_a_longer_one_is_cut) {
    const QString whole(10240, u'x');
    EXPECT_EQ(written(whole), whole);
    EXPECT_EQ(written(whole + u'x'), whole);
    EXPECT_EQ(written(QString(20'000, u'x')), whole);
}

TEST_F(SettingsTest, the_store_keeps_what_a_read_cuts) {
    const QString text(20'000, u'x');
    written(text);
    store.look([&](const SettingsValues& values) {
        EXPECT_EQ(values.value(Hive::CurrentUser, SettingsKey, u"file1"), text);
    });
}

TEST_F(SettingsTest, the_cut_counts_bytes_and_tears_no_character_apart) {
    EXPECT_EQ(written(QString(6000, u'ü')), QString(5120, u'ü'));
    EXPECT_EQ(written(u'x' + QString(6000, u'ü')), u'x' + QString(5119, u'ü'));
    EXPECT_EQ(written(QString(4000, u'€')), QString(3413, u'€'));
    EXPECT_EQ(written(u"𝄞"_s.repeated(3000)), u"𝄞"_s.repeated(2560));
    EXPECT_EQ(written(u"xyz"_s + u"𝄞"_s.repeated(3000)), u"xyz"_s + u"𝄞"_s.repeated(2559));
}

TEST_F(SettingsTest, a_value_ends_at_its_first_zero_character) {
    EXPECT_EQ(written(u"before"_s + QChar(u'\0') + u"behind"_s), u"before"_s);
    EXPECT_EQ(written(QString(QChar(u'\0'))), QString());
}

TEST_F(SettingsTest, only_the_named_value_is_deleted) {
    settings.regWrite(Hive::CurrentUser, SettingsKey, u"file1", u"one"_s);
    settings.regWrite(Hive::CurrentUser, SettingsKey, u"file2", u"two"_s);
    settings.regDelete(Hive::CurrentUser, SettingsKey, u"file1");
    settings.regDelete(Hive::CurrentUser, SettingsKey, u"file3");
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file1"), QString());
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file2"), u"two"_s);
}

TEST_F(SettingsTest, a_key_is_asked_for_under_the_classes_root) {
    settings.regWrite(Hive::CurrentUser, u"Word.Application", u"", u"x"_s);
    EXPECT_FALSE(settings.regKeyExists(u"Word.Application"));
    settings.regWrite(Hive::ClassesRoot, u"Word.Application\\CLSID", u"", u"x"_s);
    EXPECT_TRUE(settings.regKeyExists(u"Word.Application"));
    EXPECT_FALSE(settings.regKeyExists(u"Word"));
}

TEST_F(SettingsTest, several_values_are_shifted_in_one_change) {
    settings.regWrite(Hive::CurrentUser, SettingsKey, u"file1", u"old"_s);
    settings.change([](SettingsValues& values) {
        const QString first = Settings::regRead(values, Hive::CurrentUser, SettingsKey, u"file1");
        values.setValue(Hive::CurrentUser, SettingsKey, u"file2", first);
        values.setValue(Hive::CurrentUser, SettingsKey, u"file1", u"new"_s);
    });
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file1"), u"new"_s);
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file2"), u"old"_s);
    EXPECT_EQ(store.changes, 2);
}

TEST_F(SettingsTest, a_store_that_cannot_be_read_is_empty_without_a_word) {
    written(u"/home/ann/easel.ivd"_s);
    settings.regWrite(Hive::ClassesRoot, u".ivd", u"", u"ivdfile"_s);
    store.cannotRead = true;
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file1"), QString());
    EXPECT_FALSE(settings.regKeyExists(u".ivd"));
    EXPECT_NO_THROW(settings.regDelete(Hive::CurrentUser, SettingsKey, u"file1"));
    store.cannotRead = false;
    EXPECT_EQ(settings.regRead(Hive::CurrentUser, SettingsKey, u"file1"), u"/home/ann/easel.ivd"_s);
}

TEST_F(SettingsTest, a_store_that_cannot_be_written_keeps_its_values_without_a_word) {
    written(u"old"_s);
    store.cannotWrite = true;
    EXPECT_EQ(written(u"new"_s), u"old"_s);
}
