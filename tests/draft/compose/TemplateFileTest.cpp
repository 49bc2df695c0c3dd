#include "draft/compose/TemplateFile.h"

#include "support/ErrorOf.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TemplateFileTest : public testing::Test {
protected:
    TemplateFileTest() { folders.temporary = folder_.path(); }

    FakeFolders folders;
    FakePrompts prompts;
    HTMLTemplate page;

private:
    QTemporaryDir folder_;
};

} // namespace

TEST_F(TemplateFileTest, a_template_is_written_byte_for_byte) {
    for (const QString& name : {u"HTMLTEMPLATE"_s, u"INDEXHTMLTEMPLATE"_s}) {
        const QByteArray written = contentOf(writeTemplateFile(name, folders));
        EXPECT_EQ(written, contentOf(u":/templates/"_s + name + u".htm"_s));
        EXPECT_GT(written.size(), 1000);
    }
}

TEST_F(TemplateFileTest, the_name_is_Temp_with_a_number_below_10000) {
    const QRegularExpression name(u"^/Temp(0|[1-9][0-9]{0,3})\\.htm$"_s);
    QSet<QString> names;
    for (int i = 0; i < 100; ++i) {
        const QString path = writeTemplateFile(u"INDEXHTMLTEMPLATE"_s, folders);
        ASSERT_TRUE(path.startsWith(folders.temporary));
        names.insert(path.sliced(folders.temporary.size()));
        EXPECT_TRUE(name.match(path.sliced(folders.temporary.size())).hasMatch())
            << qPrintable(path);
    }
    // A hundred numbers out of ten thousand: the same one ten times would be no chance.
    EXPECT_GT(names.size(), 90);
}

TEST_F(TemplateFileTest, the_folders_name_is_taken_as_it_is) {
    for (const QString& name : {u"/100%1 sure"_s, u"/%2"_s, u"/Ren\u00E9e's #1"_s}) {
        const QTemporaryDir parent;
        folders.temporary = parent.path() + name;
        ASSERT_TRUE(QDir().mkpath(folders.temporary));
        const QString path = writeTemplateFile(u"INDEXHTMLTEMPLATE"_s, folders);
        EXPECT_EQ(QFileInfo(path).path(), folders.temporary);
    }
}

TEST_F(TemplateFileTest, a_folder_that_is_not_there_is_an_error_that_names_the_file) {
    folders.temporary = u"/nowhere/at all"_s;
    EXPECT_TRUE(errorOf([&] { (void)writeTemplateFile(u"HTMLTEMPLATE"_s, folders); })
                    .source()
                    .startsWith(u"/nowhere/at all/Temp"_s));
}

TEST_F(TemplateFileTest, a_full_disk_is_an_error_that_names_the_file) {
    for (const rlim_t bytes : {1U, 1000U}) {
        const FullDisk disk(bytes);
        const Error error = errorOf([&] { (void)writeTemplateFile(u"HTMLTEMPLATE"_s, folders); });
        EXPECT_TRUE(error.source().startsWith(folders.temporary + u"/Temp"_s));
        EXPECT_EQ(error.description(), u"File too large"_s);
        EXPECT_TRUE(QDir(folders.temporary).isEmpty());
    }
}

TEST_F(TemplateFileTest, a_template_that_does_not_exist_is_an_error) {
    errorOf([&] { (void)writeTemplateFile(u"NOTEMPLATE"_s, folders); });
}

TEST_F(TemplateFileTest, a_loaded_file_is_a_block_and_tells_the_user_nothing) {
    writeFile(folders.temporary + u"/a.htm"_s, "text");
    EXPECT_TRUE(loadTemplateFile(page, u"block"_s, folders.temporary + u"/a.htm"_s, prompts));
    page.Parse(u"out"_s, u"block"_s, {});
    EXPECT_EQ(page.p(u"out"_s), u"text\r\n"_s);
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(TemplateFileTest, a_refused_template_is_told_in_a_box) {
    EXPECT_FALSE(loadTemplateFile(page, u"block"_s, {}, prompts));
    const FakePrompts::Box box{UserPrompts::Icon::Critical, u"Error"_s,
                               u"Can not open the html template"_s};
    EXPECT_EQ(prompts.boxes, std::vector{box});
}

TEST_F(TemplateFileTest, a_file_that_cannot_be_read_is_an_error_and_no_box) {
    const QString path = folders.temporary + u"/missing.htm"_s;
    EXPECT_EQ(errorOf([&] { loadTemplateFile(page, u"block"_s, path, prompts); }).source(), path);
    EXPECT_TRUE(prompts.boxes.empty());
}
