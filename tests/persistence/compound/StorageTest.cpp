#include "persistence/compound/Storage.h"

#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

#include <QStringList>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class StorageOfAFile : public testing::Test {
protected:
    MemoryCompound compound;
    Storage root = compound.create();

    void TearDown() override {
        if (root.Stat().Name().isEmpty())
            return;
        root.Commit(0);
        const CompoundCheck found = checkCompoundFile(compound.file->bytes, CheckMode::Strict);
        EXPECT_TRUE(found.complaints.empty()) << found.text();
    }

    static QStringList namesIn(Storage storage) {
        QStringList names;
        for (const VBSTATSTG& element : storage.Elements())
            names.append(element.Name());
        return names;
    }

    static QString join(const QStringList& names) { return names.join(u'|'); }
};

} // namespace

TEST_F(StorageOfAFile, makes_an_element_or_opens_the_one_that_is_there) {
    writeStream(root, u"s"_s, "abc");
    writeStream(root, u"S"_s, "X");
    EXPECT_EQ(readStream(root, u"s"_s), "Xbc");
    {
        Storage inner = root.CreateStorage(u"inner"_s, Mode);
        writeStream(inner, u"deep"_s, "1");
    }
    Storage again = root.CreateStorage(u"INNER"_s, Mode);
    EXPECT_EQ(readStream(again, u"DEEP"_s), "1");
    EXPECT_EQ(root.Elements().Count(), 2);
}

TEST_F(StorageOfAFile, raises_not_found_for_an_element_of_the_other_kind) {
    writeStream(root, u"s"_s, "abc");
    (void)root.CreateStorage(u"t"_s, Mode);
    EXPECT_EQ(errorOf([&] { (void)root.CreateStorage(u"s"_s, Mode); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { (void)root.CreateStream(u"t"_s, Mode); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStorage(u"s"_s, Mode); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"t"_s, Mode); }), 0x80030002);
}

TEST_F(StorageOfAFile, raises_not_found_for_an_element_that_is_not_there) {
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"x"_s, Mode); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStorage(u"x"_s, Mode); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { root.DestroyElement(u"x"_s); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { root.RenameElement(u"x"_s, u"y"_s); }), 0x80030002);
    EXPECT_EQ(errorOf([&] { root.MoveElementTo(u"x"_s, root, u"y"_s, 0); }), 0x80030002);
}

TEST_F(StorageOfAFile, refuses_an_element_that_is_open_already) {
    const Stream stream = root.CreateStream(u"s"_s, Mode);
    const Storage inner = root.CreateStorage(u"t"_s, Mode);
    EXPECT_EQ(errorOf([&] { (void)root.CreateStream(u"s"_s, Mode); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"S"_s, Mode); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStorage(u"t"_s, Mode); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { root.RenameElement(u"s"_s, u"u"_s); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { (void)root.CreateStream(u"s"_s, StorageMode::ExclusiveCreate); }),
              0x80030005);
}

TEST_F(StorageOfAFile, replaces_an_element_of_either_kind_when_the_mode_says_so) {
    writeStream(root, u"s"_s, testBytes(5000, 1));
    EXPECT_EQ(root.CreateStream(u"s"_s, StorageMode::ExclusiveCreate).Stat().Size(), 0);
    {
        Storage inner = root.CreateStorage(u"t"_s, Mode);
        writeStream(inner, u"deep"_s, testBytes(5000, 1));
    }
    EXPECT_EQ(root.CreateStorage(u"t"_s, StorageMode::ExclusiveCreate).Elements().Count(), 0);
    (void)root.CreateStream(u"t"_s, StorageMode::ExclusiveCreate);
    EXPECT_EQ(root.Elements().Item(2).StorageType(), 2);
}

TEST_F(StorageOfAFile, refuses_a_mode_without_exclusive_sharing) {
    for (const qint32 mode : {0x0, 0x2, 0x22, 0x32, 0x42, 0x13, 0x10012, 0x4000012})
        EXPECT_EQ(errorOf([&] { (void)root.CreateStream(u"s"_s, mode); }), 0x800300FF) << mode;
    EXPECT_EQ(errorOf([&] { (void)root.CreateStorage(u"s"_s, 2); }), 0x800300FF);
    writeStream(root, u"s"_s, "a");
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"s"_s, 2); }), 0x800300FF);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"s"_s, 4114); }), 0x800300FF);
}

