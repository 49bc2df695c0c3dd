#include "persistence/project/DocProperties.h"

#include "DocPropertiesFixture.h"
#include "support/FullDisk.h"


using namespace quillford;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 ObjectError = 0x80040000;
constexpr qint32 Summary = DocProperties::SummaryInformation;
constexpr qint32 Document = DocProperties::DocumentSummaryInformation;
constexpr qint32 User = DocProperties::UserDefined;

class DocPropertiesTest : public DocPropertiesFixture {};

using DocPropertiesBinding = DocPropertiesTest;
using DocPropertiesTransaction = DocPropertiesTest;

void expectError(const std::optional<Error>& error, const QString& description) {
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ObjectError);
    EXPECT_EQ(error->description(), description);
}

} // namespace

TEST_F(DocPropertiesTest, gives_an_empty_value_for_a_property_that_was_never_set) {
    DocProperties properties;
    properties.BindToFile(file());
    for (const qint32 set : {Summary, Document, User}) {
        EXPECT_EQ(properties.GetPropertyByName(set, 2U), PropertyValue());
        EXPECT_EQ(properties.GetPropertyByName(set, u"Title"_s), PropertyValue());
        EXPECT_TRUE(properties.EnumProperties(set).empty());
    }
    EXPECT_TRUE(properties.Title().isNull());
    EXPECT_EQ(properties.Pages(), 0);
    EXPECT_FALSE(properties.CreateDate().isValid());
}

TEST_F(DocPropertiesTest, keeps_every_value_that_it_saved) {
    const QDateTime time(QDate(2024, 2, 29), QTime(12, 30, 15, 250), Qt::UTC);
    for (const bool ansi : {false, true}) {
        create(ansi);
        DocProperties properties;
        properties.BindToFile(file());
        properties.setTitle(u"Folding easel \u4e2d"_s);
        properties.setEditingTime(95min);
        properties.setCreateDate(time);
        properties.setPages(-7);
        properties.SetPropertyByName(User, u"Cl\u00efent"_s, true);
        properties.setCompany(u"Ox & Co"_s);
        properties.Save();
        properties.BindToFile(copyOfFile());
        EXPECT_EQ(properties.Title(), u"Folding easel \u4e2d"_s);
        EXPECT_EQ(properties.EditingTime(), 95min);
        EXPECT_EQ(properties.CreateDate(), time);
        EXPECT_EQ(properties.Pages(), -7);
        EXPECT_EQ(properties.Company(), u"Ox & Co"_s);
        EXPECT_EQ(properties.GetPropertyByName(User, u"cl\u00efent"_s), PropertyValue(true));
        EXPECT_EQ(properties.GetPropertyByName(User, 2U), PropertyValue(true));
    }
}

