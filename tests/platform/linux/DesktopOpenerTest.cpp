#include "platform/linux/DesktopOpener.h"

#include "support/Files.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Result = DocumentOpener::Result;

/// A desktop whose tools are scripts: what is opened is written into a file, and only HTML pages
/// and https addresses have a program.
class DesktopOpenerTest : public testing::Test {
protected:
    DesktopOpenerTest() {
        script(u"xdg-open"_s, "printf '%s\\n' \"$1\" >> \"" + log().toUtf8() + "\"\n");
        script(u"xdg-mime"_s, "case \"$2 $3\" in\n"
                              "filetype*.htm) echo text/html ;;\n"
                              "filetype*) echo application/x-odd ;;\n"
                              "'default text/html') echo browser.desktop ;;\n"
                              "'default x-scheme-handler/https') echo browser.desktop ;;\n"
                              "esac\n");
    }

    void script(const QString& name, const QByteArray& lines) const {
        const QString path = folder.filePath(u"bin/"_s + name);
        writeFile(path, "#!/bin/sh\n" + lines);
        EXPECT_TRUE(
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    [[nodiscard]] QString log() const { return folder.filePath(u"opened"_s); }

    /// What was opened, when it has come; nothing after a while.
    [[nodiscard]] QString opened(int forMilliseconds = 10000) const {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < forMilliseconds) {
            QFile file(log());
            if (file.open(QIODevice::ReadOnly) && file.size() > 0)
                return QString::fromUtf8(file.readAll());
            QThread::msleep(10);
        }
        return {};
    }

    QTemporaryDir folder;
    ScopedEnvironment tools{"PATH", folder.filePath(u"bin"_s).toUtf8() + ":" + qgetenv("PATH")};
    DesktopOpener opener;
};

} // namespace

TEST_F(DesktopOpenerTest, a_document_is_opened_by_its_whole_path) {
    const QString document = folder.filePath(u"a draft's #1.htm"_s);
    EXPECT_EQ(opener.open(document), Result::Opened);
    EXPECT_EQ(opened(), document + u'\n');
}

TEST_F(DesktopOpenerTest, an_address_is_opened_as_it_stands) {
    EXPECT_EQ(opener.open(u"https://host/a?b=1#c"_s), Result::Opened);
    EXPECT_EQ(opened(), u"https://host/a?b=1#c\n"_s);
}

TEST_F(DesktopOpenerTest, a_document_without_a_program_is_not_opened) {
    EXPECT_EQ(opener.open(folder.filePath(u"a.odd"_s)), Result::NoProgram);
    EXPECT_EQ(opener.open(u"gopher://host"_s), Result::NoProgram);
    EXPECT_EQ(opened(300), u""_s);
}

TEST_F(DesktopOpenerTest, the_folder_of_a_document_is_shown_for_choosing_a_program) {
    opener.askForProgram(u"gopher://host"_s);
    opener.askForProgram(folder.filePath(u"a.odd"_s));
    EXPECT_EQ(opened(), folder.path() + u'\n');
}

TEST_F(DesktopOpenerTest, a_desktop_that_cannot_be_asked_is_told_to_open_all_the_same) {
    script(u"xdg-mime"_s, "exit 3\n");
    EXPECT_EQ(opener.open(folder.filePath(u"a.odd"_s)), Result::Opened);
    EXPECT_EQ(opened(), folder.filePath(u"a.odd\n"_s));
}

TEST_F(DesktopOpenerTest, fails_where_there_is_no_desktop) {
    const ScopedEnvironment nothing("PATH", QByteArray("/nowhere"));
    EXPECT_EQ(opener.open(folder.filePath(u"a.htm"_s)), Result::Failed);
}
