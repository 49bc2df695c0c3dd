#include "app/ProgramFixture.h"
#include "support/Files.h"

#include <QAbstractButton>
#include <QLabel>

using namespace quillford;

namespace {

/// The export to Word from the window, by the real word processor.
class WordExport : public ProgramFixture {
protected:
    void SetUp() override {
        LinuxFolders folders;
        if (!LibreOffice(folders).isInstalled())
            GTEST_SKIP() << "LibreOffice Writer is not installed";
        startWithSample();
        click(u"picTab(8)"_s);
        form().installEventFilter(&pointer_);
    }

    void expectDocument(const QString& path) {
        const QByteArray document = contentOf(path);
        EXPECT_TRUE(document.startsWith("\xD0\xCF\x11\xE0")) << "a compound file";
        const QString title = u"FOLDING FIELD EASEL"_s;
        const QByteArray wide(reinterpret_cast<const char*>(title.utf16()), title.size() * 2);
        EXPECT_TRUE(document.contains(wide) || document.contains(title.toLatin1()));
        EXPECT_EQ(opened(), QStringList{path});
        EXPECT_EQ(pointer_.shapes, (QList<Qt::CursorShape>{Qt::WaitCursor, Qt::ArrowCursor}));
    }

private:
    /// The looks of the pointer over the form, one after the other.
    class Pointer final : public QObject {
    public:
        QList<Qt::CursorShape> shapes;

        bool eventFilter(QObject* form, QEvent* event) override {
            const Qt::CursorShape shape = qobject_cast<QWidget*>(form)->cursor().shape();
            if (event->type() == QEvent::CursorChange && !shapes.endsWith(shape))
                shapes.append(shape);
            return false;
        }
    } pointer_;
};

} // namespace

TEST_F(WordExport, by_the_button_leads_over_the_check_to_a_document_that_is_opened) {
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdVerify"_s));
    whenAsked(u"Verification Successful!"_s, presses(u"cmdContinue"_s));
    whenAskedForFile(place(u"draft"_s));
    click(u"imgCreateToFile(1)"_s);
    expectDocument(place(u"draft.doc"_s));
}

TEST_F(WordExport, by_the_menu_replaces_an_older_document) {
    const QString path = place(u"draft.doc"_s);
    writeFile(path, "old");
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
    whenAskedForFile(path);
    user.meets<QMessageBox>([](QMessageBox& overwrite) {
        ModalUser::pressByKeys(overwrite, overwrite.button(QMessageBox::Yes));
    });
    choose(u"mnuFileExportToWord"_s);
    expectDocument(path);
}

TEST_F(WordExport, into_a_folder_that_is_gone_leaves_nothing_and_tells_it_in_the_line) {
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
    whenAskedForFile(place(u"gone/draft.doc"_s));
    click(u"imgCreateToFile(1)"_s);
    EXPECT_EQ(control<QLabel>(u"lblSaveState"_s).text(), u"not exported: folder does not exist"_s);
    EXPECT_FALSE(QFile::exists(place(u"gone"_s)));
    EXPECT_FALSE(QFile::exists(place(u"opened"_s)));
}