/// Each property pair with the set and the identifier of the published standard.
TEST_F(DocPropertiesTest, reads_and_writes_each_pair_under_its_set_and_identifier) {
    DocProperties p;
    p.BindToFile(file());
    const QDateTime time(QDate(2001, 9, 9), QTime(1, 46, 40), Qt::UTC);
    int pairs = 0;
    const auto proves = [&](qint32 set, quint32 identifier, auto get, auto put, auto value) {
        (p.*put)(value);
        EXPECT_EQ((p.*get)(), value);
        EXPECT_EQ(p.GetPropertyByName(set, identifier), propertyFrom(value)) << identifier;
        (p.*put)({});
        p.SetPropertyByName(set, identifier, propertyFrom(value));
        EXPECT_EQ((p.*get)(), value) << identifier;
        ++pairs;
    };
    using D = DocProperties;
    proves(Summary, 2, &D::Title, &D::setTitle, u"a"_s);
    proves(Summary, 3, &D::Subject, &D::setSubject, u"b"_s);
    proves(Summary, 4, &D::Author, &D::setAuthor, u"c"_s);
    proves(Summary, 5, &D::Keywords, &D::setKeywords, u"d"_s);
    proves(Summary, 6, &D::Comments, &D::setComments, u"e"_s);
    proves(Summary, 7, &D::Template, &D::setTemplate, u"f"_s);
    proves(Summary, 8, &D::LastSavedBy, &D::setLastSavedBy, u"g"_s);
    proves(Summary, 9, &D::Revision, &D::setRevision, u"h"_s);
    proves(Summary, 10, &D::EditingTime, &D::setEditingTime, FileTimeSpan(12345));
    proves(Summary, 11, &D::PrintDate, &D::setPrintDate, time);
    proves(Summary, 12, &D::CreateDate, &D::setCreateDate, time.addDays(1));
    proves(Summary, 13, &D::LastSaveDate, &D::setLastSaveDate, time.addDays(2));
    proves(Summary, 14, &D::Pages, &D::setPages, qint32{1});
    proves(Summary, 15, &D::Words, &D::setWords, qint32{2});
    proves(Summary, 16, &D::Chars, &D::setChars, qint32{3});
    proves(Summary, 18, &D::Application, &D::setApplication, u"i"_s);
    proves(Document, 2, &D::Category, &D::setCategory, u"j"_s);
    proves(Document, 3, &D::PresentationTarget, &D::setPresentationTarget, u"k"_s);
    proves(Document, 4, &D::Bytes, &D::setBytes, qint32{4});
    proves(Document, 5, &D::Lines, &D::setLines, qint32{5});
    proves(Document, 6, &D::Paragraphs, &D::setParagraphs, qint32{6});
    proves(Document, 7, &D::Slides, &D::setSlides, qint32{7});
    proves(Document, 8, &D::Notes, &D::setNotes, qint32{8});
    proves(Document, 9, &D::HiddenSlides, &D::setHiddenSlides, qint32{9});
    proves(Document, 10, &D::MMClips, &D::setMMClips, qint32{10});
    proves(Document, 15, &D::Company, &D::setCompany, u"l"_s);
    EXPECT_EQ(pairs, 26);
    EXPECT_EQ(p.EnumProperties(Summary).size(), 16U);
    EXPECT_EQ(p.EnumProperties(Document).size(), 10U);
}

TEST_F(DocPropertiesTest, tells_identifiers_names_and_types_in_order) {
    DocProperties properties;
    properties.BindToFile(file());
    properties.SetPropertyByName(User, u"Client"_s, u"Nib Ltd"_s);
    properties.SetPropertyByName(User, 77U, qint32{1});
    properties.SetPropertyByName(User, u"Checked"_s, false);
    const std::vector<PropertyInfo> expected = {
        {2, u"Client"_s, 31}, {77, QString(), 3}, {3, u"Checked"_s, 11}};
    EXPECT_EQ(properties.EnumProperties(User), expected);
    EXPECT_TRUE(properties.EnumProperties(Document).empty());
}

TEST_F(DocPropertiesTest, selects_by_name_whatever_the_name_looks_like) {
    DocProperties properties;
    properties.BindToFile(file());
    properties.SetPropertyByName(User, u"3"_s, u"named"_s);
    properties.SetPropertyByName(User, 3U, u"numbered"_s);
    EXPECT_EQ(properties.GetPropertyByName(User, u"3"_s), PropertyValue(u"named"_s));
    EXPECT_EQ(properties.GetPropertyByName(User, 2U), PropertyValue(u"named"_s));
    EXPECT_EQ(properties.GetPropertyByName(User, 3U), PropertyValue(u"numbered"_s));
}

TEST_F(DocPropertiesTest, knows_three_sets) {
    DocProperties properties;
    properties.BindToFile(file());
    for (const qint32 set : {-1, 3})
        EXPECT_EQ(numberOfError([&] { (void)properties.EnumProperties(set); }), SubscriptNumber);
}

