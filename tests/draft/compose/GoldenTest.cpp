#include "core/rules/FigureSize.h"
#include "draft/compose/HtmlComposer.h"
#include "draft/compose/IndexComposer.h"
#include "draft/compose/WordComposer.h"
#include "draft/compose/WordTemplateText.h"
#include "persistence/project/ProjectReader.h"
#include "platform/linux/QtPictureReader.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/FakeWordProcessor.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

// Every folder of tests/golden is a case: a project, and the pages that are composed from it. The
// project is project.json, or the file that project.path names from the root of the source tree. In
// the pages @GOLDEN@ stands for that root. scripts/update_golden.sh writes the pages anew.
//
// Of the Word document it is the text, as a word processor over plain text leaves it: the header,
// then a line for each paragraph, in which a picture is one object replacement character.

namespace {

const QString SourceTree = QStringLiteral(QUILLFORD_SOURCE_TREE);
const QString CasesFolder = SourceTree + u"/tests/golden"_s;
constexpr auto Placeholder = "@GOLDEN@";

QString projectOf(const QString& folder) {
    const QString path = folder + u"/project.path"_s;
    if (!QFileInfo::exists(path))
        return folder + u"/project.json"_s;
    const QByteArray line = contentOf(path);
    return SourceTree + u'/' + QString::fromUtf8(line.first(line.indexOf('\n')));
}

/// The pages of one project, as they are exported.
class Pages {
public:
    explicit Pages(const QString& projectPath) {
        folders_.temporary = folder_.path();
        readProject(projectPath, project_);
        QtPictureReader pictures;
        measureFigures(project_.fields, pictures);
    }

    QByteArray draft() {
        const QString path = folder_.filePath(u"draft.htm"_s);
        HtmlComposer composer(project_.fields, folders_, prompts_);
        QString html;
        EXPECT_TRUE(composer.ExportToHTML(path, html));
        return contentOf(path);
    }

    QByteArray index() {
        const QString path = folder_.filePath(u"index.htm"_s);
        IndexComposer composer(project_.fields, folders_, prompts_);
        QString html;
        EXPECT_TRUE(composer.ExportToIndex(html));
        HTMLTemplate().SaveAs(path, html);
        return contentOf(path);
    }

    QByteArray word() {
        FakeWordProcessor word;
        word.templateText = wordTemplateText();
        word.showsAnyPicture = true;
        WordComposer composer(project_.fields, folders_, prompts_, word);
        EXPECT_TRUE(composer.ExportToWord(u"Printer"_s));
        return (word.header + u'\n' + word.text.replace(u'\r', u'\n')).toUtf8();
    }

private:
    QTemporaryDir folder_;
    FakeFolders folders_;
    FakePrompts prompts_;
    Project project_;
};

/// Compares line by line, so that a difference shows in one line instead of a whole page.
void expectSamePage(const QByteArray& actual, const QByteArray& expected) {
    const QList<QByteArray> actualLines = actual.split('\n');
    const QList<QByteArray> expectedLines = expected.split('\n');
    for (qsizetype i = 0; i < std::min(actualLines.size(), expectedLines.size()); ++i)
        ASSERT_EQ(actualLines[i], expectedLines[i]) << "in line " << i + 1;
    EXPECT_EQ(actualLines.size(), expectedLines.size());
}

bool isUpdate() {
    return qEnvironmentVariableIsSet("QUILLFORD_UPDATE_GOLDEN");
}

void checkPage(const QString& expectedPath, QByteArray page) {
    page.replace(SourceTree.toUtf8(), Placeholder);
    if (isUpdate())
        writeFile(expectedPath, page);
    else
        expectSamePage(page, contentOf(expectedPath));
}

} // namespace

TEST(Golden, every_case_is_composed_as_expected) {
    const QStringList cases = QDir(CasesFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_GE(cases.size(), 10);
    for (const QString& name : cases) {
        SCOPED_TRACE("tests/golden/" + name.toStdString());
        const QString folder = CasesFolder + u'/' + name;
        Pages pages(projectOf(folder));
        checkPage(folder + u"/expected.htm"_s, pages.draft());
        checkPage(folder + u"/expected-index.htm"_s, pages.index());
        checkPage(folder + u"/expected-word.txt"_s, pages.word());
    }
    if (isUpdate())
        GTEST_SKIP() << "the expected pages were written anew, nothing was compared";
}
