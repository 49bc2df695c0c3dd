#include "persistence/compound/mdlStorage.h"

#include "persistence/compound/FileByteStore.h"
#include "support/CompoundTesting.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class StorageFile : public testing::Test {
protected:
    QTemporaryDir folder_;
    bool props_ = false;
    bool overwrite_ = false;

    [[nodiscard]] QString path(const QString& name = u"project.ivd"_s) const {
        return folder_.filePath(name);
    }

    Storage create(const QString& name = u"project.ivd"_s) {
        return CreateStorageFile(path(name), props_, true, overwrite_);
    }

    void put(const QByteArray& bytes, const QString& name = u"project.ivd"_s) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QByteArray get(const QString& name = u"project.ivd"_s) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

} // namespace

TEST_F(StorageFile, is_made_with_the_three_empty_property_sets_when_they_are_asked_for) {
    props_ = true;
    Storage root = create();
    EXPECT_TRUE(props_);
    EXPECT_EQ(root.Elements().Count(), 2);
    EXPECT_EQ(root.Stat().Name(), path());
    const QByteArray summary = readStream(root, u"\u0005SummaryInformation"_s);
    EXPECT_EQ(summary.toHex(), "feff000006000200"
                               "00000000000000000000000000000000"
                               "01000000"
                               "e0859ff2f94f6810ab9108002b27b3d930000000"
                               "1800000001000000"
                               "0100000010000000"
                               "02000000e4040000");
    const QByteArray document = readStream(root, u"\u0005DocumentSummaryInformation"_s);
    EXPECT_EQ(document.size(), 116);
    EXPECT_EQ(document.mid(24, 4).toHex(), "02000000");
    EXPECT_EQ(document.mid(28, 16).toHex(), "02d5cdd59c2e1b10939708002b2cf9ae");
    EXPECT_EQ(document.mid(48, 16).toHex(), "05d5cdd59c2e1b10939708002b2cf9ae");
}

TEST_F(StorageFile, has_the_code_page_of_utf_16_in_sets_that_are_not_ansi) {
    Storage root = create();
    EXPECT_TRUE(CreatePropertySets(root, false));
    EXPECT_EQ(readStream(root, u"\u0005SummaryInformation"_s).right(4).toHex(), "b0040000");
}

TEST_F(StorageFile, has_its_property_sets_replaced_by_empty_ones) {
    Storage root = create();
    writeStream(root, u"\u0005SummaryInformation"_s, testBytes(5000, 1));
    EXPECT_TRUE(CreatePropertySets(root, true));
    EXPECT_EQ(readStream(root, u"\u0005SummaryInformation"_s).size(), 72);
}

TEST_F(StorageFile, that_is_there_is_opened_as_it_is_and_told_by_the_cleared_flag) {
    {
        Storage root = create();
        writeStream(root, u"Section 1"_s, "kept");
    }
    props_ = true;
    Storage root = create();
    EXPECT_FALSE(props_);
    EXPECT_EQ(root.Elements().Count(), 1) << "no property sets";
    EXPECT_EQ(readStream(root, u"Section 1"_s), "kept");
}

TEST_F(StorageFile, that_is_there_is_replaced_when_overwriting_is_asked_for) {
    {
        Storage root = create();
        writeStream(root, u"Section 1"_s, testBytes(100000, 1));
    }
    overwrite_ = true;
    props_ = true;
    EXPECT_EQ(create().Elements().Count(), 2);
    EXPECT_TRUE(props_);
    EXPECT_LT(get().size(), 10000);
    put("a text");
    EXPECT_EQ(create().Elements().Count(), 2);
    EXPECT_EQ(create(u"new.ivd"_s).Elements().Count(), 2);
}

TEST_F(StorageFile, is_refused_while_it_is_open_in_the_same_program) {
    Storage root = create();
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 0x80030020);
    Storage second = create();
    EXPECT_EQ(errorOf([&] { (void)second.Elements(); }), 0x80030020);
    overwrite_ = true;
    Storage third = create();
    EXPECT_EQ(errorOf([&] { (void)third.Elements(); }), 0x80030020);
    root = Storage();
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 0);
}

TEST_F(StorageFile, stays_locked_until_the_last_wrapper_goes) {
    Storage root = create();
    {
        const Stream stream = root.CreateStream(u"s"_s, Mode);
        root = Storage();
        EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 0x80030020);
    }
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 0);
}