TEST_F(DocPropertiesTest, raises_the_file_is_closed_on_every_use_of_a_closed_one) {
    const QString closed = u"The file is closed."_s;
    DocProperties p;
    const auto expectClosed = [&] {
        expectError(errorOf([&] { (void)p.GetPropertyByName(Summary, 2U); }), closed);
        expectError(errorOf([&] { p.SetPropertyByName(User, u"a"_s, true); }), closed);
        expectError(errorOf([&] { (void)p.EnumProperties(Document); }), closed);
        expectError(errorOf([&] { (void)p.Title(); }), closed);
        expectError(errorOf([&] { p.setPages(1); }), closed);
        expectError(errorOf([&] { p.Save(); }), closed);
        expectError(errorOf([&] { p.Revert(); }), closed);
    };
    expectClosed();
    p.BindToFile(file());
    p.CloseFile();
    expectClosed();
    p.CloseFile();
}

TEST_F(DocPropertiesTest, raises_the_property_set_does_not_exist_where_there_is_none) {
    const QString missing = u"The property set does not exist."_s;
    OpenStorageFile(file()).DestroyElement(SummaryStream);
    replaceStream(DocumentStream, seed(u"summary"_s)); // a good stream of another set
    DocProperties p;
    p.BindToFile(file());
    for (const qint32 set : {Summary, Document, User}) {
        expectError(errorOf([&] { (void)p.GetPropertyByName(set, 2U); }), missing);
        expectError(errorOf([&] { p.SetPropertyByName(set, 2U, true); }), missing);
        expectError(errorOf([&] { (void)p.EnumProperties(set); }), missing);
    }
}

TEST_F(DocPropertiesTest, raises_the_same_for_a_damaged_set_and_tells_the_fault) {
    const QByteArray damaged = seed(u"summary"_s).chopped(4);
    replaceStream(SummaryStream, damaged);
    DocProperties p;
    p.BindToFile(file());
    const auto error = errorOf([&] { (void)p.Title(); });
    expectError(error, u"The property set does not exist."_s);
    EXPECT_EQ(error->source(),
              u"The property set is damaged: a section is longer than what is there."_s);
    EXPECT_EQ(error->offset(), 48);
    expectError(errorOf([&] { p.setTitle(u"new"_s); }), u"The property set does not exist."_s);
    p.Save();
    p.CloseFile();
    EXPECT_EQ(contentOfStream(SummaryStream), damaged) << "a damaged set is never written over";
}

TEST_F(DocPropertiesTest, raises_the_same_for_a_set_that_is_open_elsewhere) {
    Storage root = OpenStorageFile(file());
    const Stream other = root.OpenStream(SummaryStream, StorageMode::Exclusive);
    DocProperties p;
    p.BindToStorage(root);
    expectError(errorOf([&] { (void)p.Title(); }), u"The property set does not exist."_s);
    EXPECT_TRUE(p.Company().isNull());
}

TEST_F(DocPropertiesTest, takes_a_stream_of_no_bytes_for_empty_sets) {
    replaceStream(SummaryStream, {});
    replaceStream(DocumentStream, {});
    DocProperties p;
    p.BindToFile(file());
    for (const qint32 set : {Summary, Document, User})
        EXPECT_TRUE(p.EnumProperties(set).empty());
    p.setSubject(u"\u4e2d"_s);
    p.SetPropertyByName(User, u"Client"_s, u"Nib Ltd"_s);
    p.Save();
    p.CloseFile();
    p.BindToFile(file());
    EXPECT_EQ(p.Subject(), u"\u4e2d"_s);
    EXPECT_EQ(p.GetPropertyByName(User, u"Client"_s), PropertyValue(u"Nib Ltd"_s));
    EXPECT_TRUE(p.Category().isNull());
}

TEST_F(DocPropertiesTest, keeps_a_list_of_another_writer_byte_for_byte) {
    replaceStream(DocumentStream, seed(u"document-and-user"_s));
    DocProperties p;
    p.BindToFile(file());
    const PropertyValue titles = p.GetPropertyByName(Document, 13U);
    ASSERT_TRUE(std::holds_alternative<OpaqueValue>(titles));
    p.setCompany(u"A company with a much longer name than before"_s);
    p.Save();
    EXPECT_EQ(p.GetPropertyByName(Document, 13U), titles);
    EXPECT_EQ(p.GetPropertyByName(User, u"Client"_s), PropertyValue(u"Nib\u00e9 Ltd"_s));
    p.SetPropertyByName(Document, 13U, titles);
    EXPECT_EQ(p.GetPropertyByName(Document, 13U), titles);
}

