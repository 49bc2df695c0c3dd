#include "platform/linux/SettingsText.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Key = u"Software\\Some Program";
const QByteArray Heading = "[HKEY_CURRENT_USER\\Software\\Some Program]\n";

std::optional<QString> valueIn(const QByteArray& bytes, QStringView name) {
    return SettingsText(bytes).value(Hive::CurrentUser, Key, name);
}

QByteArray afterSetting(const QByteArray& bytes, QStringView name, const QString& text) {
    SettingsText settings(bytes);
    settings.setValue(Hive::CurrentUser, Key, name, text);
    return settings.bytes();
}

} // namespace

TEST(SettingsText, is_read_by_eye) {
    SettingsText settings{QByteArray()};
    settings.setValue(Hive::CurrentUser, Key, u"LastDir", u"/home/ann/Größe 1/"_s);
    settings.setValue(Hive::ClassesRoot, u"ivdfile", u"", u"Quillford File"_s);
    settings.setValue(Hive::CurrentUser, Key, u"file1", u"C:\\a.ivd|\"x\"|one\r\ntwo\t\a"_s);
    EXPECT_EQ(settings.bytes(), "[HKEY_CURRENT_USER\\Software\\Some Program]\n"
                                "\"LastDir\"=\"/home/ann/Größe 1/\"\n"
                                "\"file1\"=\"C:\\\\a.ivd|\\\"x\\\"|one\\r\\ntwo\\t\\u0007\"\n"
                                "\n"
                                "[HKEY_CLASSES_ROOT\\ivdfile]\n"
                                "\"\"=\"Quillford File\"\n");
}

TEST(SettingsText, an_empty_text_has_no_values_and_stays_empty) {
    EXPECT_EQ(valueIn({}, u"file1"), std::nullopt);
    EXPECT_EQ(SettingsText({}).bytes(), QByteArray());
    EXPECT_EQ(SettingsText("\n").bytes(), "\n");
}

TEST(SettingsText, what_is_not_touched_stays_byte_by_byte) {
    const QByteArray bytes =
        "\xFF\xFE broken\n\n# a comment\n[Other Program]\nkey = value\n" + Heading +
        "\"file1\"=\"one\"\r\n  \"indented\"=\"no value\"\n\"\\u00e4\"=\"x\"\n\n"
        "# about the next\n[HKEY_USERS\\x]\n\"a\"=\"b\"\n";
    EXPECT_EQ(SettingsText(bytes).bytes(), bytes);
    EXPECT_EQ(afterSetting(bytes, u"file1", u"one"_s), bytes);
    EXPECT_EQ(valueIn(bytes, u"file1"), u"one"_s);
    EXPECT_EQ(valueIn(bytes, u"ä"), u"x"_s);
}

TEST(SettingsText, a_new_value_stands_below_the_last_of_its_key) {
    EXPECT_EQ(afterSetting(Heading + "\"a\"=\"1\"\n\n# next\n[Other]\nb=2\n", u"c", u"3"_s),
              Heading + "\"a\"=\"1\"\n\"c\"=\"3\"\n\n# next\n[Other]\nb=2\n");
}

TEST(SettingsText, a_last_line_without_an_end_is_not_joined_to_a_new_one) {
    EXPECT_EQ(afterSetting(Heading + "\"a\"=\"1\"", u"c", u"3"_s),
              Heading + "\"a\"=\"1\"\n\"c\"=\"3\"\n");
    EXPECT_EQ(afterSetting("torn", u"c", u"3"_s), "torn\n\n" + Heading + "\"c\"=\"3\"\n");
}

TEST(SettingsText, a_damaged_value_is_missing_and_its_line_is_kept) {
    for (const QByteArray line :
         {"\"file1\"=\"torn", "\"file1\"=", "\"file1\"", "\"file1", "file1=\"x\"", "\"file1\"=x",
          "\"file1\"=\"x\" ", "\"file1\" = \"x\"", "\"file1\"=\"\\x41\"", "\"file1\"=\"\\u12g4\"",
          "\"file1\"=\"\\u12\"", "\"file1\"=\"\\", "\"file1\"=\"\xC3(\"",
          "\"file1\"=\"\xE2\x82\""}) {
        const QByteArray bytes = Heading + line + '\n';
        EXPECT_EQ(valueIn(bytes, u"file1"), std::nullopt) << line.toStdString();
        const QByteArray repaired = afterSetting(bytes, u"file1", u"new"_s);
        EXPECT_TRUE(repaired.contains('\n' + line + '\n')) << line.toStdString();
        EXPECT_EQ(valueIn(repaired, u"file1"), u"new"_s);
    }
}

