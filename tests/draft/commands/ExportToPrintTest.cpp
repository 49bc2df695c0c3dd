#include "draft/commands/ExportToPrint.h"

#include "base/Error.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ExportToPrintTest, what_is_named_beside_the_file_is_found_and_the_file_is_gone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Temp12.more.htm"_s);
    writeFile(path, "<img src=\"Temp12_files/a.png\"><p>Temp12</p>");
    EXPECT_EQ(ExportToPrint(path),
              u"<img src=\"%1_files/a.png\"><p>%1</p>\r\n"_s.arg(folder.filePath(u"Temp12"_s)));
    EXPECT_FALSE(QFile::exists(path));
}

TEST(ExportToPrintTest, a_file_that_is_not_there_is_named) {
    const Error error = errorOf([] { (void)ExportToPrint(u"/nowhere/a.htm"_s); });
    EXPECT_EQ(error.source(), u"/nowhere/a.htm"_s);
}