TEST_F(StorageOfAFile, refuses_names_that_no_element_can_have) {
    const QString longest(31, u'n');
    EXPECT_EQ(errorOf([&] { (void)root.CreateStream(longest, Mode); }), 0);
    for (const QString& name :
         {QString(32, u'n'), QString(), u"a/b"_s, u"a\\b"_s, u"a:b"_s, u"a!b"_s, u"a\0b"_s}) {
        EXPECT_EQ(errorOf([&] { (void)root.CreateStream(name, Mode); }), 0x800300FC);
        EXPECT_EQ(errorOf([&] { (void)root.CreateStorage(name, Mode); }), 0x800300FC);
        EXPECT_EQ(errorOf([&] { (void)root.OpenStream(name, Mode); }), 0x800300FC);
        EXPECT_EQ(errorOf([&] { root.RenameElement(longest, name); }), 0x800300FC);
    }
}

TEST_F(StorageOfAFile, lists_its_elements_shorter_names_first_and_then_by_upper_case) {
    for (const QString& name :
         {u"Section 10"_s, u"b"_s, u"Section 2"_s, u"A"_s, u"\u00E9"_s, u"C"_s})
        (void)root.CreateStream(name, Mode);
    EXPECT_EQ(join(namesIn(root)), u"A|b|C|\u00E9|Section 2|Section 10"_s);
    EXPECT_EQ(root.Elements().Item(1).Name(), u"A"_s);
    EXPECT_EQ(root.Elements().Item(6).Name(), u"Section 10"_s);
    EXPECT_EQ(errorOf([&] { (void)root.Elements().Item(0); }), 9);
    EXPECT_EQ(errorOf([&] { (void)root.Elements().Item(7); }), 9);
}

TEST_F(StorageOfAFile, lists_a_snapshot) {
    const StorageElements elements = root.Elements();
    (void)root.CreateStream(u"s"_s, Mode);
    EXPECT_EQ(elements.Count(), 0);
}

