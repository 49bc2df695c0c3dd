#include "core/settings/FileAssociation.h"

#include "support/FakeFileTypes.h"
#include "support/FakeFolders.h"
#include "support/FakeSettings.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FileAssociationTest : public testing::Test {
protected:
    FileAssociationTest() { folders.program = u"/opt/my Quillford/quillford"_s; }

    QString defaultValueOf(QStringView key) {
        return settings.regRead(Hive::ClassesRoot, key, u"");
    }

    FakeSettings store;
    Settings settings{store};
    FakeFolders folders;
    FakeFileTypes fileTypes;
    FileAssociation association{settings, folders, fileTypes};
};

} // namespace

TEST_F(FileAssociationTest, the_four_keys_name_the_kind_its_icon_and_its_command) {
    association.registerFileType();
    EXPECT_EQ(defaultValueOf(u".ivd"), u"ivdfile"_s);
    EXPECT_EQ(defaultValueOf(u"ivdfile"), u"Quillford File"_s);
    EXPECT_EQ(defaultValueOf(u"ivdfile\\DefaultIcon"), u"\"/opt/my Quillford/quillford\",1"_s);
    EXPECT_EQ(defaultValueOf(u"ivdfile\\shell\\open\\command"),
              u"\"/opt/my Quillford/quillford\" %1"_s);
}

TEST_F(FileAssociationTest, a_moved_program_keeps_its_old_command_while_both_keys_exist) {
    association.registerFileType();
    folders.program = u"/home/ann/quillford"_s;
    association.registerFileType();
    EXPECT_EQ(defaultValueOf(u"ivdfile\\shell\\open\\command"),
              u"\"/opt/my Quillford/quillford\" %1"_s);
}

TEST_F(FileAssociationTest, one_of_the_two_keys_alone_has_all_four_written_anew) {
    for (const QStringView key : {QStringView(u".ivd"), QStringView(u"ivdfile")}) {
        FakeSettings fresh;
        Settings values(fresh);
        values.regWrite(Hive::ClassesRoot, key, u"", u"another program's"_s);
        FileAssociation(values, folders, fileTypes).registerFileType();
        EXPECT_EQ(values.regRead(Hive::ClassesRoot, u".ivd", u""), u"ivdfile"_s);
        EXPECT_EQ(values.regRead(Hive::ClassesRoot, u"ivdfile", u""), u"Quillford File"_s);
        EXPECT_TRUE(values.regKeyExists(u"ivdfile\\DefaultIcon"));
        EXPECT_TRUE(values.regKeyExists(u"ivdfile\\shell\\open\\command"));
    }
}

TEST_F(FileAssociationTest, keys_of_another_program_are_left_alone_when_both_exist) {
    settings.regWrite(Hive::ClassesRoot, u".ivd", u"", u"other"_s);
    settings.regWrite(Hive::ClassesRoot, u"ivdfile", u"", u"Other File"_s);
    association.registerFileType();
    EXPECT_EQ(defaultValueOf(u".ivd"), u"other"_s);
    EXPECT_FALSE(settings.regKeyExists(u"ivdfile\\DefaultIcon"));
}

TEST_F(FileAssociationTest, the_desktop_is_told_the_kind_and_the_program) {
    association.registerFileType();
    ASSERT_EQ(fileTypes.told.size(), 1);
    const FileType& type = fileTypes.told.constFirst();
    EXPECT_EQ(type.mimeType, u"application/x-quillford-project"_s);
    EXPECT_EQ(type.description, u"Quillford File"_s);
    EXPECT_EQ(type.ending, u"ivd"_s);
    EXPECT_EQ(type.programName, u"Quillford"_s);
    EXPECT_EQ(type.programFile, u"/opt/my Quillford/quillford"_s);
}

TEST_F(FileAssociationTest, the_desktop_is_told_even_when_the_keys_exist) {
    association.registerFileType();
    association.registerFileType();
    EXPECT_EQ(fileTypes.told.size(), 2);
}

TEST_F(FileAssociationTest, failures_are_silent_and_do_not_hinder_each_other) {
    store.cannotRead = true;
    EXPECT_NO_THROW(association.registerFileType());
    EXPECT_EQ(fileTypes.told.size(), 1);
    store.cannotRead = false;
    fileTypes.fails = true;
    EXPECT_NO_THROW(association.registerFileType());
    EXPECT_EQ(defaultValueOf(u".ivd"), u"ivdfile"_s);
}