TEST_F(DocPropertiesTest, cuts_off_the_old_tail_of_a_set_that_shrinks) {
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(QString(5000, u'x'));
    p.Save();
    p.setTitle(u"y"_s);
    p.Save();
    p.CloseFile();
    const QByteArray content = contentOfStream(SummaryStream);
    EXPECT_LT(content.size(), 200);
    EXPECT_EQ(readSet(content).sections[0].value(2), PropertyValue(u"y"_s));
}

TEST_F(DocPropertiesTest, refuses_what_no_set_can_hold_and_changes_nothing) {
    create(true);
    const QByteArray before = bytes();
    DocProperties p;
    p.BindToFile(file());
    EXPECT_EQ(numberOfError([&] { p.SetPropertyByName(User, 1U, qint16{1200}); }),
              numberOf(StorageCode::InvalidParameter));
    EXPECT_EQ(numberOfError([&] { p.SetPropertyByName(User, u"\u4e2d"_s, true); }),
              numberOf(StorageCode::InvalidName));
    p.Save();
    EXPECT_EQ(bytes(), before);
}

TEST_F(DocPropertiesBinding, raises_its_two_errors) {
    DocProperties p;
    const QString nowhere = inFolder(u"nowhere.ivd"_s);
    EXPECT_EQ(numberOfError([&] { p.BindToFile(nowhere); }), numberOf(StorageCode::FileNotFound));
    EXPECT_EQ(numberOfError([&] { p.BindToFile(inFolder(u"no/file"_s)); }),
              numberOf(StorageCode::PathNotFound));
    const QString foreign = inFolder(u"letter.txt"_s);
    for (const QByteArray& content : {QByteArray("Dear Ann,"), QByteArray()}) {
        QFile text(foreign);
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write(content);
        text.close();
        expectError(errorOf([&] { p.BindToFile(foreign); }),
                    foreign + u" is not a structured storage file."_s);
    }
}

TEST_F(DocPropertiesBinding, keeps_what_was_bound_when_another_file_is_refused) {
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(u"held"_s);
    EXPECT_NE(numberOfError([&] { p.BindToFile(inFolder(u"nowhere.ivd"_s)); }), 0);
    EXPECT_EQ(p.Title(), u"held"_s);
}

TEST_F(DocPropertiesBinding, denies_writers_and_not_readers) {
    DocProperties p;
    p.BindToFile(file());
    EXPECT_EQ(bytes().size(), QFile(file()).size()) << "a reader reads";
    EXPECT_TRUE(IsStorageFile(file()));
    DocProperties other;
    EXPECT_EQ(numberOfError([&] { (void)OpenStorageFile(file()); }),
              numberOf(StorageCode::ShareViolation));
    EXPECT_EQ(numberOfError([&] { other.BindToFile(file()); }),
              numberOf(StorageCode::ShareViolation));
    p.CloseFile();
    other.BindToFile(file());
    EXPECT_EQ(numberOfError([&] { p.BindToFile(file()); }), numberOf(StorageCode::ShareViolation));
}

TEST_F(DocPropertiesBinding, lets_the_file_go_with_its_last_breath) {
    {
        DocProperties p;
        p.BindToFile(file());
        p.setTitle(u"never saved"_s);
    }
    DocProperties p;
    p.BindToFile(file());
    EXPECT_TRUE(p.Title().isNull());
}

TEST_F(DocPropertiesBinding, to_a_storage_writes_directly) {
    Storage root = OpenStorageFile(file());
    DocProperties p;
    p.BindToStorage(root);
    p.setTitle(u"direct"_s);
    p.Revert();
    EXPECT_EQ(p.Title(), u"direct"_s) << "a storage in direct mode has nothing to go back to";
    p.CloseFile();
    Stream stream = root.OpenStream(SummaryStream, StorageMode::Exclusive);
    QByteArray content;
    stream.ReadBuf(content, static_cast<qint32>(stream.Stat().Size()));
    EXPECT_EQ(readSet(content).sections[0].value(2), PropertyValue(u"direct"_s));
}