TEST_F(StorageFile, that_is_missing_or_in_a_missing_folder_is_told_apart) {
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path(u"none/x.ivd"_s)); }), 0x80030003);
    Storage made = create(u"none/x.ivd"_s);
    EXPECT_EQ(errorOf([&] { made.Commit(0); }), 0x80030003);
    put("x", u"file"_s);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path(u"file/x.ivd"_s)); }), 0x80030003);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(QString()); }), 0x80030002);
}

TEST_F(StorageFile, that_is_no_compound_file_ends_with_58_and_stays_as_it_is) {
    for (const QByteArray& content : {QByteArray("a text of some length"), QByteArray("")}) {
        put(content);
        EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path()); }), 58);
        props_ = true;
        Storage storage = create();
        EXPECT_FALSE(props_);
        EXPECT_EQ(errorOf([&] { (void)storage.CreateStream(u"s"_s, Mode); }), 58);
        EXPECT_EQ(get(), content);
    }
}

TEST_F(StorageFile, that_is_a_folder_a_pipe_or_a_device_is_refused) {
    QDir(folder_.path()).mkdir(u"folder"_s);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path(u"folder"_s)); }), 0x80030005);
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(path(u"pipe"_s)); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { (void)OpenStorageFile(u"/dev/zero"_s); }), 0x80030005);
}

TEST_F(StorageFile, is_not_looked_for_in_a_folder_a_pipe_or_a_device) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    for (const QString& name : {folder_.path(), path(u"pipe"_s), u"/dev/zero"_s})
        EXPECT_EQ(errorOf([&] { (void)IsStorageFile(name); }), 0x80030005) << name.toStdString();
}

TEST_F(StorageFile, that_is_read_only_is_refused) {
    (void)create();
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder_.path()).constData(), 0755), 0);
    // The system's own user may write everything, and becomes another one for the attempt.
    constexpr uid_t Nobody = 65534;
    const uid_t self = geteuid();
    ASSERT_EQ(self == 0 ? seteuid(Nobody) : 0, 0);
    const qint64 number = errorOf([&] { (void)OpenStorageFile(path()); });
    ASSERT_EQ(seteuid(self), 0);
    EXPECT_EQ(number, 0x80030005);
}

TEST_F(StorageFile, that_cannot_be_filled_is_not_left_behind) {
    props_ = true;
    Storage storage = [this] {
        const FullDisk disk(0);
        return create();
    }();
    EXPECT_EQ(errorOf([&] { storage.Commit(0); }), 0x80030070);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(StorageFile, has_no_name_before_it_is_a_compound_file) {
    const auto store = FileByteStore::create(path());
    if (QFile::exists(path()))
        GTEST_SKIP() << "this file system has no files without a name";
    put("somebody was faster");
    EXPECT_EQ(errorOf([&] { store->giveName(); }), 58);
    EXPECT_EQ(get(), "somebody was faster");
    EXPECT_EQ(errorOf([&] { (void)FileByteStore::create(path()); }), 58);
}

TEST_F(StorageFile, is_known_by_its_first_bytes) {
    { (void)create(); }
    EXPECT_TRUE(IsStorageFile(path()));
    put("a text", u"text"_s);
    put("", u"empty"_s);
    EXPECT_FALSE(IsStorageFile(path(u"text"_s)));
    EXPECT_FALSE(IsStorageFile(path(u"empty"_s)));
    EXPECT_EQ(errorOf([&] { (void)IsStorageFile(path(u"none"_s)); }), 0x80030002);
}

TEST_F(StorageFile, is_still_known_by_its_first_bytes_while_it_is_open) {
    const Storage root = create();
    EXPECT_TRUE(IsStorageFile(path()));
}

TEST_F(StorageFile, reaches_the_disk_when_the_user_saves) {
    Storage root = create();
    writeStream(root, u"s"_s, "abc");
    root.Sync();
    EXPECT_TRUE(get().contains("abc"));
}

TEST_F(StorageFile, saved_twice_has_the_same_length) {
    for (int i = 0; i < 2; ++i) {
        Storage root = create();
        for (int stream = 0; stream < 12; ++stream)
            writeStream(root, u"Section %1"_s.arg(stream), testBytes(700 * stream + 1, stream));
    }
    const qsizetype length = get().size();
    {
        Storage root = create();
        for (int stream = 0; stream < 12; ++stream)
            writeStream(root, u"Section %1"_s.arg(stream), testBytes(700 * stream + 1, stream));
    }
    EXPECT_EQ(get().size(), length);
}
