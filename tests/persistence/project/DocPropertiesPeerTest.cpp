#include "DocPropertiesFixture.h"
#include "storage_probe/Props.h"

#include <QProcess>
#include <QStandardPaths>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint32 User = DocProperties::UserDefined;

/// What a program prints; nothing when it could not be run or failed.
std::optional<QString> outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// A Python that has olefile; empty when there is none.
QString pythonWithOlefile() {
    for (const QString& python : {u"python3"_s, u"/usr/bin/python3"_s}) {
        if (outputOf(python, {u"-c"_s, u"import olefile"_s}))
            return python;
    }
    return {};
}

/// Property sets as other readers and writers see them.
class DocPropertiesPeerTest : public DocPropertiesFixture {
protected:
    void save(bool ansi) {
        create(ansi);
        DocProperties p;
        p.BindToFile(file());
        p.setTitle(u"Folding \u00c9asel"_s);
        p.setAuthor(u"Ann Ox"_s);
        p.setPages(7);
        p.setCreateDate(QDateTime(QDate(2001, 9, 9), QTime(1, 46, 40), Qt::UTC));
        p.setCompany(u"Ox & Co"_s);
        p.setLines(123);
        p.SetPropertyByName(User, u"Client"_s, u"Nib Ltd"_s);
        p.SetPropertyByName(User, u"Checked"_s, true);
        p.Save();
    }
};

constexpr const char* ReadByOlefile = R"(
import sys, olefile
def text(value):
    # It leaves the terminator of a wide text in its value.
    return (value.decode("cp1252") if isinstance(value, bytes) else value).removesuffix("\0")
ole = olefile.OleFileIO(sys.argv[1])
data = ole.get_metadata()
print("|".join([ascii(text(data.title)), text(data.author), str(data.num_pages),
                str(data.create_time), text(data.company), str(data.lines),
                str(len(ole.parsing_issues))]))
)";

} // namespace

TEST_F(DocPropertiesPeerTest, libgsf_reads_what_was_saved) {
    if (QStandardPaths::findExecutable(u"gsf"_s).isEmpty())
        GTEST_SKIP() << "the peer gsf is not installed";
    for (const bool ansi : {false, true}) {
        save(ansi);
        const auto output =
            outputOf(u"gsf"_s, {u"props"_s, file(), u"dc:title"_s, u"dc:creator"_s,
                                u"gsf:page-count"_s, u"meta:creation-date"_s, u"dc:publisher"_s,
                                u"gsf:line-count"_s, u"Client"_s, u"Checked"_s});
        ASSERT_TRUE(output);
        EXPECT_TRUE(output->contains(u"\"Folding \\303\\211asel\"")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"\"Ann Ox\"")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"gsf:page-count: \t= 7")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"2001-09-09T01:46:40")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"\"Ox & Co\"")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"gsf:line-count: \t= 123")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"Client: \t= \"Nib Ltd\"")) << qPrintable(*output);
        EXPECT_TRUE(output->contains(u"Checked: \t= TRUE")) << qPrintable(*output);
    }
}

TEST_F(DocPropertiesPeerTest, olefile_reads_what_was_saved) {
    const QString python = pythonWithOlefile();
    if (python.isEmpty())
        GTEST_SKIP() << "the peer olefile is not installed";
    for (const bool ansi : {false, true}) {
        save(ansi);
        const auto output = outputOf(python, {u"-c"_s, QString::fromLatin1(ReadByOlefile), file()});
        ASSERT_TRUE(output);
        EXPECT_EQ(*output, u"'Folding \\xc9asel'|Ann Ox|7|2001-09-09 01:46:40|Ox & Co|123|0\n"_s);
    }
}

#ifdef QUILLFORD_GSF_PEER
TEST_F(DocPropertiesPeerTest, sets_written_by_libgsf_are_read_and_changed) {
    ASSERT_TRUE(outputOf(QStringLiteral(QUILLFORD_GSF_PEER), {file()}));
    DocProperties p;
    p.BindToFile(file());
    EXPECT_EQ(p.Title(), u"Folding \u00c9asel"_s);
    EXPECT_EQ(p.Author(), u"Ann Ox"_s);
    EXPECT_EQ(p.Pages(), 7);
    EXPECT_EQ(p.CreateDate(), QDateTime(QDate(2001, 9, 9), QTime(1, 46, 40), Qt::UTC));
    EXPECT_EQ(p.Company(), u"Ox & Co"_s);
    EXPECT_EQ(p.Lines(), 123);
    EXPECT_EQ(p.GetPropertyByName(User, u"Client"_s), PropertyValue(u"Nib Ltd"_s));
    EXPECT_EQ(p.GetPropertyByName(User, u"Checked"_s), PropertyValue(true));
    p.SetPropertyByName(User, u"Second"_s, qint32{2});
    p.setTitle(u"Changed"_s);
    p.Save();
    p.CloseFile();
    const auto output = outputOf(
        u"gsf"_s, {u"props"_s, file(), u"dc:title"_s, u"dc:creator"_s, u"Client"_s, u"Second"_s});
    if (!output)
        GTEST_SKIP() << "the peer gsf is not installed";
    EXPECT_EQ(*output, u"dc:title: \t= \"Changed\"\ndc:creator: \t= \"Ann Ox\"\n"
                       "Client: \t= \"Nib Ltd\"\nSecond: \t= 2\n"_s);
}
#endif

TEST_F(DocPropertiesPeerTest, the_probe_prints_the_values_as_text) {
    save(true);
    DocProperties p;
    p.BindToFile(file());
    p.setEditingTime(std::chrono::seconds(90));
    EXPECT_EQ(QString::fromUtf8(propsAsText(p)), u"summary information\n"
                                                 "  2 Title = Folding \u00c9asel\n"
                                                 "  4 Author = Ann Ox\n"
                                                 "  14 Pages = 7\n"
                                                 "  12 CreateDate = 2001-09-09T01:46:40.000Z\n"
                                                 "  10 EditingTime = 90 s\n"
                                                 "document summary information\n"
                                                 "  15 Company = Ox & Co\n"
                                                 "  5 Lines = 123\n"
                                                 "user-defined properties\n"
                                                 "  2 Client = Nib Ltd\n"
                                                 "  3 Checked = true\n"_s);
}

TEST_F(DocPropertiesPeerTest, the_probe_passes_over_a_set_that_is_not_there) {
    OpenStorageFile(file()).DestroyElement(DocumentStream);
    DocProperties p;
    EXPECT_THROW((void)propsAsText(p), Error);
    p.BindToFile(file());
    EXPECT_EQ(propsAsText(p), "summary information\n");
}