TEST_F(DocPropertiesBinding, to_a_storage_within_a_file_uses_the_sets_of_that_storage) {
    Storage root = OpenStorageFile(file());
    Storage inner = root.CreateStorage(u"inner"_s, StorageMode::Exclusive);
    ASSERT_TRUE(CreatePropertySets(inner, true));
    DocProperties p;
    p.BindToStorage(inner);
    p.setTitle(u"inside"_s);
    p.Save();
    p.BindToStorage(root);
    EXPECT_TRUE(p.Title().isNull());
    p.BindToStorage(inner);
    EXPECT_EQ(p.Title(), u"inside"_s);
}

TEST_F(DocPropertiesBinding, to_nothing_raises_why_it_is_nothing) {
    DocProperties p;
    p.BindToFile(file());
    EXPECT_EQ(numberOfError([&] { p.BindToStorage(Storage()); }), NotBoundNumber);
    EXPECT_EQ(
        numberOfError([&] { p.BindToStorage(Storage(storageError(StorageCode::MediumFull))); }),
        numberOf(StorageCode::MediumFull));
    EXPECT_TRUE(p.Title().isNull()) << "the file is still bound";
}

TEST_F(DocPropertiesTransaction, leaves_the_file_byte_for_byte_until_it_is_saved) {
    const QByteArray before = bytes();
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(QString(10'000, u'x'));
    p.SetPropertyByName(User, u"Client"_s, u"Nib Ltd"_s);
    EXPECT_EQ(p.Title().size(), 10'000);
    EXPECT_EQ(p.EnumProperties(User).size(), 1U);
    EXPECT_EQ(bytes(), before);
    p.Save();
    EXPECT_NE(bytes(), before);
}

TEST_F(DocPropertiesTransaction, drops_what_was_not_saved) {
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(u"saved"_s);
    p.Save();
    const QByteArray before = bytes();
    p.setTitle(u"reverted"_s);
    p.Revert();
    EXPECT_EQ(p.Title(), u"saved"_s);
    p.setTitle(u"closed"_s);
    p.CloseFile();
    EXPECT_EQ(bytes(), before);
    p.BindToFile(file());
    EXPECT_EQ(p.Title(), u"saved"_s);
    p.setTitle(u"bound elsewhere"_s);
    p.BindToFile(copyOfFile());
    EXPECT_EQ(bytes(), before);
}

TEST_F(DocPropertiesTransaction, saves_nothing_twice_and_nothing_that_did_not_change) {
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(u"once"_s);
    p.Save();
    const QByteArray saved = bytes();
    p.Save();
    (void)p.Company();
    p.Save();
    EXPECT_EQ(bytes(), saved);
}

TEST_F(DocPropertiesTransaction, holds_what_could_not_be_written_until_it_can) {
    DocProperties p;
    p.BindToFile(file());
    p.setTitle(QString(100'000, u'x'));
    {
        const FullDisk disk(static_cast<rlim_t>(bytes().size()));
        EXPECT_EQ(numberOfError([&] { p.Save(); }), numberOf(StorageCode::MediumFull));
    }
    EXPECT_EQ(p.Title().size(), 100'000);
    p.Save();
    p.CloseFile();
    p.BindToFile(file());
    EXPECT_EQ(p.Title().size(), 100'000);
}

TEST_F(DocPropertiesTransaction, saves_two_sets_of_one_stream_together) {
    DocProperties p;
    p.BindToFile(file());
    p.setCompany(u"Ox & Co"_s);
    p.SetPropertyByName(User, u"Client"_s, u"Nib Ltd"_s);
    p.setCategory(u"Easels"_s);
    p.Save();
    p.Revert();
    EXPECT_EQ(p.Company(), u"Ox & Co"_s);
    EXPECT_EQ(p.Category(), u"Easels"_s);
    EXPECT_EQ(p.GetPropertyByName(User, u"Client"_s), PropertyValue(u"Nib Ltd"_s));
}
