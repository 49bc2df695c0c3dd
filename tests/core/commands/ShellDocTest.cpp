#include "core/commands/ShellDoc.h"

#include "support/FakeDocumentOpener.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Document = u"/home/ann/draft.htm"_s;

} // namespace

TEST(ShellDocTest, opens_a_document_with_its_program) {
    FakeDocumentOpener opener;
    ShellDoc(Document, opener);
    EXPECT_EQ(opener.opened, QStringList{Document});
    EXPECT_TRUE(opener.askedFor.isEmpty());
}

TEST(ShellDocTest, has_the_user_choose_where_no_program_is_known) {
    FakeDocumentOpener opener;
    opener.result = DocumentOpener::Result::NoProgram;
    ShellDoc(Document, opener);
    EXPECT_EQ(opener.askedFor, QStringList{Document});
}

TEST(ShellDocTest, tells_nothing_of_another_failure) {
    FakeDocumentOpener opener;
    opener.result = DocumentOpener::Result::Failed;
    ShellDoc(Document, opener);
    EXPECT_TRUE(opener.askedFor.isEmpty());
}