TEST(SettingsText, a_damaged_heading_gives_its_values_to_no_other_key) {
    const QByteArray bytes = Heading + "\"file1\"=\"mine\"\n[HKEY_CURRENT_USER\\Softw\n"
                                       "\"file1\"=\"another's\"\n\"file2\"=\"another's\"\n";
    EXPECT_EQ(valueIn(bytes, u"file1"), u"mine"_s);
    EXPECT_EQ(valueIn(bytes, u"file2"), std::nullopt);
    SettingsText settings(bytes);
    settings.removeValue(Hive::CurrentUser, Key, u"file1");
    EXPECT_TRUE(settings.bytes().contains("\"file1\"=\"another's\"\n"));
}

TEST(SettingsText, a_cut_at_any_byte_loses_no_value_before_the_cut_and_invents_none) {
    const QByteArray bytes = Heading + "\"file1\"=\"Größe 1\"\n\"file2\"=\"zwei\\\\\\\"\\u00e4\"\n";
    const qsizetype endOfFirst = bytes.indexOf("\n\"file2\"");
    for (qsizetype length = 0; length < bytes.size() - 1; ++length) {
        const QByteArray cut = bytes.first(length);
        EXPECT_EQ(valueIn(cut, u"file1").has_value(), length >= endOfFirst) << length;
        EXPECT_EQ(valueIn(cut, u"file2"), std::nullopt) << length;
        const QByteArray repaired = afterSetting(cut, u"file2", u"new"_s);
        EXPECT_EQ(valueIn(repaired, u"file2"), u"new"_s) << length;
        for (const QByteArray& line : cut.split('\n'))
            EXPECT_TRUE(line.isEmpty() || ('\n' + repaired).contains('\n' + line + '\n')) << length;
    }
}

TEST(SettingsText, of_a_name_written_twice_the_later_counts_and_both_are_removed) {
    const QByteArray bytes =
        Heading + "\"a\"=\"1\"\n\"A\"=\"2\"\n[x]\n" + Heading + "\"b\"=\"3\"\n";
    EXPECT_EQ(valueIn(bytes, u"a"), u"2"_s);
    EXPECT_EQ(valueIn(bytes, u"b"), u"3"_s);
    EXPECT_EQ(valueIn(afterSetting(bytes, u"a", u"4"_s), u"a"), u"4"_s);
    SettingsText settings(bytes);
    settings.removeValue(Hive::CurrentUser, Key, u"a");
    EXPECT_EQ(settings.bytes(), Heading + "[x]\n" + Heading + "\"b\"=\"3\"\n");
}

TEST(SettingsText, a_name_keeps_the_case_in_which_it_was_first_written) {
    EXPECT_EQ(afterSetting(Heading + "\"LastDir\"=\"/a\"\n", u"LASTDIR", u"/b"_s),
              Heading + "\"LastDir\"=\"/b\"\n");
}

TEST(SettingsText, line_ends_and_the_mark_of_another_system_are_understood) {
    const QByteArray bytes = "\xEF\xBB\xBF[HKEY_CURRENT_USER\\Software\\Some Program]\r\n"
                             "\"file1\"=\"one\"\r\n";
    EXPECT_EQ(valueIn(bytes, u"file1"), u"one"_s);
    EXPECT_EQ(SettingsText(bytes).bytes(), bytes);
}

TEST(SettingsText, a_heading_of_an_unknown_root_holds_no_values_of_ours) {
    const QByteArray bytes = "[Software\\Some Program]\n\"a\"=\"1\"\n[HKEY_USERS\\Software\\Some "
                             "Program]\n\"a\"=\"2\"\n";
    EXPECT_EQ(valueIn(bytes, u"a"), std::nullopt);
    EXPECT_FALSE(SettingsText(bytes).hasKey(Hive::CurrentUser, Key));
}