TEST_F(StorageOfAFile, destroys_an_element_with_all_below_it) {
    Storage inner = root.CreateStorage(u"t"_s, Mode);
    Storage deeper = inner.CreateStorage(u"deeper"_s, Mode);
    writeStream(deeper, u"large"_s, testBytes(50000, 1));
    writeStream(inner, u"small"_s, testBytes(500, 1));
    Stream open = deeper.OpenStream(u"large"_s, Mode);
    root.DestroyElement(u"T"_s);
    EXPECT_EQ(root.Elements().Count(), 0);
    EXPECT_EQ(errorOf([&] { (void)inner.Elements(); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { (void)deeper.Elements(); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { (void)open.ReadData(3); }), 0x80030102);
}

TEST_F(StorageOfAFile, uses_the_sectors_of_a_destroyed_stream_again) {
    writeStream(root, u"a"_s, testBytes(50000, 1));
    writeStream(root, u"small a"_s, testBytes(1000, 1));
    root.Commit(0);
    const std::size_t length = compound.file->bytes.size();
    for (int i = 0; i < 10; ++i) {
        root.DestroyElement(u"a"_s);
        root.DestroyElement(u"small a"_s);
        writeStream(root, u"a"_s, testBytes(50000, i));
        writeStream(root, u"small a"_s, testBytes(1000, i));
        root.Commit(0);
    }
    EXPECT_EQ(compound.file->bytes.size(), length);
}

TEST_F(StorageOfAFile, renames_an_element_and_keeps_what_it_holds) {
    writeStream(root, u"old"_s, testBytes(5000, 1));
    root.RenameElement(u"OLD"_s, u"a quite different name"_s);
    EXPECT_EQ(readStream(root, u"a quite different name"_s), testBytes(5000, 1));
    EXPECT_EQ(root.Elements().Count(), 1);
    writeStream(root, u"other"_s, "x");
    EXPECT_EQ(errorOf([&] { root.RenameElement(u"other"_s, u"A QUITE different name"_s); }), 58);
}

TEST_F(StorageOfAFile, moves_a_storage_with_all_below_it_within_the_file) {
    Storage to = root.CreateStorage(u"to"_s, Mode);
    {
        Storage inner = root.CreateStorage(u"t"_s, Mode);
        writeStream(inner, u"small"_s, testBytes(500, 1));
    }
    root.MoveElementTo(u"t"_s, to, u"moved"_s, StorageMode::Move);
    EXPECT_EQ(join(namesIn(root)), u"to"_s);
    Storage moved = to.OpenStorage(u"moved"_s, Mode);
    EXPECT_EQ(readStream(moved, u"small"_s), testBytes(500, 1));
}

TEST_F(StorageOfAFile, copies_an_element_and_leaves_the_first) {
    Storage to = root.CreateStorage(u"to"_s, Mode);
    {
        Storage inner = root.CreateStorage(u"t"_s, Mode);
        writeStream(inner, u"small"_s, testBytes(500, 1));
        Storage deeper = inner.CreateStorage(u"deeper"_s, Mode);
        writeStream(deeper, u"large"_s, testBytes(70000, 1));
    }
    root.MoveElementTo(u"t"_s, to, u"copy"_s, StorageMode::Copy);
    Storage copy = to.OpenStorage(u"copy"_s, Mode);
    EXPECT_EQ(readStream(copy, u"small"_s), testBytes(500, 1));
    Storage deeper = copy.OpenStorage(u"deeper"_s, Mode);
    EXPECT_EQ(readStream(deeper, u"large"_s), testBytes(70000, 1));
    EXPECT_EQ(join(namesIn(root)), u"t|to"_s);
}

TEST_F(StorageOfAFile, moves_an_element_into_another_file) {
    const MemoryCompound second;
    Storage other = second.create();
    writeStream(root, u"s"_s, testBytes(5000, 1));
    root.MoveElementTo(u"s"_s, other, u"moved"_s, StorageMode::Move);
    EXPECT_EQ(root.Elements().Count(), 0);
    EXPECT_EQ(readStream(other, u"moved"_s), testBytes(5000, 1));
}

TEST_F(StorageOfAFile, moves_nothing_over_an_element_nor_into_itself) {
    writeStream(root, u"s"_s, "a");
    Storage to = root.CreateStorage(u"to"_s, Mode);
    writeStream(to, u"taken"_s, "b");
    EXPECT_EQ(errorOf([&] { root.MoveElementTo(u"s"_s, to, u"Taken"_s, 0); }), 58);
    EXPECT_EQ(errorOf([&] { root.MoveElementTo(u"to"_s, to, u"inner"_s, 0); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { root.MoveElementTo(u"s"_s, to, u"t"_s, 7); }), 0x800300FF);
}

TEST_F(StorageOfAFile, has_nothing_to_revert_to) {
    writeStream(root, u"s"_s, "abc");
    root.Revert();
    EXPECT_EQ(readStream(root, u"s"_s), "abc");
}

TEST_F(StorageOfAFile, cannot_be_used_once_the_root_is_released) {
    Storage inner = root.CreateStorage(u"t"_s, Mode);
    root = compound.create();
    EXPECT_EQ(errorOf([&] { (void)inner.Elements(); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { inner.Commit(0); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { (void)inner.CreateStream(u"s"_s, Mode); }), 0x80030102);
}

TEST_F(StorageOfAFile, is_kept_open_by_a_copy_of_its_wrapper) {
    const Storage copy = root;
    Storage inner = root.CreateStorage(u"t"_s, Mode);
    root = compound.create();
    EXPECT_EQ(errorOf([&] { (void)inner.Elements(); }), 0);
}

TEST(Storage, bound_to_nothing_raises_on_every_use_the_error_that_left_it_so) {
    Storage storage(Error(61, u"The disk is full."_s));
    EXPECT_EQ(errorOf([&] { storage.Commit(0); }), 61);
    EXPECT_EQ(errorOf([&] { (void)storage.Elements(); }), 61);
    EXPECT_EQ(errorOf([&] { (void)storage.CreateStream(u"s"_s, Mode); }), 61);
    EXPECT_EQ(errorOf([&] { (void)storage.Stat(); }), 61);
    EXPECT_EQ(errorOf([&] { (void)Storage().Stat(); }), 91);
}
